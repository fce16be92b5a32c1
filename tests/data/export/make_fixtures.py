#!/usr/bin/env python3
"""Writes descriptions.dat, the Descriptions the parser tests read.

Every data line is put together from pieces placed at their 1-based columns, so a reviewer can
check each field's column against the dataset layout: ' ' in column 1, the PID in 2-7, the line
mark in 8. Lines end in CR LF. Run from any folder; the file is written beside this script.
"""
import os

HEADER = "1        Orbis Control Office,   Retrieval Date = MARCH 4, 2024"


def line(pid, *pieces):
    """A data line of `pid` with (column, text) pieces; pieces must not overlap."""
    cells = {}
    for column, text in pieces:
        for offset, char in enumerate(text):
            at = column + offset
            assert at >= 8, (pid, column, text)
            assert at not in cells, ("overlap", pid, column, text)
            cells[at] = char
    width = max(cells) if cells else 7
    return " " + pid + "".join(cells.get(c, " ") for c in range(8, width + 1))


def blank(pid):
    return " " + pid


def text(pid, body=""):
    """A descriptive text line: "'" in column 8, the text from column 9."""
    return line(pid, (8, "'"), (9, body)) if body else line(pid, (8, "'"))


def history(pid, date, condition, agency):
    return line(pid, (10, "HISTORY"), (22, "-"), (24, date), (33, condition), (50, agency))


def history_head(pid):
    return line(pid, (10, "HISTORY"), (22, "-"), (24, "Date"), (33, "Condition"), (50, "Report By"))


def rule(pid):
    return line(pid, (8, "|"), (9, "-" * 69), (78, "|"))


def box_head(pid):
    return [rule(pid),
            line(pid, (8, "| PID"), (17, "Reference Object"), (54, "Distance"), (68, "Geod. Az  |")),
            line(pid, (8, "|"), (68, "dddmmss.s |"))]


def box_row(pid, mark_pid, name, distance, azimuth, approx=None):
    """A box score row; `approx` is the kilometre text at column 60 of an approximate distance."""
    pieces = [(8, "|"), (17, name), (68, azimuth), (78, "|")]
    if mark_pid:
        pieces.append((10, mark_pid))
    if approx is not None:
        pieces += [(53, "APPROX."), (60, approx), (65, "KM")]
    elif distance:
        pieces += [(52, distance), (61, "METERS")]
    return line(pid, *pieces)


