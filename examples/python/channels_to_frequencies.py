#!/usr/bin/env python3
"""Adds each channel's centre frequency to a CSV of channels.

    channels_to_frequencies.py channels.csv > frequencies.csv

The input has the columns band, channel and link ("dl" or "ul"; empty for a
band of one link or a TDD band). The output repeats them with mhz, or with
the reason in error when a row has no frequency.
"""

import csv
import sys

import saiskuko


def convert(rows, out):
    writer = csv.writer(out, lineterminator="\n")
    writer.writerow(["band", "channel", "link", "mhz", "error"])
    bands = {}  # look each band name up once
    for row in rows:
        link = row.get("link") or None
        try:
            if row["band"] not in bands:
                bands[row["band"]] = saiskuko.band(row["band"])
            mhz = bands[row["band"]].frequency(int(row["channel"]), link)
            writer.writerow([row["band"], row["channel"], link or "", repr(mhz), ""])
        except saiskuko.Error as error:
            writer.writerow([row["band"], row["channel"], link or "", "", error.code])


def main():
    with open(sys.argv[1], newline="") as source:
        convert(csv.DictReader(source), sys.stdout)


if __name__ == "__main__":
    main()
