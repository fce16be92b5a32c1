#!/usr/bin/env python3
"""Writes Monument_Category.dat: the category of each marker code that data sheets use.

  column 1      the category letter
  column 2      blank
  column 3 on   the marker code, nothing behind it ("DB", "F", "57")

The program takes the first line whose text from column 3 on, trimmed, equals the marker code of
a "_MARKER:" line, and its letter becomes the mark's category; "L" marks a landmark. Nothing may
stand behind the code, so the meanings of the codes are kept here and in the manual, not in the
file. Categories:

  D  disk            R  rod             P  pipe          B  bolt, nail or spike
  C  cut, chiseled or drilled mark      M  monument, post or other mark
  O  see the description                L  landmark (tower, tank, spire, mast, stack and the like)

Two-digit codes other than 71 are landmarks. Sources: marker_codes.csv of the data folder (the
codes seen on real sheets), completed by the list below.
"""
import sys

from support_text import parse_args, read_table, write_lines

CATEGORIES = "DRPBCMOL"

# (code, category, marker text as the "_MARKER:" line writes it)
MARKERS = [
    ("DA", "D", "AZIMUTH MARK DISK"),
    ("DB", "D", "BENCH MARK DISK"),
    ("DD", "D", "SURVEY DISK"),
    ("DE", "D", "TRAVERSE STATION DISK"),
    ("DG", "D", "GRAVITY STATION DISK"),
    ("DH", "D", "HORIZONTAL CONTROL DISK"),
    ("DJ", "D", "TIDAL BENCH MARK DISK"),
    ("DM", "D", "MAGNETIC STATION DISK"),
    ("DR", "D", "REFERENCE MARK DISK"),
    ("DS", "D", "TRIANGULATION STATION DISK"),
    ("DT", "D", "TOPOGRAPHIC STATION DISK"),
    ("DV", "D", "VERTICAL CONTROL DISK"),
    ("F", "R", "FLANGE-ENCASED ROD"),
    ("I", "R", "METAL ROD"),
    ("S", "R", "STAINLESS STEEL ROD"),
    ("P", "P", "PIPE"),
    ("IP", "P", "IRON PIPE"),
    ("B", "B", "BOLT"),
    ("N", "B", "NAIL"),
    ("SP", "B", "SPIKE"),
    ("X", "C", "CHISELED CROSS"),
    ("SQ", "C", "CHISELED SQUARE"),
    ("H", "C", "DRILL HOLE"),
    ("A", "M", "CONCRETE POST"),
    ("T", "M", "STONE MONUMENT"),
    ("71", "M", "BOUNDARY MONUMENT"),
    ("Z", "O", "SEE DESCRIPTION"),
    ("40", "L", "AIRWAY BEACON"),
    ("41", "L", "ANTENNA"),
    ("42", "L", "CHIMNEY"),
    ("43", "L", "CUPOLA"),
    ("44", "L", "DOME"),
    ("45", "L", "FLAGPOLE"),
    ("46", "L", "GABLE"),
    ("47", "L", "LIGHTHOUSE"),
    ("48", "L", "LIGHT"),
    ("49", "L", "MICROWAVE MAST"),
    ("50", "L", "POLE"),
    ("51", "L", "RADIO TOWER"),
    ("52", "L", "STACK"),
    ("53", "L", "SPIRE"),
    ("54", "L", "STANDPIPE"),
    ("55", "L", "TANK"),
    ("56", "L", "TELEVISION TOWER"),
    ("57", "L", "LOOKOUT TOWER"),
    ("58", "L", "TOWER"),
    ("59", "L", "WATER TOWER"),
    ("60", "L", "WINDMILL"),
    ("61", "L", "GRAIN ELEVATOR"),
    ("62", "L", "SILO"),
]


def marker_text(code):
    return {c: text for c, _, text in MARKERS}[code]


def build(data_dir):
    codes = [code for code, _, _ in MARKERS]
    for row in read_table(data_dir, "marker_codes.csv"):
        if row["kind"] == "marker" and row["code"] not in codes:
            sys.exit("marker code %s of the source table has no category" % row["code"])
    lines = []
    for code, category, _ in MARKERS:
        landmark = len(code) == 2 and code.isdigit() and code != "71"
        if category not in CATEGORIES or (category == "L") != landmark or codes.count(code) > 1:
            sys.exit("bad category row for %s" % code)
        lines.append("%s %s" % (category, code))
    return lines


def main():
    args = parse_args(__doc__.splitlines()[0])
    print(write_lines(args.out, "Monument_Category.dat", build(args.data)))


if __name__ == "__main__":
    main()
