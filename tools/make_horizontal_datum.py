#!/usr/bin/env python3
"""Writes Horizontal_Datum.dat: the horizontal datums and realizations that data sheets name.

  columns 1-18   the datum as position lines write it ("NAD 83(2011)", "NAD 83(NSRS2007)")
  columns 20-31  its ellipsoid, a short name of "Ellipsoid.dat"
  column 33 on   what it is

The program tests only that this file exists.
"""
import sys

from make_ellipsoid import ELLIPSOIDS
from support_text import parse_args, write_lines

STATE_HARNS = "1990 1991 1992 1993 1994 1995 1996 1997 1998 1999 2001".split()

DATUMS = (
    [("NAD 83(1986)", "GRS 80", "NORTH AMERICAN DATUM OF 1983, ORIGINAL ADJUSTMENT")]
    + [("NAD 83(%s)" % year, "GRS 80", "NAD 83 HIGH ACCURACY REFERENCE NETWORK (HARN) REALIZATION OF %s" % year)
       for year in STATE_HARNS]
    + [
        ("NAD 83(CORS96)", "GRS 80", "NAD 83 REALIZATION OF THE CORS NETWORK, 1996"),
        ("NAD 83(NSRS2007)", "GRS 80", "NAD 83 NATIONAL READJUSTMENT OF 2007"),
        ("NAD 83(2011)", "GRS 80", "NAD 83 NATIONAL ADJUSTMENT OF 2011, NORTH AMERICAN PLATE"),
        ("NAD 83(PA11)", "GRS 80", "NAD 83 ADJUSTMENT OF 2011, PACIFIC PLATE"),
        ("NAD 83(MA11)", "GRS 80", "NAD 83 ADJUSTMENT OF 2011, MARIANA PLATE"),
        ("NAD 27", "CLARKE 1866", "NORTH AMERICAN DATUM OF 1927"),
        ("OLD HAWAIIAN", "CLARKE 1866", "OLD HAWAIIAN DATUM"),
        ("PUERTO RICO", "CLARKE 1866", "PUERTO RICO DATUM OF 1940"),
        ("GUAM 1963", "CLARKE 1866", "GUAM DATUM OF 1963"),
        ("AMER SAMOA 1962", "CLARKE 1866", "AMERICAN SAMOA DATUM OF 1962"),
        ("WGS 84", "WGS 84", "WORLD GEODETIC SYSTEM 1984"),
        ("ITRF2008", "GRS 80", "INTERNATIONAL TERRESTRIAL REFERENCE FRAME 2008"),
        ("ITRF2014", "GRS 80", "INTERNATIONAL TERRESTRIAL REFERENCE FRAME 2014"),
    ]
)


def build():
    ellipsoids = {row[0] for row in ELLIPSOIDS}
    lines = []
    for datum, ellipsoid, text in DATUMS:
        if len(datum) > 18 or ellipsoid not in ellipsoids:
            sys.exit("bad datum row %s" % datum)
        lines.append("%-18s %-12s %s" % (datum, ellipsoid, text))
    return lines


def main():
    args = parse_args(__doc__.splitlines()[0])
    print(write_lines(args.out, "Horizontal_Datum.dat", build()))


if __name__ == "__main__":
    main()
