#!/bin/bash
# In the guest: makes /dev and wine's folder as wine needs them, and runs the command.
set -eu

# The test makes the nodes of its devices itself, see makeNode() there.
mkdir /run/dev
mount -t tmpfs dev /run/dev
cp -a /dev/{null,zero,full,random,urandom,tty,uhid,fd,stdin,stdout,stderr} /run/dev/
mkdir -m 1777 /run/dev/shm
mount --move /run/dev /dev

# Whoever made it, here it is root's: wine takes nobody else's.
chown root "$WINEPREFIX"
# hidapi gets what it lists devices with, and a crash is to end the program and not to begin a debugger.
export WINEDLLOVERRIDES='cfgmgr32=n;mscoree=;mshtml=;winedbg.exe=;winemenubuilder.exe='
export WINEDEBUG=${WINEDEBUG:--all}
exec "$@"
