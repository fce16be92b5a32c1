#!/usr/bin/env python3
"""Writes Ellipsoid.dat: the reference ellipsoids that datums are defined on.

  columns 1-12   the ellipsoid's short name, as "Horizontal_Datum.dat" names it ("GRS 80")
  columns 14-27  the semi-major axis a in metres, three decimals
  columns 29-43  the inverse flattening 1/f, nine decimals
  column 45 on   the full name

The program tests only that this file exists; the ellipsoid it computes with is the one of
"Benchlog.ini" ("ELLIPSOID A=", "ELLIPSOID E2="), GRS 80 for NAD 83.
"""
from support_text import parse_args, write_lines

# (short name, a in metres, 1/f, full name)
ELLIPSOIDS = [
    ("GRS 80", 6378137.0, 298.257222101, "GEODETIC REFERENCE SYSTEM 1980"),
    ("WGS 84", 6378137.0, 298.257223563, "WORLD GEODETIC SYSTEM 1984"),
    ("WGS 72", 6378135.0, 298.26, "WORLD GEODETIC SYSTEM 1972"),
    ("GRS 67", 6378160.0, 298.247167427, "GEODETIC REFERENCE SYSTEM 1967"),
    ("CLARKE 1866", 6378206.4, 294.978698214, "CLARKE 1866 (NAD 27, OLD HAWAIIAN, PUERTO RICO)"),
    ("CLARKE 1880", 6378249.145, 293.465, "CLARKE 1880 (RGS)"),
    ("INTL 1924", 6378388.0, 297.0, "INTERNATIONAL 1924 (HAYFORD)"),
    ("BESSEL 1841", 6377397.155, 299.1528128, "BESSEL 1841"),
    ("AIRY 1830", 6377563.396, 299.3249646, "AIRY 1830"),
    ("KRASS 1940", 6378245.0, 298.3, "KRASSOVSKY 1940"),
]


def build():
    return ["%-12s %14.3f %15.9f %s" % row for row in ELLIPSOIDS]


def main():
    args = parse_args(__doc__.splitlines()[0])
    print(write_lines(args.out, "Ellipsoid.dat", build()))


if __name__ == "__main__":
    main()
