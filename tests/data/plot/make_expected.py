#!/usr/bin/env python3
"""Writes the plot files that the Plot command must make of sample.ndx (the index of the sample
dataset) with the towns of support/Towns.txt, and of straddle.ndx with straddle_towns.txt, worked
out here apart from the program: positions from the index's columns as degrees + minutes / 60 +
seconds / 3600, the zone of the middle of the extent's longitudes, grid coordinates from
GeographicLib's GeoConvert with that zone forced, rounded to whole metres.
Run from this folder; it writes straddle.ndx and straddle_towns.txt too."""
import math
import re
import subprocess

def val(text):
    """The leading number of a text, blanks skipped anywhere; none reads as 0."""
    m = re.match(r"[+-]?(\d+\.?\d*|\.\d+)([ED][+-]?\d+)?", text.replace(" ", ""))
    return float(m.group(0).replace("D", "E")) if m else 0.0

def mid(s, start, length):
    return s[start - 1:start - 1 + length]

def record_degrees(rec, at, width):
    minutes = at + width + 1
    return val(mid(rec, at, width)) + val(mid(rec, minutes, 2)) / 60 + val(mid(rec, minutes + 3, 8)) / 3600

def town_degrees(line, at, width):
    minutes = at + width
    return val(mid(line, at, width)) + val(mid(line, minutes, 2)) / 60 + val(mid(line, minutes + 2, 2)) / 3600

def grid(zone, lat, lon_west):
    out = subprocess.run(["GeoConvert", "-u", "-z", str(zone), "-p", "4"], input=f"{lat!r} {-lon_west!r}\n",
                         capture_output=True, text=True, check=True).stdout.split()
    east, north = float(out[1]), float(out[2])
    for v in (east, north):
        assert abs(v - math.floor(v) - 0.5) > 0.002, f"too near a half metre: {v}"
    return math.floor(north + 0.5), math.floor(east + 0.5)

def write(path, lines):
    with open(path, "w", newline="") as f:
        f.write("".join(line + "\r\n" for line in lines))

def make(index_path, towns_path, prefix):
    records = open(index_path, newline="").read().split("\r\n")
    lats = [record_degrees(r, 12, 2) for r in records]
    lons = [record_degrees(r, 27, 3) for r in records]
    lat_in = [v for v in lats if v != 0]
    lon_in = [v for v in lons if v != 0]
    min_lat, max_lat = min(lat_in, default=90), max(lat_in, default=0)
    min_lon, max_lon = min(lon_in, default=360), max(lon_in, default=0)
    middle = (min_lon + max_lon) / 2
    zone = int((180 - middle) // 6) + 1  # positive west: 78 to 84 W is zone 17
    coords, number = [], 0
    for rec, lat, lon in zip(records, lats, lons):
        if lat == 0 or lon == 0:
            continue
        number += 1
        north, east = grid(zone, lat, lon)
        coords.append(f"{number:04d} {north:08d} {east:08d} {mid(rec, 43, 30):30} {mid(rec, 8, 1):1} "
                      f"{mid(rec, 10, 1):1}   {mid(rec, 1, 6)}")
    cities = []
    for line in open(towns_path, newline="").read().split("\r\n"):
        lat, lon = town_degrees(line, 30, 2), town_degrees(line, 36, 3)
        if min_lat < lat < max_lat and min_lon < lon < max_lon:
            north, east = grid(zone, lat, lon)
            cities.append(f"     {north:08d} {east:08d} {line[:28].strip()}")
    write(prefix + "_UTMCoords.dat", coords)
    write(prefix + "_UTMCities.dat", cities)
    print(prefix, "zone", zone, len(coords), "marks", len(cities), "towns")

def index_record(pid, horz, vert, lat, lon, designation):
    rec = f"{pid} {horz} {vert} {lat:14} {lon:15} {designation:30} {'':23}"
    return rec.ljust(134) + "000000001 |"

# Marks on both sides of the 78 W boundary of zones 17 and 18; the extent's middle is in zone 18.
# SD0004 has no longitude: it takes no number, but its latitude widens the extent north.
write("straddle.ndx", [
    index_record("SD0001", "1", " ", "35 30 00.00000", "077 30 00.00000", "EAST OF THE LINE"),
    index_record("SD0002", "A", "2", "35 40 00.00000", "078 06 00.00000", "WEST OF THE LINE"),
    index_record("SD0003", " ", "1", "35 50 00.00000", "078 03 00.00000", "NEAR THE LINE"),
    index_record("SD0004", "B", " ", "36 10 00.00000", "", "NO LONGITUDE"),
    " " * 134 + "000012345 |"])
write("straddle_towns.txt", [f"{name:29}{pos}" for name, pos in [
    ("EDGE TOWN", "3530000774500"), ("INSIDE TOWN", "3545000774500"), ("NORTH TOWN", "3605000775000"),
    ("OUTSIDE TOWN", "3400000774500"), ("WEST TOWN", "3545000780400")]])
make("straddle.ndx", "straddle_towns.txt", "straddle")
make("sample.ndx", "../../../support/Towns.txt", "sample")