def aa1001():
    """Adjusted triangulation station and bench mark, short datum tag layout."""
    p = "AA1001"
    lines = [
        line(p, (8, " " + "*" * 71)),
        line(p, (10, "FBN"), (22, "-"), (24, "This is a Federal Base Network Control Station.")),
        line(p, (10, "CBN"), (22, "-"), (24, "This is a Cooperative Base Network Control Station.")),
        line(p, (10, "TIDAL BM"), (22, "-"), (24, "This is a Tidal Bench Mark.")),
        line(p, (10, "HT_MOD"), (22, "-"), (24, "This is a Height Modernization Survey Station.")),
        line(p, (10, "PACS"), (22, "-"), (24, "This is a Primary Airport Control Station.")),
        line(p, (10, "SACS"), (22, "-"), (24, "This is a Secondary Airport Control Station.")),
        line(p, (10, "FAULT MON"), (22, "-"), (24, "This is a Fault Monitoring Station.")),
        line(p, (10, "DESIGNATION -  "), (25, "HILLTOP TRIANGULATION STATION NUMBER TWO REDUX")),
        line(p, (10, "PID         -  "), (25, p)),
        line(p, (10, "STATE/COUNTY-  "), (25, "NC/ORANGE")),
        line(p, (10, "USGS QUAD   -  "), (25, "HILLSBOROUGH (2019)")),
        blank(p),
        line(p, (33, "*CURRENT SURVEY CONTROL")),
        line(p, (10, "_" * 70)),
        line(p, (8, "* NAD 83(1986)"), (22, "-"), (25, "36 03 42.56888"), (39, "(N)"),
             (46, "079 07 18.55999"), (61, "(W)"), (69, "ADJUSTED")),
        line(p, (8, "* NGVD 29"), (22, "-"), (29, "  261.95"), (39, "(meters)"), (50, "859.4"), (61, "(feet)"),
             (69, "VERT ANG")),
        line(p, (8, "* NAVD 88"), (22, "-"), (29, " 262.012"), (39, "(meters)"), (50, "859.62"), (61, "(feet)"),
             (69, "ADJUSTED")),
        line(p, (10, "EPOCH DATE  -"), (31, "2010.0000")),
        line(p, (10, "X           -"), (25, "    923,465.218"), (40, "(meters)"), (69, "COMP")),
        line(p, (10, "LAPLACE CORR-"), (33, "-3.40"), (40, "(seconds)"), (69, "DEFLEC18")),
        line(p, (10, "ELLIP HEIGHT-"), (33, "-30.12"), (40, "(meters)"), (58, "(06/??/02)"), (69, "GPS OBS")),
        line(p, (10, "GEOID HEIGHT-"), (32, "-30.482"), (40, "(meters)"), (69, "GEOID12B")),
        line(p, (10, "DYNAMIC HT  -"), (32, "262.009"), (40, "(meters)"), (50, "859.61"), (61, "(feet)"),
             (69, "COMP")),
        line(p, (10, "MODELED GRAV-"), (28, "979,779.6"), (40, "(mgal)"), (69, "NAVD 88")),
        blank(p),
        line(p, (10, "FGDC Geodetic Horizontal Accuracy Table")),
        line(p, (10, "LOCAL   AVERAGE"), (59, "1.25"), (66, "1.40"), (73, "2.10")),
        line(p, (10, "LOCAL   MAXIMUM"), (59, "9.99"), (66, "9.99"), (73, "9.99")),
        blank(p),
        line(p, (10, "HORZ ORDER  -  "), (25, "FIRST")),
        line(p, (10, "NETWORK"), (19, "AA1001 HILLTOP"), (59, "0.80"), (66, "0.75"), (73, "1.90")),
        line(p, (10, "VERT ORDER  -  "), (25, "FIRST"), (35, "CLASS "), (41, "II")),
        line(p, (10, "ELLP ORDER  -  "), (25, "FOURTH"), (35, "CLASS "), (41, "I")),
        blank(p),
        # Ends in a blank: the wrapped note goes on at column 9 of the next line.
        line(p, (8, ".The horizontal coordinates were established by GPS and adjusted by the ")),
        line(p, (8, ".Orbis Control Office in February 1997.")),
        line(p, (8, ".No horizontal observational check was made.")),
        line(p, (8, ".This is a SPECIAL STATUS position. See SPECIAL STATUS under the")),
        line(p, (8, ".The orthometric height was determined by leveling and adjusted by the Orbis "
                    "Control Office in June 1991.")),
        line(p, (8, ".No vertical observational check was made.")),
        line(p, (8, ".The Laplace correction was computed from DEFLEC18 derived deflections.")),
        line(p, (8, ".The ellipsoidal height is referenced to NAD 83 (2011) by GPS.")),
        blank(p),
        line(p, (8, ";"), (29, "North"), (43, "East"), (51, "Units Scale Factor Converg.")),
        line(p, (8, ";SPC NC"), (22, "-"), (26, "256,467.249"), (40, "598,626.165"), (54, "MT")),
        line(p, (8, ";SPC NC"), (22, "-"), (26, "841,426.30"), (39, "1,963,992.67"), (54, "sFT")),
        line(p, (8, ";SPC VA S"), (22, "-"), (26, "111,111.111"), (40, "222,222.222"), (54, "MT")),
        line(p, (8, ";SPC SC"), (22, "-"), (26, "333,333.333"), (40, "444,444.444"), (54, "MT")),
        line(p, (8, ";SPC TN"), (22, "-"), (26, "555,555.555"), (40, "666,666.666"), (54, "MT")),
        line(p, (8, ";SPC GA E"), (22, "-"), (26, "777,777.777"), (40, "888,888.888"), (54, "MT")),
        line(p, (8, ";SPC KY S"), (22, "-"), (26, "999,999.999"), (40, "121,212.121"), (54, "MT")),
        line(p, (8, ";UTM  17"), (22, "-"), (24, "3,992,438.114"), (40, "669,152.857"), (54, "MT")),
        blank(p),
        line(p, (8, ":"), (25, "Primary Azimuth Mark"), (66, "Grid Az")),
        line(p, (8, ":SPC NC"), (22, "-"), (25, "HILLTOP RM 3 AZIMUTH"), (66, "147 08 29.7")),
        line(p, (8, ":UTM  17"), (22, "-"), (25, "HILLTOP RM 3 AZIMUTH"), (66, "145 57 55.5")),
        blank(p),
        *box_head(p),
        box_row(p, "AA1005", "HILLTOP RM 3 AZIMUTH", "", "1470416.6"),
        box_row(p, "AA1002", "HILLTOP RM 1", "  22.140", "04152"),
        box_row(p, "", "HILLTOP LOOKOUT TOWER", "   6.280", "0765247.2"),
        box_row(p, "AA1009", "CHAPEL HILL UNIV OF NC TANK", "", "1604006.7", approx="18.0"),
        rule(p),
        blank(p),
        line(p, (34, "SUPERSEDED SURVEY CONTROL")),
        blank(p),
        line(p, (10, "NAD 83(1993)-  36 03 42.57178(N)    079 07 18.56879(W) AD(       ) 1")),
        line(p, (10, "NAVD 88 (06/15/91)   262.0   (m)"), (69, "ADJ UNCH")),
        line(p, (8, "_U.S. NATIONAL GRID SPATIAL ADDRESS: 17SPV6915292438(NAD 83)")),
        line(p, (8, "_MARKER: DB = BENCH MARK DISK")),
        line(p, (8, "_SETTING: 7 = SET IN TOP OF CONCRETE MONUMENT")),
        line(p, (8, "_SP_SET: CONCRETE POST")),
        line(p, (8, "_STAMPING: HILLTOP 1933")),
        line(p, (8, "_PROJECTION: PROJECTING 23 CENTIMETERS")),
        line(p, (8, "_MARK LOGO: CCO")),
        line(p, (8, "_MAGNETIC: N = NO MAGNETIC MATERIAL")),
        line(p, (8, "_STABILITY: C = MAY HOLD, BUT OF TYPE COMMONLY SUBJECT TO")),
        line(p, (8, "+STABILITY: SURFACE MOTION")),
        line(p, (8, "_SATELLITE: THE SITE LOCATION WAS REPORTED AS SUITABLE FOR")),
        line(p, (8, "+SATELLITE: SATELLITE OBSERVATIONS - 20050312")),
        history_head(p),
        history(p, "1933", "MONUMENTED", "CCO"),
        history(p, "1954", "GOOD", "CCO"),
        history(p, "1961", "GOOD", "NCGS"),
        history(p, "1985", "POOR", "USPSQD"),
        history(p, "20040612", "DESTROYED", "USPSQD"),
        blank(p),
        line(p, (34, "STATION DESCRIPTION")),
        blank(p),
        text(p, "DESCRIBED BY COASTAL CONTROL OFFICE 1933 (RDH)"),
        text(p, "ABOUT 1-1/2 MILES SOUTHWEST OF HILLSBORO."),
        text(p),
        text(p, "  ON THE HIGHEST PART.  "),
        blank(p),
        line(p, (34, "STATION RECOVERY (1954)")),
        blank(p),
        text(p, "RECOVERY NOTE BY COASTAL CONTROL OFFICE 1954 (ELJ)"),
        text(p, "RECOVERED IN GOOD CONDITION."),
        text(p, "RECOVERY NOTE BY NORTH CAROLINA GEODETIC SURVEY 1961 (WCF)"),
        text(p, "RECOVERY NOTE BY US POWER SQUADRON 1985 (WKB)"),
        text(p, "RECOVERY NOTE BY US POWER SQUADRON 2004 (ABC)"),
        text(p, "DESTROYED."),
    ]
    return [HEADER] + lines


