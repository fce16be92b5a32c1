#!/usr/bin/env python3
"""Writes Towns.txt: every populated place of the source table, for the plot.

One town a line, sorted by byte value: the name in capitals from column 1 (at most 28
characters, so that the plot's 28-character label shows it whole), blanks up to column 30, then
the latitude DDMMSS in columns 30-35 and the longitude DDDMMSS in columns 36-42, positive west,
without hemisphere letters, rounded to the whole second. A place east of 180 degrees west (the
outer Aleutians) gets its longitude west counted past 180 ("186 44 38"), as positive west holds
everywhere in the program.

The first 32 columns are a town's identity, and a file with two lines alike there loses one of
them when the towns of a state are fetched. So where two places share a name and the first
minute digit of their latitudes, the state code is added to the name ("COLUMBIA, AL"); where
that is not enough, the place type ("BEL AIR CDP, MD"), and last a number counting from north.

Source: us_places.csv of the data folder.
"""
import sys
from collections import defaultdict

from support_text import ascii_upper, parse_args, read_table, write_lines

NAME_WIDTH = 28


def dms(value, degree_digits):
    seconds = round(abs(value) * 3600)
    return "%0*d%02d%02d" % (degree_digits, seconds // 3600, seconds // 60 % 60, seconds % 60)


def position_text(lat, lon):
    west = -lon if lon <= 0 else 360.0 - lon
    return dms(lat, 2) + dms(west, 3)


def fitted(base, suffix=""):
    return (base[: NAME_WIDTH - len(suffix)].rstrip() + suffix) if suffix else base[:NAME_WIDTH].rstrip()


def line_of(name, position):
    return "%-29s%s" % (name, position)


def identity(line):
    return line[:32]


def disambiguate(places, namer):
    """Renames the places whose lines collide in their first 32 columns; returns the collisions left."""
    groups = defaultdict(list)
    for place in places:
        groups[identity(line_of(place["name"], place["position"]))].append(place)
    left = []
    for members in groups.values():
        if len(members) > 1:
            for index, place in enumerate(members):
                place["name"] = namer(place, index, members)
            left.append(members)
    return left


def check_read_back(line, place):
    """The plot reads degrees, minutes and seconds from columns 30-35 and 36-42: that must give the
    source position back to within a second."""
    lat = int(line[29:31]) + int(line[31:33]) / 60 + int(line[33:35]) / 3600
    west = int(line[35:38]) + int(line[38:40]) / 60 + int(line[40:42]) / 3600
    source_west = -place["lon"] if place["lon"] <= 0 else 360.0 - place["lon"]
    if len(line) != 42 or abs(lat - place["lat"]) > 1 / 3600 or abs(west - source_west) > 1 / 3600:
        sys.exit("position does not read back: %r" % line)


def build(data_dir):
    places = []
    for row in read_table(data_dir, "us_places.csv"):
        base = ascii_upper(row["name"]).strip()
        places.append({
            "base": base,
            "state": row["state"],
            "type": ascii_upper(row["place_type"]).strip(),
            "lat": float(row["lat"]),
            "lon": float(row["lon"]),
            "position": position_text(float(row["lat"]), float(row["lon"])),
            "name": fitted(base),
        })
    disambiguate(places, lambda p, i, m: fitted(p["base"], ", " + p["state"]))
    disambiguate(places, lambda p, i, m: fitted(p["base"], " %s, %s" % (p["type"] or "PLACE", p["state"])))

    def numbered(place, index, members):
        order = sorted(members, key=lambda p: (-p["lat"], p["position"]))
        return fitted(place["base"], " %d, %s" % (order.index(place) + 1, place["state"]))

    disambiguate(places, numbered)
    for place in places:
        check_read_back(line_of(place["name"], place["position"]), place)
    lines = sorted(line_of(p["name"], p["position"]) for p in places)
    for previous, current in zip(lines, lines[1:]):
        if identity(previous) == identity(current):
            sys.exit("two towns alike in their first 32 columns: %r" % current)
    return lines


def main():
    args = parse_args(__doc__.splitlines()[0])
    print(write_lines(args.out, "Towns.txt", build(args.data)))


if __name__ == "__main__":
    main()
