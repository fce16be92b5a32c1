#!/usr/bin/env python3
"""Writes the geodesy test vectors in tests/data/geodesy/ from independent references:

  spcs_vectors.txt      every zone of the zone table, points spread over the zone: PROJ
                        (lcc, tmerc, omerc with each zone's EPSG definition on GRS 80, the exact
                        legal scale 1-1/D) for north and east; GeographicLib's ConicProj and
                        TransverseMercatorProj for convergence and scale; for the oblique zone
                        PROJ's own convergence and scale (proj -V).
  utm_vectors.txt       UTM zones 1 to 60, within 3 degrees of the central meridian, false northing
                        0 in the south as the program has it: PROJ tmerc k 0.9996, convergence and
                        scale from TransverseMercatorProj.
  geodesic_vectors.txt  lines up to 10 km: GeodSolve (direct and inverse) on GRS 80.
  mgrs_vectors.txt      whole-metre UTM positions north of the equator below 80 degrees: GeoConvert's
                        MGRS string and the latitude of the position.

Needs the Debian packages proj-bin and geographiclib-tools (for making the vectors only; the tests
read the committed files). Longitudes in the files are positive WEST, as everywhere in the program;
angles in degrees, lengths in metres.

    tools/make_geodesy_vectors.py [zones.csv] [output folder]
"""
import csv
import math
import os
import random
import re
import subprocess
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
DEFAULT_CSV = os.path.join(HERE, "..", "..", "shared", "data", "spcs83_zones.csv")  # shared/ beside the repository
DEFAULT_OUT = os.path.join(HERE, "..", "tests", "data", "geodesy")
GRS80_A = "6378137"
GRS80_F = "1/298.257222101"
POINTS_PER_ZONE = 16


def run(command, lines):
    result = subprocess.run(command, input="\n".join(lines) + "\n", capture_output=True, text=True, check=True)
    return [line.split() for line in result.stdout.strip().splitlines()]


def degrees_of(dms):
    text = dms.strip()
    sign = -1.0 if text.startswith("-") else 1.0
    parts = [float(p) for p in text.lstrip("-").split()]
    while len(parts) < 3:
        parts.append(0.0)
    return sign * (parts[0] + parts[1] / 60.0 + parts[2] / 3600.0)


def angle(row, name):
    dms = row[name + "_dms"]
    return degrees_of(dms) if dms else float(row[name + "_deg"])


def exact_scale(row):
    exact = row["scale_factor_exact"].strip()
    return 1.0 - 1.0 / int(exact[4:]) if exact else float(row["scale_factor"])


def exact_axis(proj):
    """The oblique zone's string with the axis azimuth whose tangent is exactly -3/4; the EPSG value,
    323 07 48.3685, is that rounded (by up to 0.9 mm at the zone's edges)."""
    exact = repr(math.degrees(math.atan2(-3.0, 4.0)) % 360.0)
    return re.sub(r"\+(alpha|gamma)=[^ ]+", lambda m: "+%s=%s" % (m.group(1), exact), proj)


def proj_string(row):
    common = "+x_0=%r +y_0=%r +ellps=GRS80 +units=m" % (float(row["false_easting_m"]), float(row["false_northing_m"]))
    lat0, lon0 = angle(row, "lat_origin"), angle(row, "central_meridian")
    if row["method"] == "LCC2SP":
        return "+proj=lcc +lat_1=%r +lat_2=%r +lat_0=%r +lon_0=%r %s" % (
            angle(row, "std_parallel_1"), angle(row, "std_parallel_2"), lat0, lon0, common)
    if row["method"] == "TM":
        return "+proj=tmerc +lat_0=%r +lon_0=%r +k_0=%r %s" % (lat0, lon0, exact_scale(row), common)
    azimuth = degrees_of(row["azimuth_dms"])
    return "+proj=omerc +no_uoff +lat_0=%r +lonc=%r +alpha=%r +gamma=%r +k=%r %s" % (
        lat0, lon0, azimuth, azimuth, float(row["scale_factor"]), common)


def zone_box(row):
    """Latitude and east-positive longitude ranges that cover the zone's area."""
    lat0, lon0 = angle(row, "lat_origin"), angle(row, "central_meridian")
    number = row["zone_number"]
    if row["method"] == "HOM_A":
        return (54.6, 60.0), (-141.0, -130.0)
    if number == "5010":  # the Aleutians, across the 180th meridian
        return (51.3, 54.5), (-188.0, -164.0)
    if row["method"] == "LCC2SP":
        parallels = (angle(row, "std_parallel_1"), angle(row, "std_parallel_2"))
        south = min(min(parallels), lat0) - 0.4
        north = max(parallels) + 0.6
        return (south, north), (lon0 - 3.5, lon0 + 3.5)
    if row["state"] == "AK":
        return (57.0, 70.5), (lon0 - 2.0, lon0 + 2.0)
    if row["state"] == "HI":
        return (lat0 + 0.1, lat0 + 1.4), (lon0 - 1.0, lon0 + 1.0)
    return (lat0 + 0.2, lat0 + 5.5), (lon0 - 2.0, lon0 + 2.0)