def aa2002():
    """CORS with the long datum tag layout, VLBI, antenna reference point, local tidal height."""
    p = "AA2002"
    lines = [
        line(p, (10, "CORS"), (22, "-"), (24, "This is a Continuously Operating Reference Station.")),
        line(p, (10, "DESIGNATION -  "), (25, "CHAPEL HILL CORS ARP")),
        line(p, (10, "CORS_ID     -  "), (25, "NCCH")),
        line(p, (10, "PID         -  "), (25, p)),
        line(p, (10, "STATE/COUNTY-  "), (25, "NC/ORANGE COUNTY WITH A VERY LONG NAME")),
        line(p, (10, "USGS QUAD   -  "), (25, "CHAPEL HILL")),
        line(p, (8, "* NAD 83(NSRS2007)"), (26, "-"), (29, "35 54 31.27711"), (43, "(N)"),
             (47, "079 03 05.35271"), (62, "(W)"), (69, "ADJUSTED")),
        line(p, (8, "* NAVD 88"), (22, "-"), (29, " 137.714"), (39, "(meters)"), (69, "ADJUSTED")),
        line(p, (8, "* LOCAL TIDAL"), (26, "-"), (33, "   3.456"), (69, "SCALED")),
        line(p, (10, "EPOCH DATE  -"), (31, "2002.00"),),
        line(p, (10, "LAPLACE CORR "), (33, "-1.11"), (40, "(seconds)")),
        line(p, (10, "ELLIP HEIGHT-"), (32, "100.578"), (40, "(meters)"), (58, "(04/15/08)"), (69, "GPS OBS")),
        line(p, (10, "GEOID HEIGHT-"), (32, "-33.54"), (40, "(meters)"), (69, "EGM96")),
        line(p, (10, "NETWORK"), (19, "AA2002 CHAPEL HILL CORS ARP"), (59, "0.31"), (66, "0.27"), (73, "0.65")),
        line(p, (10, "HORZ ORDER  -  "), (25, "SPECIAL (CORS)")),
        line(p, (10, "VERT ORDER  -  "), (25, "SECOND"), (35, "CLASS "), (41, "0")),
        line(p, (10, "ELLP ORDER  -  "), (25, "FIRST"), (35, "CLASS "), (41, "II")),
        line(p, (8, ".The horizontal coordinates were established by VLBI observations and adjusted by "
                    "the US Geological Survey in 2002-03-04.")),
        # The agency stands at column 29 behind twenty characters of text.
        line(p, (8, "."), (9, "orthometric height:"), (29, "Orbis Control Office in June 1991, and adjusted.")),
        line(p, (8, ":UTM  17"), (22, "-"), (25, "NCCH RM 9"), (66, "100 00 00.0")),
        *box_head(p),
        box_row(p, "AA2003", "NCCH AZ MARK", "  51.002", "0102030.4"),
        box_row(p, "AA2004", "NCCH RM 1", "   9.870", "2101112.3"),
        rule(p),
        line(p, (8, "_MARKER: ZZ = SEE DESCRIPTION OF ANTENNA REFERENCE POINT")),
        line(p, (8, "_SETTING: 36 = STEEL MAST")),
        line(p, (8, "_SP_SET: STEEL MAST ON ROOF OF THE PHYSICS BUILDING")),
        line(p, (8, "_PROJECTION: RECESSED 2 INCHES")),
        line(p, (8, "_SATELLITE: THE SITE LOCATION WAS REPORTED AS NOT SUITABLE FOR")),
        line(p, (8, "+SATELLITE: SATELLITE OBSERVATIONS - June 4, 2002")),
        history_head(p),
        history(p, "20010315", "FIRST OBSERVED", "OCO"),
        history(p, "2008", "GOOD", "OCO"),
        history(p, "2012", "MARK NOT FOUND", "NCGS"),
        text(p, "DESCRIBED BY US GEOLOGICAL SURVEY 2001 (XYZ)"),
        text(p, "RECOVERY NOTE BY ORBIS CONTROL OFFICE 2008 (JDS)"),
    ]
    return [HEADER] + lines


