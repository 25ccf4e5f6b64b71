#!/usr/bin/env python3
"""Checks what a demo recorded against the script of loads that it ran, with nothing of the program's own code.

usage: check_history.py MINUTES.csv DAYS.csv DATABASE RATED_WATTS

MINUTES.csv and DAYS.csv are what `zpsg export --minutes` and `--days` wrote for the same range of whole days;
DATABASE is the history. Prints what does not agree and exits with 1, or prints a line of sums and exits with 0.
"""
import collections
import csv
import datetime
import math
import sqlite3
import sys

MASK = 0xFFFFFFFF
# until hour, floor, wave, burst: shares of the rating
PHASES = [(7.5, .030, .004, .05), (9.0, .075, .020, .10), (12.25, .140, .050, .28), (13.25, .080, .015, .08),
          (17.5, .150, .060, .30), (19.0, .085, .025, .12), (22.75, .430, .110, .20), (24.0, .075, .020, .08)]


def hashed(slot, salt):
    x = (slot * 0x9E3779B1 & MASK) ^ (salt * 0x85EBCA77 & MASK)
    x ^= x >> 15
    x = x * 0x2C1B3C6D & MASK
    x ^= x >> 12
    x = x * 0x297A2D39 & MASK
    x ^= x >> 15
    return x / 2 ** 32


def wander(second, width, salt):
    position = second / width
    slot = math.floor(position)
    t = position - slot
    smooth = t * t * (3 - 2 * t)
    a, b = hashed(slot, salt), hashed(slot + 1, salt)
    return a + smooth * (b - a)


def load(when, rated):
    second = when.hour * 3600 + when.minute * 60 + when.second
    _, floor, wave, burst = next(p for p in PHASES if second / 3600 < p[0])
    salt = when.timetuple().tm_yday
    waves = wander(second, 97.0, salt) + .35 * wander(second, 11.0, salt + 1000)
    bursts = min(max((wander(second, 23.0, salt + 2000) - .62) * 4, 0), 1)
    return rated * (floor + wave * waves + burst * bursts + .004 * wander(second, 1.3, salt + 3000))


def main(minutes_file, days_file, database, rated):
    faults = []

    def agree(what, got, wanted, relative):
        if abs(got - wanted) > abs(wanted) * relative + 1e-9:
            faults.append(f"{what}: {got} instead of {wanted}")

    class Day:
        def __init__(self):
            self.watts = self.kwh = self.efficiency = self.scripted = 0.0
            self.count = 0

    sums = collections.defaultdict(Day)
    with open(minutes_file, newline="") as source:
        for row in csv.DictReader(source):
            when = datetime.datetime.strptime(row["DataTime"], "%d.%m.%Y %H:%M:%S")
            day = sums[when.date()]
            day.watts += float(row["Watts"])
            day.kwh += float(row["KW_H"])
            day.efficiency += float(row["Efficiency"])
            day.scripted += load(when, rated)
            day.count += 1
            # Volts and amps cross the cable with eleven bits each: up to 0.2 percent of a single minute.
            agree(f"watts at {when}", float(row["Watts"]), load(when, rated), 0.004)
    if not sums:
        faults.append("no minutes were exported")
    with open(days_file, newline="") as source:
        exported = {datetime.datetime.strptime(row["DataTime"], "%d.%m.%Y").date(): row
                    for row in csv.DictReader(source)}
    stored = {datetime.date.fromisoformat(date): values for date, *values in sqlite3.connect(database).execute(
        "SELECT record_date, watts, efficiency, kwh, count_time FROM zps_record_day WHERE count_time > 0")}
    for date, day in sums.items():
        if day.count != 1440:
            faults.append(f"{date}: {day.count} minutes instead of 1440")
        agree(f"{date} energy by the script", day.kwh, day.scripted / 60000, 0.001)
        row = exported.get(date)
        if row is None or date not in stored:
            faults.append(f"{date} is missing among the exported days or in the database")
            continue
        watts, efficiency, kwh, count = stored[date]
        for name, got, wanted, relative in (
                ("exported watts", float(row["Watts"]), day.watts, 1e-9),
                ("exported kWh", float(row["KW_H"]), day.kwh, 1e-6),
                ("exported efficiency", float(row["Efficiency"]), day.efficiency, 1e-9),
                ("exported minutes", int(row["count_time"]), day.count, 0),
                # single precision in the database
                ("stored watts", watts, day.watts, 1e-6), ("stored kWh", kwh, day.kwh, 1e-6),
                ("stored efficiency", efficiency, day.efficiency, 1e-6), ("stored minutes", count, day.count, 0)):
            agree(f"{date} {name}", got, wanted, relative)
    for fault in faults[:20]:
        print(fault)
    total = sum(day.kwh for day in sums.values())
    print(f"{len(sums)} days, {sum(day.count for day in sums.values())} minutes, {total:.4f} kWh, "
          f"{sum(day.scripted for day in sums.values()) / 60000:.4f} kWh by the script, {len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2], sys.argv[3], float(sys.argv[4])))
