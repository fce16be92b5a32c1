#!/usr/bin/env python3
"""Writes the datasets of the export tests, beside this script.

fixture.dat: eighteen Descriptions taken whole from support/samples/sample.dat (adjusted, scaled
and hand-held positions; horizontal, vertical and both; a CORS; a mark with a posted height that is
in neither listing) and one made here with a name longer than 30 characters.
tx.dat: two Texas marks whose Texas South Central coordinates in feet have eight integer digits.
nopos.dat: a bench mark whose Description has no position line.

Made lines are put together from pieces at their 1-based columns, so each field's column can be
checked against the dataset layout. Lines end in CR LF.
"""
import os

HERE = os.path.dirname(os.path.abspath(__file__))
SAMPLE = os.path.join(HERE, "..", "..", "..", "..", "support", "samples", "sample.dat")
HEADER = "1        Orbis Control Office,   Retrieval Date = MARCH 4, 2024"

FROM_SAMPLE = [
    "FY3210", "FY3209", "EZ1203", "FY3301", "DH7190", "DH7198", "DL8724", "DH7203", "DH7204",
    "FY0871", "FY0875", "FY0881", "FY0895", "FY0896", "EZ0643", "FY3188", "EZ4420", "FX2201",
]


def sample_descriptions():
    """The Descriptions of the sample by PID: each its header line and the lines up to the next."""
    with open(SAMPLE, "rb") as f:
        lines = f.read().decode("latin-1").split("\r\n")
    blocks = []
    for line in lines:
        if line.startswith("1      "):
            blocks.append([line])
        elif blocks and line:
            blocks[-1].append(line)
    return {block[1][1:7]: block for block in blocks}


def line(pid, *pieces):
    cells = {}
    for column, text in pieces:
        for offset, char in enumerate(text):
            at = column + offset
            assert at >= 8 and at not in cells, (pid, column, text)
            cells[at] = char
    width = max(cells) if cells else 7
    return " " + pid + "".join(cells.get(c, " ") for c in range(8, width + 1))


def keyed(pid, key, value):
    """A keyed line: key at 10, hyphen at 22, value at 25."""
    return line(pid, (10, key), (22, "-"), (25, value))


def position(pid, tag, lat, lon, source):
    """Position line, standard layout: latitude at 25, hemisphere at 40, longitude at 46."""
    return line(pid, (8, "* NAD 83(" + tag + ")-"), (25, lat + "(N)"), (46, lon + "(W)"), (69, source))


def height(pid, metres, feet, source):
    return line(pid, (8, "* NAVD 88"), (22, "-"), (29, metres), (39, "(meters)"), (50, feet), (61, "(feet)"),
                (69, source))


def history(pid, date, condition, agency):
    return line(pid, (10, "HISTORY"), (22, "-"), (24, date), (33, condition), (50, agency))


def history_head(pid):
    return history(pid, "Date", "Condition", "Report By")


def names(pid, designation, state_county):
    return [line(pid, (9, "*" * 71)), keyed(pid, "DESIGNATION", designation), keyed(pid, "PID", pid),
            keyed(pid, "STATE/COUNTY", state_county), line(pid),
            line(pid, (33, "*CURRENT SURVEY CONTROL")), line(pid, (10, "_" * 70))]


def long_name_mark():
    p = "XA1001"
    return [HEADER] + names(p, "CHAPEL HILL WATER TREATMENT PLANT TANK 2", "NC/ORANGE") + [
        position(p, "2011", "35 55 12.34567", "079 01 23.45678", "ADJUSTED"),
        height(p, "152.345", "499.82", "ADJUSTED"),
        line(p, (10, "_" * 70)),
        line(p, (10, "ELLIP HEIGHT-"), (26, "122.100"), (40, "(meters)"), (58, "(05/01/12)"), (69, "GPS OBS")),
        line(p, (10, "GEOID HEIGHT-"), (26, "-30.300"), (40, "(meters)"), (69, "GEOID18")),
        line(p),
        keyed(p, "HORZ ORDER", "SECOND"),
        line(p, (10, "VERT ORDER"), (22, "-"), (25, "FIRST"), (35, "CLASS II")),
        line(p),
        line(p, (8, "_MARKER: DD = SURVEY DISK")),
        line(p, (8, "_SETTING: 7 = SET IN TOP OF CONCRETE MONUMENT")),
        line(p, (8, "_STABILITY: B = PROBABLY HOLD POSITION/ELEVATION WELL")),
        line(p, (8, "_SATELLITE: THE SITE LOCATION WAS REPORTED AS"), (54, "SUITABLE FOR")),
        line(p, (8, "+SATELLITE: SATELLITE OBSERVATIONS - May 01, 2012")),
        history_head(p),
        history(p, "19990315", "MONUMENTED", "NCGS"),
        history(p, "20150620", "GOOD", "NCGS"),
        line(p),
    ]


def texas_marks():
    scaled, adjusted = "XT2001", "XT2002"
    return [HEADER] + names(scaled, "SAN PEDRO SPRINGS", "TX/BEXAR") + [
        position(scaled, "1986", "29 26 10.     ", "098 30 05.     ", "SCALED"),
        height(scaled, "200.123", "656.57", "ADJUSTED"),
        line(scaled, (10, "VERT ORDER"), (22, "-"), (25, "FIRST"), (35, "CLASS II")),
        history_head(scaled),
        history(scaled, "1934", "MONUMENTED", "CCO"),
        history(scaled, "20120412", "GOOD", "TXDOT"),
    ] + [HEADER] + names(adjusted, "ALAMO PLAZA", "TX/BEXAR") + [
        position(adjusted, "2011", "29 25 32.12345", "098 29 10.54321", "ADJUSTED"),
        keyed(adjusted, "HORZ ORDER", "SECOND"),
        history_head(adjusted),
        history(adjusted, "1978", "MONUMENTED", "TXDOT"),
    ]


def no_position_mark():
    p = "XA1002"
    return [HEADER] + names(p, "NO POSITION BM", "NC/ORANGE") + [
        height(p, "100.123", "328.49", "ADJUSTED"),
        line(p, (10, "VERT ORDER"), (22, "-"), (25, "SECOND"), (35, "CLASS 0")),
        history_head(p),
        history(p, "1960", "MONUMENTED", "CCO"),
    ]


def write(name, lines):
    with open(os.path.join(HERE, name), "wb") as f:
        f.write(("\r\n".join(lines) + "\r\n").encode("latin-1"))


def main():
    sample = sample_descriptions()
    lines = []
    for pid in FROM_SAMPLE:
        lines += sample[pid]
    lines += long_name_mark()
    write("fixture.dat", lines)
    write("tx.dat", texas_marks())
    write("nopos.dat", no_position_mark())


if __name__ == "__main__":
    main()
