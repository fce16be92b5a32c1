#!/usr/bin/env python3
"""Writes Country.dat: the states, territories and counties that the county command offers.

  RA  US UNITED STATES          a country; code in columns 5-6
  RB  NC NORTH CAROLINA         a state or territory; code in 5-6, the list text from 5 on
  RC  135 ORANGE                a county or county equivalent; FIPS code in 5-7, name from 9 on

States are sorted by code, the counties of a state by name. County names are in capitals, without
accents, and without the words "County", "Parish" and "Municipio", as data sheets write them
("NC/ORANGE", "LA/ORLEANS", "PR/ANASCO"); other kinds keep their word ("PETERSBURG BOROUGH",
"RICHMOND CITY"). Retired counties that data sheets still name (the eight old counties of
Connecticut, for instance) are kept beside their successors, and a county whose 2010 spelling
differs ("LA SALLE" beside "LASALLE") has a line for each spelling.

Sources: us_states.csv and us_counties.csv of the data folder.
"""
import re
import sys

from support_text import ascii_upper, parse_args, read_table, write_lines

GENERIC_WORDS = re.compile(r" (County|Parish|Municipio)$")


def county_name(census_name):
    return ascii_upper(GENERIC_WORDS.sub("", census_name.strip()))


def build(data_dir):
    states = read_table(data_dir, "us_states.csv")
    counties = read_table(data_dir, "us_counties.csv")
    names_of = {}
    for row in counties:
        entries = names_of.setdefault(row["state"], set())
        fips = row["county_fips"]
        entries.add((county_name(row["county_name"]), fips))
        if row["name_2010"]:
            entries.add((county_name(row["name_2010"]), fips))
    lines = ["RA  US UNITED STATES"]
    for state in sorted(states, key=lambda s: s["state"]):
        code = state["state"]
        lines.append("RB  %s %s" % (code, ascii_upper(state["state_name"])))
        entries = sorted(names_of.get(code, ()))
        if not entries:
            sys.exit("no counties for state %s" % code)
        seen = set()
        for name, fips in entries:
            if name in seen:
                sys.exit("county name %s stands twice in %s" % (name, code))
            seen.add(name)
            if not re.fullmatch(r"\d{3}", fips) or int(fips) == 0:
                sys.exit("bad FIPS code %r in %s" % (fips, code))
            lines.append("RC  %s %s" % (fips, name))
    return lines


def main():
    args = parse_args(__doc__.splitlines()[0])
    path = write_lines(args.out, "Country.dat", build(args.data))
    print(path)


if __name__ == "__main__":
    main()