def long_text_line(number):
    """72 characters: "LINE nnn ", 62 "X" and a "Z" in column 80."""
    return "LINE %03d " % number + "X" * 62 + "Z"


def aa3003():
    """Hand-held position with seconds of a point and five blanks; 70 lines of text."""
    p = "AA3003"
    lines = [
        line(p, (10, "DESIGNATION -  "), (25, "HAND HELD MARK")),
        line(p, (10, "PID         -  "), (25, p)),
        line(p, (8, "* NAD 83(2011)"), (22, "-"), (25, "36 03 42.     "), (39, "(N)"),
             (46, "079 07 18.     "), (61, "(W)"), (69, "GPS HAND HELD 1")),
        line(p, (8, "* ASVD02 "), (22, "-"), (29, "   12.5"), (39, "(meters)"), (69, "POSTED")),
        line(p, (10, "HORZ ORDER  -  "), (25, "SECOND")),
        line(p, (8, "_MARKER: DS = TRIANGULATION STATION DISK")),
        line(p, (8, "+SATELLITE: SATELLITE OBSERVATIONS - SOMETIME 2003")),
        history(p, "1990", "MARK NOT FOUND", "OCO"),
        history(p, "1999", "OTHER", "OCO"),
    ]
    lines += [text(p, long_text_line(n)) for n in range(1, 71)]
    return [HEADER] + lines