def spread(rng, box, count):
    """Points stratified over a grid of cells, one at random in each."""
    (south, north), (west, east) = box
    side = int(math.sqrt(count))
    points = []
    for i in range(side):
        for j in range(side):
            lat = south + (i + rng.random()) * (north - south) / side
            lon = west + (j + rng.random()) * (east - west) / side
            points.append((round(lat, 9), round(lon, 9)))
    return points


def project(proj, points):
    rows = run(["proj", "-f", "%.6f"] + proj.split(), ["%.9f %.9f" % (lon, lat) for lat, lon in points])
    return [(float(r[1]), float(r[0])) for r in rows]  # north, east


def conic_factors(row, points):
    command = ["ConicProj", "-c", repr(angle(row, "std_parallel_1")), repr(angle(row, "std_parallel_2")),
               "-l", repr(angle(row, "central_meridian")), "-e", GRS80_A, GRS80_F, "-p", "12"]
    rows = run(command, ["%.9f %.9f" % (lat, lon) for lat, lon in points])
    return [(float(r[2]), float(r[3])) for r in rows]


def tm_factors(lon0, k0, points):
    command = ["TransverseMercatorProj", "-l", repr(lon0), "-k", repr(k0), "-e", GRS80_A, GRS80_F,
               "-p", "12"]
    rows = run(command, ["%.9f %.9f" % (lat, lon) for lat, lon in points])
    return [(float(r[2]), float(r[3])) for r in rows]


def verbose_factors(proj, points):
    """Convergence and scale as PROJ reports them (8 decimals)."""
    result = subprocess.run(["proj", "-V"] + proj.split(), input="\n".join(
        "%.9f %.9f" % (lon, lat) for lat, lon in points) + "\n", capture_output=True, text=True, check=True)
    convergences = [float(x) for x in re.findall(r"Convergence : .*?\[ *(-?[0-9.]+) *\]", result.stdout)]
    scales = [float(x) for x in re.findall(r"Parallel scale \(k\) : *([0-9.]+)", result.stdout)]
    return list(zip(convergences, scales))


def epsg_check(row, points, ours):
    """Largest difference between the zone's EPSG code in PROJ and the string used here (the EPSG
    code carries the scale rounded to nine decimals)."""
    rows = run(["cs2cs", "-f", "%.6f", "EPSG:4269", "EPSG:" + row["epsg"]],
               ["%.9f %.9f" % (lat, lon) for lat, lon in points])
    return max(math.hypot(float(r[0]) - e, float(r[1]) - n) for r, (n, e) in zip(rows, ours))


def west(lon):
    return -lon


def spcs_vectors(rows, rng):
    out = ["# zone lat lon_west north east convergence_deg scale kind (LC, TM, OM); OM lines add north and "
           "east with the axis azimuth's exact tangent -3/4"]
    epsg_worst = {}
    for row in rows:
        proj = proj_string(row)
        points = spread(rng, zone_box(row), POINTS_PER_ZONE)
        grid = project(proj, points)
        if row["method"] == "LCC2SP":
            factors, kind = conic_factors(row, points), "LC"
        elif row["method"] == "TM":
            factors, kind = tm_factors(angle(row, "central_meridian"), exact_scale(row), points), "TM"
        else:
            factors, kind = verbose_factors(proj, points), "OM"
        epsg_worst[row["zone_number"]] = epsg_check(row, points, grid)
        extra = [""] * len(points)
        if kind == "OM":
            extra = [" %.6f %.6f" % g for g in project(exact_axis(proj), points)]
        for (lat, lon), (north, east), (gamma, k), more in zip(points, grid, factors, extra):
            out.append("%s %.9f %.9f %.6f %.6f %.12f %.13f %s%s" % (
                row["zone_number"], lat, west(lon), north, east, gamma, k, kind, more))
    worst = max(epsg_worst, key=epsg_worst.get)
    print("EPSG codes against the exact definitions: largest difference %.4f m (zone %s)"
          % (epsg_worst[worst], worst))
    return out


def utm_vectors(rng):
    out = ["# zone lat lon_west north east convergence_deg scale (false northing 0 everywhere)"]
    for zone in range(1, 61):
        lon0 = -183.0 + 6.0 * zone
        points = []
        for _ in range(5):
            lat = rng.uniform(-80.0, 84.0)
            points.append((round(lat, 9), round(lon0 + rng.uniform(-3.0, 3.0), 9)))
        points.append((round(rng.uniform(0.0, 60.0), 9), lon0))  # on the central meridian
        grid = project("+proj=tmerc +lat_0=0 +lon_0=%r +k_0=0.9996 +x_0=500000 +y_0=0 +ellps=GRS80" % lon0, points)
        factors = tm_factors(lon0, 0.9996, points)
        for (lat, lon), (north, east), (gamma, k) in zip(points, grid, factors):
            # West longitudes are 0 to 180; the eastern half is written as 180 to 360.
            lon_west = west(lon) if lon <= 0 else 360.0 - lon
            out.append("%02d %.9f %.9f %.6f %.6f %.12f %.13f" % (zone, lat, lon_west, north, east, gamma, k))
    return out


