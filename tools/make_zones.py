#!/usr/bin/env python3
"""Writes support/Zones.txt, the zone table of the NAD 83 state plane zones, from a CSV of the zones'
defining constants (GRS 80 throughout).

    tools/make_zones.py [zones.csv] [Zones.txt]

One zone a line, 226 columns, CR LF line ends. Columns common to every kind:
    1-5 zone key (state and short name, "MD   ", "TX SC"), 7-10 zone number, 12-17 central meridian
    "DDD:MM" (positive west), 221-223 foot unit ("sFT", "iFT" or blanks), 225-226 kind.
LC (Lambert conformal conic): 19-30 false easting, 32-43 false northing, 45-49 and 51-55 the
    standard parallels "DD:MM", 57-61 latitude of the grid origin.
TM (transverse Mercator): 19-30 scale denominator D (k0 = (D - 1) / D), 32-44 false northing,
    46-58 meridional arc S0 at the latitude of origin (the program's own series, at central
    scale), 60-71 false easting, 93-97 latitude of origin "DD:MM", 101-106 central meridian.
OM (oblique Mercator, Alaska zone 1): 19-32 B, 34-47 C, 49-61 A, 63-77 SinG, 79-92 CosG,
    94-107 K0, 123-135 NB, 137-148 EB, 150-167 Rot, derived for the program's formulas with the
    natural origin at the routine's literal longitude 101.51383956 degrees west (checked here).
Standard library only.
"""
import csv
import math
import os
import sys
from fractions import Fraction

# GRS 80.
A_AXIS = 6378137.0
FLATTENING = 1 / 298.257222101
E2 = FLATTENING * (2 - FLATTENING)

# The program's pi and its meridional-arc series (rectifying radius of GRS 80).
PI = 3.14159265358979
RECTIFYING_RADIUS = 6367449.14577
OBLIQUE_ORIGIN_LONGITUDE_WEST = 101.51383956

LINE_LENGTH = 226
HERE = os.path.dirname(os.path.abspath(__file__))
DEFAULT_CSV = os.path.join(HERE, "..", "..", "shared", "data", "spcs83_zones.csv")  # shared/ beside the repository
DEFAULT_OUT = os.path.join(HERE, "..", "support", "Zones.txt")


def rad(degrees):
    return degrees * PI / 180.0


def dms_minutes(text):
    """Signed degrees and whole minutes of a "DDD MM SS" text; the table holds whole minutes only."""
    sign = -1 if text.strip().startswith("-") else 1
    parts = text.strip().lstrip("-").split()
    degrees, minutes = int(parts[0]), int(parts[1])
    seconds = float(parts[2]) if len(parts) > 2 else 0.0
    if seconds != 0.0:
        raise ValueError("angle with seconds does not fit the table: " + text)
    return sign, degrees, minutes


def latitude_field(text):
    sign, degrees, minutes = dms_minutes(text)
    if sign < 0:
        raise ValueError("southern latitude: " + text)
    return "%02d:%02d" % (degrees, minutes)


def meridian_field(text):
    """East-negative "DDD MM" to the program's positive-west "DDD:MM"."""
    sign, degrees, minutes = dms_minutes(text)
    if sign > 0:
        raise ValueError("eastern longitude: " + text)
    return "%03d:%02d" % (degrees, minutes)


def degrees_of(text):
    sign, degrees, minutes = dms_minutes(text)
    return sign * (degrees + minutes / 60.0)


def scale_denominator(row):
    """D of k0 = (D - 1) / D from the exact scale "1-1/D"; a scale of exactly 1 gets 1E+16, whose
    quotient (D - 1) / D is 1 in double precision."""
    exact = row["scale_factor_exact"].strip()
    if not exact:
        if float(row["scale_factor"]) != 1.0:
            raise ValueError("zone %s has no exact scale" % row["zone_number"])
        return "1E+16", 1.0
    if not exact.startswith("1-1/"):
        raise ValueError("unexpected scale " + exact)
    denominator = int(exact[4:])
    return "%.4f" % denominator, (denominator - 1.0) / denominator


def arc_angle(phi):
    """The program's meridional-arc series: omega, with the arc omega k0 RECTIFYING_RADIUS."""
    c2 = math.cos(phi) ** 2
    c4, c6 = c2 * c2, c2 * c2 * c2
    return phi + math.sin(phi) * math.cos(phi) * (
        -0.005048250776 + 2.1259204e-05 * c2 - 1.11423e-07 * c4 + 6.26e-10 * c6)


class Line:
    """A blank line of LINE_LENGTH columns filled by 1-based column ranges."""

    def __init__(self):
        self.chars = [" "] * LINE_LENGTH

    def put(self, first, last, text, right=True):
        width = last - first + 1
        if len(text) > width:
            raise ValueError("%r does not fit columns %d-%d" % (text, first, last))
        text = text.rjust(width) if right else text.ljust(width)
        self.chars[first - 1:last] = list(text)

    def text(self):
        return "".join(self.chars)


def common(row, kind):
    line = Line()
    key = row["zone_abbrev"]
    if len(key) > 5:
        raise ValueError("zone key longer than 5: " + key)
    line.put(1, 5, key, right=False)
    line.put(7, 10, row["zone_number"])
    unit = row["foot_unit"]
    line.put(221, 223, unit if unit in ("sFT", "iFT") else "")
    line.put(225, 226, kind)
    return line


