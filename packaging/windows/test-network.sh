#!/usr/bin/env bash
# The Windows program with programs of this machine on the other end of the line: a broker with TLS, and a reader of the
# metrics. Run by test.sh, which prepares wine and the display.
#
# usage: test-network.sh PROGRAM
#
# Exit status: 0, 1 when a check failed.
set -uo pipefail
program=$1
port=18883 metrics=19464
work=$(mktemp -d)
children=()

leave() {
    wineserver --kill
    kill "${children[@]}" 2>/dev/null
    rm -rf "$work"
}
trap leave EXIT

certificate() { # NAME SUBJECT-ALTERNATIVE-NAME OPTION...
    openssl req -x509 -newkey rsa:2048 -nodes -days 2 -subj "/CN=$1" -addext "subjectAltName=$2" \
        -keyout "$work/$1.key" -out "$work/$1.crt" "${@:3}" 2>/dev/null
}

within() { # SECONDS COMMAND...
    local end=$((SECONDS + $1))
    until "${@:2}"; do
        [ "$SECONDS" -lt "$end" ] || return 1
        sleep 0.5
    done
}

failed=0
check() { # WHAT COMMAND...
    if within 60 "${@:2}" >/dev/null 2>&1; then
        echo "ok      $1"
    else
        echo "FAILED  $1"
        failed=1
    fi
}

certificate authority DNS:authority
certificate broker IP:127.0.0.1 -CA "$work/authority.crt" -CAkey "$work/authority.key"
chmod a+r "$work"/*.key && chmod a+rx "$work"
cat >"$work/broker.conf" <<END
listener $port 127.0.0.1
allow_anonymous true
cafile $work/authority.crt
certfile $work/broker.crt
keyfile $work/broker.key
END
PATH=$PATH:/usr/sbin mosquitto -c "$work/broker.conf" >"$work/broker.log" 2>&1 &
children+=($!)
broker_answers() { mosquitto_pub -h 127.0.0.1 -p "$port" --cafile "$work/authority.crt" -t there -n; }
within 20 broker_answers 2>/dev/null || cat "$work/broker.log"
mosquitto_sub -h 127.0.0.1 -p "$port" --cafile "$work/authority.crt" -t '#' >"$work/heard" &
children+=($!)

mkdir -p "$work/data/demo"
cat >"$work/data/demo/config_ZPSG.ini" <<END
[Mqtt]
Host=127.0.0.1
Port=$port
AccountId=m
ProductId=p
CaFile=Z:$work/authority.crt
[Metrics]
Port=$metrics
END
wine "$program" --demo --data-dir "Z:$work/data" >/dev/null 2>&1 &
children+=($!)

check "a broker over TLS hears that it is there" grep -q '"status":"online"' "$work/heard"
scrape() { curl -sf "http://127.0.0.1:$metrics/metrics" | grep -E '^zpsg_[a-z_]*watts[^ ]* [1-9]'; }
check "a reader of the metrics gets watts" scrape
[ "$failed" -eq 0 ] || cat "$work/broker.log"
exit $failed
