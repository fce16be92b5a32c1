#!/usr/bin/env python3
"""Writes Groups.dat: the groups that agencies (contributors) belong to.

  columns 1-6   the group's code, padded with blanks ("FED", "STATE")
  column  8 on  what the group is

"Contrib.dat" names the group of each agency in its columns 8-13; "Benchlog.ini" may name a
default group ("GROUP="). The program tests only that this file exists.
"""
from support_text import parse_args, write_lines

GROUPS = [
    ("FED", "FEDERAL AGENCY"),
    ("STATE", "STATE AGENCY"),
    ("COUNTY", "COUNTY AGENCY"),
    ("CITY", "CITY OR TOWN AGENCY"),
    ("UNIV", "UNIVERSITY OR COLLEGE"),
    ("UTIL", "UTILITY OR RAILROAD COMPANY"),
    ("PRIV", "PRIVATE SURVEYING OR ENGINEERING FIRM"),
    ("VOLUN", "VOLUNTEER ORGANIZATION OR PERSON"),
]


def build():
    return ["%-6s %s" % (code, text) for code, text in GROUPS]


def main():
    args = parse_args(__doc__.splitlines()[0])
    print(write_lines(args.out, "Groups.dat", build()))


if __name__ == "__main__":
    main()