def lambert_line(row):
    line = common(row, "LC")
    line.put(12, 17, meridian_field(row["central_meridian_dms"]))
    line.put(19, 30, "%.4f" % float(row["false_easting_m"]))
    line.put(32, 43, "%.4f" % float(row["false_northing_m"]))
    line.put(45, 49, latitude_field(row["std_parallel_1_dms"]))
    line.put(51, 55, latitude_field(row["std_parallel_2_dms"]))
    line.put(57, 61, latitude_field(row["lat_origin_dms"]))
    return line.text()


def tm_line(row):
    line = common(row, "TM")
    origin_dms = row["lat_origin_dms"] or "%d 00 00" % int(float(row["lat_origin_deg"]))
    meridian_dms = row["central_meridian_dms"] or "%d 00 00" % int(float(row["central_meridian_deg"]))
    meridian = meridian_field(meridian_dms)
    denominator_text, k0 = scale_denominator(row)
    arc_at_origin = arc_angle(rad(degrees_of(origin_dms))) * k0 * RECTIFYING_RADIUS
    line.put(12, 17, meridian)
    line.put(19, 30, denominator_text)
    line.put(32, 44, "%.4f" % float(row["false_northing_m"]))
    line.put(46, 58, "%.5f" % arc_at_origin)
    line.put(60, 71, "%.4f" % float(row["false_easting_m"]))
    line.put(93, 97, latitude_field(origin_dms))
    line.put(101, 106, meridian)
    return line.text()


def oblique_constants(row):
    """Hotine oblique Mercator (natural origin) in the form of the program's formulas:
    P = B psi + C, u = A atan(...), v = A/2 ln(...), k = w K0 cos(u/A) / (cos L cos phi)."""
    e = math.sqrt(E2)
    phic = math.radians(degrees_of(row["lat_origin_dms"]))
    lonc = math.radians(degrees_of(row["central_meridian_dms"]))  # east positive here
    # The axis azimuth has the tangent -3/4; the published 323 07 48.3685 is that, rounded.
    sin_alpha, cos_alpha = -0.6, 0.8
    if abs(math.degrees(math.atan2(sin_alpha, cos_alpha)) % 360 - float(row["azimuth_deg"])) > 1e-7:
        raise ValueError("axis azimuth does not have the tangent -3/4")
    kc = float(row["scale_factor"])
    sin_c = math.sin(phic)
    w2 = 1 - E2 * sin_c ** 2
    b = math.sqrt(1 + E2 * math.cos(phic) ** 4 / (1 - E2))
    a_std = A_AXIS * b * kc * math.sqrt(1 - E2) / w2
    t0 = math.tan(math.pi / 4 - phic / 2) / ((1 - e * sin_c) / (1 + e * sin_c)) ** (e / 2)
    d = b * math.sqrt(1 - E2) / (math.cos(phic) * math.sqrt(w2))
    f = d + math.sqrt(max(d * d - 1, 0.0))
    h = f * t0 ** b
    g = (f - 1 / f) / 2
    gamma0 = math.asin(sin_alpha / d)
    lon0 = lonc - math.asin(g * math.tan(gamma0)) / b
    implied_west = -math.degrees(lon0)
    if round(implied_west, 8) != OBLIQUE_ORIGIN_LONGITUDE_WEST:
        raise ValueError("natural origin at %.10f W, not the routine's %.8f W"
                         % (implied_west, OBLIQUE_ORIGIN_LONGITUDE_WEST))
    return {
        "B": b, "C": math.log(h), "A": a_std / b,
        "SinG": math.sin(gamma0), "CosG": math.cos(gamma0), "K0": a_std / A_AXIS,
        "NB": float(row["false_northing_m"]), "EB": float(row["false_easting_m"]),
        "Rot": math.atan2(sin_alpha, cos_alpha),  # the rectified grid turns by the axis azimuth
        "implied_west": implied_west,
    }


def fixed(value, width):
    """The value with as many decimals as fit in `width` columns."""
    for decimals in range(15, -1, -1):
        text = "%.*f" % (decimals, value)
        if len(text) <= width:
            return text
    raise ValueError("%r does not fit %d columns" % (value, width))


def oblique_line(row):
    k = oblique_constants(row)
    line = common(row, "OM")
    line.put(12, 17, meridian_field(row["central_meridian_dms"]))
    fields = [(19, 32, "B"), (34, 47, "C"), (49, 61, "A"), (63, 77, "SinG"), (79, 92, "CosG"),
              (94, 107, "K0"), (123, 135, "NB"), (137, 148, "EB"), (150, 167, "Rot")]
    for first, last, name in fields:
        line.put(first, last, fixed(k[name], last - first + 1))
    return line.text(), k["implied_west"]


def main(argv):
    source = argv[1] if len(argv) > 1 else DEFAULT_CSV
    target = argv[2] if len(argv) > 2 else DEFAULT_OUT
    lines = []
    with open(source, newline="", encoding="utf-8") as handle:
        for row in csv.DictReader(handle):
            method = row["method"]
            if method == "LCC2SP":
                lines.append(lambert_line(row))
            elif method == "TM":
                lines.append(tm_line(row))
            elif method == "HOM_A":
                text, west = oblique_line(row)
                lines.append(text)
                print("oblique zone %s: natural origin %.10f W" % (row["zone_number"], west))
            else:
                raise ValueError("unknown projection " + method)
    keys = [line[:5] for line in lines]
    if len(set(keys)) != len(keys):
        raise ValueError("duplicate zone keys")
    with open(target, "w", newline="", encoding="ascii") as out:
        for line in lines:
            assert len(line) == LINE_LENGTH
            out.write(line + "\r\n")
    print("%d zones written to %s" % (len(lines), target))


if __name__ == "__main__":
    main(sys.argv)