def geodesic_vectors(rng):
    lines = []
    for i in range(240):
        lat = rng.uniform(-60.0, 72.0)
        lon = rng.uniform(-180.0, 180.0)
        azimuth = rng.uniform(0.0, 360.0)
        if i < 120:
            distance = 10 ** rng.uniform(0.0, 3.0)  # 1 m to 1 km
        else:
            distance = rng.uniform(1000.0, 10000.0)
        lines.append((round(lat, 9), round(lon, 9), round(azimuth, 9), round(distance, 4)))
    for lat in (0.0, 38.9, 65.0):  # due north, east, south and west
        for azimuth in (0.0, 90.0, 180.0, 270.0):
            lines.append((lat, -77.0, azimuth, 5000.0))
    for lat in (45.0, 60.0, 65.0, 71.0):  # the longest east-west lines, where the forward is weakest
        for distance in (1000.0, 10000.0):
            lines.append((lat, -150.0, 90.0, distance))
    rows = run(["GeodSolve", "-e", GRS80_A, GRS80_F, "-p", "9"],
               ["%.9f %.9f %.9f %.4f" % line for line in lines])
    out = ["# lat1 lon1_west azimuth1 distance lat2 lon2_west azimuth2 (azimuth2 forward at the second point)"]
    for (lat1, lon1, azimuth1, distance), r in zip(lines, rows):
        lat2, lon2, azimuth2 = float(r[0]), float(r[1]), float(r[2])
        out.append("%.9f %.9f %.9f %.4f %.14f %.14f %.12f" % (
            lat1, west(lon1), azimuth1 % 360.0, distance, lat2, west(lon2), azimuth2 % 360.0))
    # The inverse is checked on these same end points: GeodSolve -i gives back the same line.
    check = run(["GeodSolve", "-i", "-e", GRS80_A, GRS80_F, "-p", "9"],
                ["%.9f %.9f %s %s" % (l[0], l[1], r[0], r[1]) for l, r in zip(lines, rows)])
    worst = max(abs(float(c[2]) - l[3]) for c, l in zip(check, lines))
    print("GeodSolve inverse of its own direct lines: %.3g m" % worst)
    return out


def mgrs_vectors(rng):
    out = ["# zone east north lat mgrs (whole-metre UTM positions, northern hemisphere)"]
    requests = []
    for i in range(300):
        zone = 1 + i % 60
        lat = rng.uniform(0.2, 79.8)
        lon = -183.0 + 6.0 * zone + rng.uniform(-2.9, 2.9)
        requests.append((zone, lat, lon))
    utm = run(["GeoConvert", "-u", "-p", "3"], ["%.9f %.9f" % (lat, lon) for _, lat, lon in requests])
    positions = []
    for (zone, _, _), r in zip(requests, utm):
        if r[0] != "%02dn" % zone and r[0] != "%dn" % zone:
            continue  # a Norway or Svalbard exception: another standard zone
        positions.append((zone, round(float(r[1])), round(float(r[2]))))
    inputs = ["%dn %d %d" % p for p in positions]
    mgrs = run(["GeoConvert", "-m", "-p", "0"], inputs)
    geographic = run(["GeoConvert", "-g", "-p", "9"], inputs)
    for (zone, east, north), m, g in zip(positions, mgrs, geographic):
        out.append("%02d %d %d %.12f %s" % (zone, east, north, float(g[0]), m[0]))
    return out


def write(folder, name, lines):
    path = os.path.join(folder, name)
    with open(path, "w", newline="\n", encoding="ascii") as handle:
        handle.write("\n".join(lines) + "\n")
    print("%s: %d lines" % (path, len(lines) - 1))


def main(argv):
    source = argv[1] if len(argv) > 1 else DEFAULT_CSV
    folder = argv[2] if len(argv) > 2 else DEFAULT_OUT
    os.makedirs(folder, exist_ok=True)
    with open(source, newline="", encoding="utf-8") as handle:
        rows = list(csv.DictReader(handle))
    rng = random.Random(20240611)
    write(folder, "spcs_vectors.txt", spcs_vectors(rows, rng))
    write(folder, "utm_vectors.txt", utm_vectors(rng))
    write(folder, "geodesic_vectors.txt", geodesic_vectors(rng))
    write(folder, "mgrs_vectors.txt", mgrs_vectors(rng))


if __name__ == "__main__":
    main(sys.argv)
