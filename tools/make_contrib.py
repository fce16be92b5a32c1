#!/usr/bin/env python3
"""Writes Contrib.dat: the contributors table that turns an agency's name into its code.

  columns 1-6   the agency's code, at most 6 characters ("OCO", "USPSQD"), padded with blanks
  columns 8-13  its group, a code of Groups.dat, padded with blanks
  column 15 on  its name as data sheets write it, in capitals

The program looks a name up whatever its letter case, so "adjusted by the Orbis Control Office"
finds "ORBIS CONTROL OFFICE". An agency may stand under several names. The table holds the
federal agencies and volunteer groups that recover marks, a geodetic survey and a department of
transportation for every state and territory, and the county, city and private agencies of the
sample dataset.

Source: us_states.csv of the data folder (state names); the rest is listed here.
"""
import sys

from make_groups import GROUPS
from support_text import ascii_upper, parse_args, read_table, write_lines

# (code, group, name as data sheets write it)
AGENCIES = [
    ("OCO", "FED", "ORBIS CONTROL OFFICE"),
    ("CCO", "FED", "US COASTAL CONTROL OFFICE"),
    ("CCO", "FED", "COASTAL CONTROL OFFICE"),
    ("USGS", "FED", "US GEOLOGICAL SURVEY"),
    ("USGS", "FED", "GEOLOGICAL SURVEY"),
    ("USACE", "FED", "US ARMY CORPS OF ENGINEERS"),
    ("USACE", "FED", "CORPS OF ENGINEERS"),
    ("BLM", "FED", "BUREAU OF LAND MANAGEMENT"),
    ("USBR", "FED", "BUREAU OF RECLAMATION"),
    ("USFS", "FED", "US FOREST SERVICE"),
    ("NPS", "FED", "NATIONAL PARK SERVICE"),
    ("TVA", "FED", "TENNESSEE VALLEY AUTHORITY"),
    ("FAA", "FED", "FEDERAL AVIATION ADMINISTRATION"),
    ("FEMA", "FED", "FEDERAL EMERGENCY MANAGEMENT AGENCY"),
    ("USIBWC", "FED", "INTERNATIONAL BOUNDARY AND WATER COMMISSION"),
    ("USPSQD", "VOLUN", "US POWER SQUADRON"),
    ("USPSQD", "VOLUN", "UNITED STATES POWER SQUADRONS"),
    ("GEOCAC", "VOLUN", "GEOCACHING"),
    # State agencies of the sample region that stand under an older name.
    ("NCSHC", "STATE", "NORTH CAROLINA STATE HIGHWAY COMMISSION"),
    ("NCFS", "STATE", "NORTH CAROLINA FOREST SERVICE"),
    # County, city, university and private agencies of the sample dataset.
    ("ORCOLR", "COUNTY", "ORANGE COUNTY LAND RECORDS"),
    ("DURCO", "COUNTY", "DURHAM COUNTY ENGINEERING"),
    ("CTYDUR", "CITY", "CITY OF DURHAM"),
    ("TCHILL", "CITY", "TOWN OF CHAPEL HILL"),
    ("UNC", "UNIV", "UNIVERSITY OF NORTH CAROLINA"),
    ("NSRR", "UTIL", "NORFOLK SOUTHERN RAILWAY"),
    ("PIEDLS", "PRIV", "PIEDMONT LAND SURVEYING"),
    ("ENOENG", "PRIV", "ENO RIVER ENGINEERING"),
]


def build(data_dir):
    rows = list(AGENCIES)
    for state in read_table(data_dir, "us_states.csv"):
        name = ascii_upper(state["state_name"])
        rows.append((state["state"] + "GS", "STATE", name + " GEODETIC SURVEY"))
        rows.append((state["state"] + "DOT", "STATE", name + " DEPARTMENT OF TRANSPORTATION"))
    groups = {code for code, _ in GROUPS}
    seen = set()
    lines = []
    for code, group, name in rows:
        if len(code) > 6 or group not in groups or name in seen or name != name.upper():
            sys.exit("bad contributor row %r" % ((code, group, name),))
        seen.add(name)
        lines.append("%-6s %-6s %s" % (code, group, name))
    return lines


def main():
    args = parse_args(__doc__.splitlines()[0])
    print(write_lines(args.out, "Contrib.dat", build(args.data)))


if __name__ == "__main__":
    main()