def aa4004():
    """Scaled position without a datum tag; marker DE gives the type of position."""
    p = "AA4004"
    lines = [
        line(p, (10, "PID         -  "), (25, p)),
        line(p, (8, "* NAD 83"), (22, "-"), (25, "35 00 01.2    "), (39, "(N)"),
             (46, "080 00 02.3    "), (61, "(W)"), (69, "SCALED")),
        line(p, (8, "* PRVD02 "), (22, "-"), (29, "    7.25"), (39, "(meters)"), (69, "RESET")),
        line(p, (10, "HORZ ORDER  -  "), (25, "THIRD")),
        line(p, (10, "VERT ORDER  -  "), (25, "THIRD"), (31, "?")),
        line(p, (8, "_MARKER: DE = TRAVERSE STATION DISK")),
        line(p, (8, "_PROJECTION: FLUSH")),
    ]
    return [HEADER] + lines


def aa5005():
    """A landmark: category "L" from the support file gives the type "I"."""
    p = "AA5005"
    lines = [
        line(p, (10, "PID         -  "), (25, p)),
        line(p, (8, "* NAD 83(1986)"), (22, "-"), (25, "35 10 11.12345"), (39, "(N)"),
             (46, "079 10 11.12345"), (61, "(W)"), (69, "ADJUSTED")),
        line(p, (8, "* GUVD04 "), (22, "-"), (29, "   55.55"), (39, "(meters)"), (69, "GPS OBS")),
        line(p, (10, "HORZ ORDER  -  "), (25, "B")),
        line(p, (8, "_MARKER: 57 = WATER TOWER")),
    ]
    return [HEADER] + lines


def aa6006():
    """Second hand-held source, and a marker that would otherwise give "F"."""
    p = "AA6006"
    lines = [
        line(p, (10, "PID         -  "), (25, p)),
        line(p, (8, "* NAD 83(2011)"), (22, "-"), (25, "35 20 21.22222"), (39, "(N)"),
             (46, "079 20 21.22222"), (61, "(W)"), (69, "AGPS")),
        line(p, (8, "_MARKER: DS = TRIANGULATION STATION DISK")),
    ]
    return [HEADER] + lines


def main():
    lines = aa1001() + aa2002() + aa3003() + aa4004() + aa5005() + aa6006()
    path = os.path.join(os.path.dirname(os.path.abspath(__file__)), "descriptions.dat")
    with open(path, "wb") as out:
        out.write("".join(l + "\r\n" for l in lines).encode("latin-1"))


if __name__ == "__main__":
    main()
