#!/usr/bin/env python3
"""Writes support/samples/sample.dat: a dataset of Descriptions of one region, for demonstration.

The marks are hand-written in sample_marks.py (Orange County, North Carolina, and its neighbours);
this script lays them out in the classic data sheet columns, one Description after another, lines
ended by CR LF. Everything a sheet prints that follows from the position (state plane and UTM
coordinates, scale factors, convergences, X Y Z, the national grid address, distances and azimuths
to the other marks of the box score) is computed here on GRS 80, so that the sheets agree with
each other and with the program's own computations.

Columns are placed by number and checked: a text never overwrites another, and no line is longer
than 80 columns.

Sources: spcs83_zones.csv of the data folder (the state plane zone), make_contrib.py (agency codes).
"""
import math
import os
import sys
import textwrap

import sample_geodesy as geo
from make_contrib import build as build_contributors
from sample_marks import HEADER_TEXT, MARKS
from support_text import parse_args, read_table

WIDTH = 80
CLASS_TEXT = {
    "CORS": "This is a Continuously Operating Reference Station.",
    "FBN": "This is a Federal Base Network Control Station.",
    "CBN": "This is a Cooperative Base Network Control Station.",
    "HT_MOD": "This is a Height Modernization Survey Station.",
    "PACS": "This is a Primary Airport Control Station.",
    "SACS": "This is a Secondary Airport Control Station.",
}
STABILITY_TEXT = {
    "A": ["MOST RELIABLE AND EXPECTED TO HOLD", "POSITION/ELEVATION WELL"],
    "B": ["PROBABLY HOLD POSITION/ELEVATION WELL"],
    "C": ["MAY HOLD, BUT OF TYPE COMMONLY SUBJECT TO", "SURFACE MOTION"],
    "D": ["MARK OF QUESTIONABLE OR UNKNOWN STABILITY"],
}
MAGNETIC_TEXT = {
    "N": "NO MAGNETIC MATERIAL",
    "I": "MARKER IS A STEEL ROD",
    "O": "OTHER; SEE DESCRIPTION",
}


class Sheet:
    """The lines of one Description, each built by placing texts at columns."""

    def __init__(self, pid):
        self.pid = pid
        self.lines = []

    def line(self, mark=" ", *placed, keep_trailing=False, width=WIDTH):
        chars = list(" " + self.pid + mark)
        for column, text in placed:
            if len(chars) < column - 1:
                chars.extend(" " * (column - 1 - len(chars)))
            for i, c in enumerate(text):
                at = column - 1 + i
                if at < len(chars):
                    if chars[at] != " " and c != chars[at]:
                        sys.exit("%s: %r overwrites column %d of %r" % (self.pid, text, at + 1, "".join(chars)))
                    chars[at] = c
                else:
                    chars.append(c)
        text = "".join(chars) if keep_trailing else "".join(chars).rstrip()
        if len(text) > width:
            sys.exit("%s: line longer than %d columns: %r" % (self.pid, width, text))
        self.lines.append(text)

    def blank(self):
        self.line()

    def raw(self, text):
        self.lines.append(text)


# ----- numbers as the sheets print them ---------------------------------------------------------

def dms_text(value, degree_digits, decimals):
    """ "36 03 42.56888"; with fewer decimals the rest of the 8-character seconds are blanks."""
    total = round(abs(value) * 3600 * 10 ** decimals)
    seconds_scaled = total % (60 * 10 ** decimals)
    minutes = total // (60 * 10 ** decimals)
    whole, fraction = divmod(seconds_scaled, 10 ** decimals)
    seconds = "%02d." % whole + ("%0*d" % (decimals, fraction) if decimals else "")
    return "%0*d %02d %s" % (degree_digits, minutes // 60, minutes % 60, seconds.ljust(8))


def parse_dms(text):
    d, m, s = text.split()
    return int(d) + int(m) / 60 + float(s) / 3600


def grouped(value, decimals):
    return "{:,.{}f}".format(value, decimals)


def angle_text(degrees, decimals=1):
    sign = "-" if degrees < 0 else "+"
    total = round(abs(degrees) * 3600 * 10 ** decimals)
    seconds, rest = divmod(total, 10 ** decimals)
    return "%s%d %02d %02d.%0*d" % (sign, seconds // 3600, seconds // 60 % 60, seconds % 60, decimals, rest)


def azimuth_dms(degrees, decimals=1):
    """ "1470416.6": dddmmss.s, as the box score writes a geodetic azimuth."""
    total = round((degrees % 360) * 3600 * 10 ** decimals)
    seconds, rest = divmod(total, 10 ** decimals)
    return "%03d%02d%02d.%0*d" % (seconds // 3600, seconds // 60 % 60, seconds % 60, decimals, rest)


def grid_azimuth_text(degrees):
    total = round((degrees % 360) * 36000)
    seconds, rest = divmod(total, 10)
    return "%03d %02d %02d.%d" % (seconds // 3600, seconds // 60 % 60, seconds % 60, rest)


def height_text(value, decimals, integer_width=4):
    """A height with its decimal point at a fixed place: " 262." or " 123.456"."""
    whole, _, fraction = ("%.*f" % (decimals, value)).partition(".")
    return whole.rjust(integer_width) + "." + fraction


# ----- the sections of a Description ------------------------------------------------------------

class Region:
    def __init__(self, data_dir, marks):
        zone = next(z for z in read_table(data_dir, "spcs83_zones.csv") if z["state"] == "NC")
        self.zone = zone
        self.marks = {m["pid"]: m for m in marks}
        self.codes = {}
        for line in build_contributors(data_dir):
            self.codes.setdefault(line[14:], line[:6].strip())

    def code_of(self, agency):
        name = "US COASTAL CONTROL OFFICE" if agency == "COASTAL CONTROL OFFICE" else agency
        if name not in self.codes:
            sys.exit("agency %r is not in the contributors table" % agency)
        return self.codes[name]

    def spc(self, lat, lon):
        z = self.zone
        return geo.lambert(lat, lon, float(z["lat_origin_deg"]), float(z["central_meridian_deg"]),
                           float(z["std_parallel_1_deg"]), float(z["std_parallel_2_deg"]),
                           float(z["false_easting_m"]), float(z["false_northing_m"]))


def position_of(mark):
    """Latitude (north) and longitude (east, negative here) in degrees."""
    return parse_dms(mark["lat"]), -parse_dms(mark["lon"])


def write_names(sheet, mark):
    for key in mark.get("classes", []):
        sheet.line(" ", (10, key), (22, "- " + CLASS_TEXT[key]))
    sheet.line(" ", (10, "DESIGNATION -  " + mark["name"]))
    if mark.get("cors_id"):
        sheet.line(" ", (10, "CORS_ID     -  " + mark["cors_id"]))
    sheet.line(" ", (10, "PID         -  " + mark["pid"]))
    sheet.line(" ", (10, "STATE/COUNTY-  NC/" + mark["county"]))
    sheet.line(" ", (10, "USGS QUAD   -  " + mark["quad"]))
    sheet.blank()
    sheet.line(" ", (33, "*CURRENT SURVEY CONTROL"))
    sheet.line(" ", (10, "_" * 70))


def write_position(sheet, mark):
    tag = mark["datum"]
    decimals = mark.get("pos_decimals", 5)
    lat, lon = position_of(mark)
    lat_text = dms_text(lat, 2, decimals)
    lon_text = dms_text(-lon, 3, decimals)
    source = mark.get("pos_source", "ADJUSTED")
    if len(tag) > 4:  # a long tag moves the hyphen to column 26
        sheet.line("*", (10, "NAD 83(%s)" % tag), (26, "-"), (29, lat_text + "(N)"), (47, lon_text + "(W)"),
                   (69, source))
    else:
        # The long source words ("GPS HAND HELD 1") run past column 80, as the service writes them.
        sheet.line("*", (10, "NAD 83(%s)" % tag), (22, "-"), (25, lat_text + "(N)"), (46, lon_text + "(W)"),
                   (69, source), width=68 + len(source))


def write_height(sheet, mark):
    if "height" not in mark:
        return
    decimals = mark.get("height_decimals", 3)
    metres = mark["height"]
    source = mark.get("height_source", "ADJUSTED")
    unit = "(+/-2cm)" if source == "VERTCON" else "(meters)"
    feet = metres / 0.3048006096
    feet_decimals = {0: 0, 1: 0, 2: 1, 3: 2}[decimals]
    sheet.line("*", (10, mark.get("vdatum", "NAVD 88")), (22, "-"), (29, height_text(metres, decimals)),
               (39, unit), (50, height_text(feet, feet_decimals, 5)), (61, "(feet)"), (69, source))


def geoid_height(mark):
    lat, lon = position_of(mark)
    return -30.482 - 0.85 * (lat - 36.0618) + 0.62 * (lon + 79.1218)


def write_values(sheet, mark):
    lat, lon = position_of(mark)
    n = geoid_height(mark)
    if mark.get("epoch"):
        sheet.line(" ", (10, "EPOCH DATE  -"), (31, mark["epoch"]))
    ellip = mark.get("ellip")
    if ellip and mark.get("xyz"):
        x, y, z = geo.ecef(lat, lon, mark["height"] + n)
        for key, value in (("X", x), ("Y", y), ("Z", z)):
            sheet.line(" ", (10, key), (22, "-"), (25, grouped(value, 3).rjust(14)), (40, "(meters)"), (69, "COMP"))
    if mark.get("laplace") is not None:
        sheet.line(" ", (10, "LAPLACE CORR-"), (32, ("%.2f" % mark["laplace"]).rjust(6)), (40, "(seconds)"),
                   (69, "DEFLEC18"))
    if ellip:
        date, source = ellip
        sheet.line(" ", (10, "ELLIP HEIGHT-"), (26, ("%.3f" % (mark["height"] + n)).rjust(13)), (40, "(meters)"),
                   (58, "(" + date + ")"), (69, source))
    if "height" in mark or ellip:
        sheet.line(" ", (10, "GEOID HEIGHT-"), (26, ("%.3f" % n).rjust(13)), (40, "(meters)"), (69, "GEOID18"))
    if mark.get("dynamic"):
        h = mark["height"]
        dynamic = h * (1 - 0.0009 * math.cos(2 * math.radians(lat)) - 0.00015)
        gravity = 978032.677 * (1 + 0.0053024 * math.sin(math.radians(lat)) ** 2) - 0.3086 * h + 0.112 * h
        sheet.line(" ", (10, "DYNAMIC HT  -"), (31, ("%.3f" % dynamic).rjust(8)), (40, "(meters)"),
                   (50, ("%.2f" % (dynamic / 0.3048006096)).rjust(8)), (61, "(feet)"), (69, "COMP"))
        sheet.line(" ", (10, "MODELED GRAV-"), (28, grouped(gravity, 1).rjust(9)), (40, "(mgal)"), (69, "NAVD 88"))


def write_accuracy(sheet, mark):
    accuracy = mark.get("accuracy")
    if not accuracy:
        return
    sheet.blank()
    sheet.line(" ", (10, "FGDC Geospatial Positioning Accuracy Standards (95% confidence, cm)"))
    sheet.line(" ", (10, "Type/PID Designation"), (59, "North"), (66, "East"), (72, "Ellip"))
    sheet.line(" ", (10, "-" * 68))
    north, east, ellip = accuracy
    figures = [(59, "%4.2f" % north), (66, "%4.2f" % east), (73, "%4.2f" % ellip)]
    sheet.line(" ", (10, "NETWORK"), (19, mark["pid"] + " " + mark["name"][:30]), *figures)
    if mark.get("local_accuracy"):
        north, east, ellip = mark["local_accuracy"]
        sheet.line(" ", (10, "LOCAL   AVERAGE"), (59, "%4.2f" % north), (66, "%4.2f" % east), (73, "%4.2f" % ellip))
    sheet.line(" ", (10, "-" * 68))


def write_orders(sheet, mark):
    sheet.blank()
    if mark.get("horz_order"):
        sheet.line(" ", (10, "HORZ ORDER  -  " + mark["horz_order"]))
    vert = mark.get("vert_order")
    if vert == "POSTED":
        sheet.line(" ", (10, "VERT ORDER  -"), (27, "POSTED"))
    elif vert:
        order, klass = vert
        placed = [(10, "VERT ORDER  -  " + order.rstrip("?"))]
        placed += [(31, "?")] if order.endswith("?") else []
        placed += [(35, "CLASS " + klass)] if klass else []
        sheet.line(" ", *placed)
    if mark.get("ellp_order"):
        order, klass = mark["ellp_order"]
        sheet.line(" ", (10, "ELLP ORDER  -  " + order), *([(35, "CLASS " + klass)] if klass else []))


def write_notes(sheet, mark):
    for paragraph in mark.get("notes", []):
        sheet.blank()
        for text in paragraph:
            sheet.line(".", (9, text), keep_trailing=text.endswith(" "))
    lat, lon = position_of(mark)
    if mark.get("pos_source", "ADJUSTED") not in ("ADJUSTED",):
        return
    sheet.blank()
    sheet.line(".", (9, "The following values were computed from the NAD 83(%s) position." % mark["datum"]))
    sheet.blank()
    north, east, scale, convergence = region.spc(lat, lon)
    zone, u_north, u_east, u_scale, u_convergence = geo.utm(lat, lon)
    label = region.zone["zone_abbrev"]
    sheet.line(";", (29, "North"), (43, "East"), (52, "Units Scale Factor Converg."))
    feet = 0.3048006096
    rows = [("SPC " + label, grouped(north, 3), grouped(east, 3), " MT", scale, convergence),
            ("SPC " + label, grouped(north / feet, 2), grouped(east / feet, 2), "sFT", scale, convergence),
            ("UTM  %d" % zone, grouped(u_north, 3), grouped(u_east, 3), " MT", u_scale, u_convergence)]
    for label_text, north_text, east_text, unit, factor, gamma in rows:
        # Metres end in column 36 and 50, feet one column to the left; the unit ends in 55.
        shift = 0 if unit == " MT" else 1
        sheet.line(";", (9, label_text), (22, "-"), (24 - shift, north_text.rjust(13)),
                   (37 - shift, east_text.rjust(14)), (53, unit), (58, "%10.8f" % factor),
                   (68, angle_text(gamma).rjust(13)))
    h = mark.get("height", 150.0) + geoid_height(mark)
    elevation_factor = 1 - h / geo.A
    sheet.blank()
    sheet.line("!", (22, "-  Elev Factor  x  Scale Factor =   Combined Factor"))
    for label_text, factor in (("SPC " + label, scale), ("UTM  %d" % zone, u_scale)):
        sheet.line("!", (9, label_text), (22, "-"), (26, "%10.8f" % elevation_factor), (38, "x"),
                   (42, "%10.8f" % factor), (54, "="), (58, "%10.8f" % (elevation_factor * factor)))
    azimuth_mark = mark.get("azimuth_mark")
    if azimuth_mark:
        name, azimuth = azimuth_mark
        sheet.blank()
        sheet.line(":", (25, "Primary Azimuth Mark"), (66, "Grid Az"))
        for label_text, gamma in (("SPC " + label, convergence), ("UTM  %d" % zone, u_convergence)):
            sheet.line(":", (9, label_text), (22, "-"), (25, name), (66, grid_azimuth_text(parse_dms(azimuth) - gamma)))
    sheet.blank()
    sheet.line("_", (9, "U.S. NATIONAL GRID SPATIAL ADDRESS: %s(NAD 83)" % geo.usng(lat, lon)))


def box_rows(mark):
    lat, lon = position_of(mark)
    rows = []
    for entry in mark.get("box", []):
        if isinstance(entry, str):  # another mark of the dataset, by PID
            other = region.marks[entry]
            distance, azimuth = geo.inverse(lat, lon, *position_of(other))
            if distance >= 1000:
                distance_text = "APPROX." + ("%4.1f" % (distance / 1000)) + " KM"
                rows.append((entry, other["name"], (53, distance_text), azimuth_dms(azimuth)))
            else:
                rows.append((entry, other["name"], (52, ("%.3f" % distance).rjust(8) + " METERS"), azimuth_dms(azimuth)))
        else:
            pid, name, distance, azimuth = entry
            placed = (52, ("%.3f" % distance).rjust(8) + " METERS") if distance else None
            rows.append((pid, name, placed, azimuth))
    return sorted(rows, key=lambda r: r[3])


def write_box(sheet, mark):
    rows = box_rows(mark)
    if not rows:
        return
    sheet.blank()
    rule = "|" + "-" * 69 + "|"
    sheet.line("|", (9, rule[1:]))
    sheet.line("|", (10, "PID"), (17, "Reference Object"), (54, "Distance"), (68, "Geod. Az  |"))
    sheet.line("|", (68, "dddmmss.s |"))
    for pid, name, placed, azimuth in rows:
        texts = [(10, pid), (17, name)] + ([placed] if placed else []) + [(68, azimuth.ljust(10) + "|")]
        sheet.line("|", *texts)
    sheet.line("|", (9, rule[1:]))


def write_superseded(sheet, mark):
    superseded = mark.get("superseded")
    if not superseded:
        return
    lat, lon = position_of(mark)
    sheet.blank()
    sheet.line(" ", (34, "SUPERSEDED SURVEY CONTROL"))
    sheet.blank()
    shifts = {"1986": (0.0025, 0.0096), "1993": (0.0029, 0.0088), "2001": (0.0, 0.0), "2007": (-0.0011, 0.0042),
              "NAD 27": (-0.4969, 0.9580)}
    for entry in superseded:
        if entry.startswith("NGVD 29"):
            date = entry.split()[2].strip("()")
            sheet.line(" ", (10, "NGVD 29 (%s)" % date), (30, height_text(mark["height"] + 0.23, 2)),
                       (39, "(m)"), (47, height_text((mark["height"] + 0.23) / 0.3048006096, 1, 5)), (57, "(f)"),
                       (61, "ADJUSTED    1 2"))
            continue
        d_lat, d_lon = shifts[entry]
        label = {"NAD 27": "NAD 27", "2007": "NAD 83(NSRS2007)"}.get(entry, "NAD 83(%s)" % entry)
        lat_text = dms_text(lat + d_lat / 3600, 2, 5) + "(N)"
        lon_text = dms_text(-lon + d_lon / 3600, 3, 5) + "(W)"
        if len(label) > 12:  # a long tag moves the hyphen to column 26, as on the position line
            sheet.line(" ", (10, label), (26, "-"), (29, lat_text), (47, lon_text), (66, "AD(       ) 1"))
        else:
            sheet.line(" ", (10, label), (22, "-"), (25, lat_text), (46, lon_text), (65, "AD(       ) 1"))
    sheet.blank()
    sheet.line(".", (9, "Superseded values are not recommended for survey control."))
    sheet.blank()
    sheet.line(".", (9, "OCO no longer adjusts projects to the NAD 27 or NGVD 29 datums."))
    sheet.line(".", (9, "See file sheetinfo.pdf for how the superseded data were derived."))


def write_attributes(sheet, mark):
    from make_monument_category import marker_text

    if mark.get("arp"):  # a CORS: the marker is the antenna's reference point
        sheet.line("_", (9, "MARKER: Z = ANTENNA REFERENCE POINT"))
    elif mark.get("marker"):
        sheet.line("_", (9, "MARKER: %s = %s" % (mark["marker"], marker_text(mark["marker"]))))
    if mark.get("setting") is not None:
        code, text = mark["setting"]
        sheet.line("_", (9, "SETTING: %d = %s" % (code, text)))
    if mark.get("sp_set"):
        sheet.line("_", (9, "SP_SET: " + mark["sp_set"]))
    if mark.get("stamping"):
        sheet.line("_", (9, "STAMPING: " + mark["stamping"]))
    if mark.get("logo"):
        sheet.line("_", (9, "MARK LOGO: " + mark["logo"]))
    if mark.get("projection"):
        sheet.line("_", (9, "PROJECTION: " + mark["projection"]))
    if mark.get("magnetic"):
        letter = mark["magnetic"]
        sheet.line("_", (9, "MAGNETIC: %s = %s" % (letter, MAGNETIC_TEXT[letter])))
    if mark.get("rod_depth"):
        sheet.line("_", (9, "ROD/PIPE-DEPTH: " + mark["rod_depth"]))
    if mark.get("sleeve_depth"):
        sheet.line("_", (9, "SLEEVE-DEPTH  : " + mark["sleeve_depth"]))
    if mark.get("stability"):
        letter = mark["stability"]
        first, *rest = STABILITY_TEXT[letter]
        sheet.line("_", (9, "STABILITY: %s = %s" % (letter, first)))
        for text in rest:
            sheet.line("+", (9, "STABILITY: " + text))
    if mark.get("satellite"):
        suitable, date = mark["satellite"]
        sheet.line("_", (9, "SATELLITE: THE SITE LOCATION WAS REPORTED AS"),
                   (54, "SUITABLE FOR" if suitable else "NOT SUITABLE FOR"))
        sheet.line("+", (9, "SATELLITE: SATELLITE OBSERVATIONS - " + date))


def history_and_text(sheet, mark):
    """The history table and the descriptive text, both from the same note list, so that each
    note's year and agency agree with its history row as real sheets have them."""
    notes = mark["history"]
    sheet.line(" ", (10, "HISTORY"), (22, "-"), (24, "Date"), (33, "Condition"), (50, "Report By"))
    for note in notes:
        sheet.line(" ", (10, "HISTORY"), (22, "-"), (24, note["date"]), (33, note["condition"]),
                   (50, region.code_of(note["agency"])))
    sheet.blank()
    sheet.line(" ", (34, "STATION DESCRIPTION"))
    first = True
    for note in notes:
        if note.get("text") is None:
            continue
        if not first:
            sheet.blank()
            sheet.line(" ", (34, "STATION RECOVERY (%s)" % note["date"][:4]))
        sheet.blank()
        head = "DESCRIBED BY" if first else "RECOVERY NOTE BY"
        initials = " (%s)" % note["initials"] if note.get("initials") else ""
        sheet.line("'", (9, "%s %s %s%s" % (head, note["agency"], note["date"][:4], initials)))
        for paragraph in note["text"]:
            if paragraph == "":
                sheet.line("'")
                continue
            for text in textwrap.wrap(paragraph.upper(), 70):
                sheet.line("'", (9, text))
        first = False


def description(mark):
    sheet = Sheet(mark["pid"])
    sheet.raw("1      " + "  " + HEADER_TEXT)
    sheet.line(" ", (9, "*" * 71))
    write_names(sheet, mark)
    write_position(sheet, mark)
    write_height(sheet, mark)
    sheet.line(" ", (10, "_" * 70))
    write_values(sheet, mark)
    write_accuracy(sheet, mark)
    write_orders(sheet, mark)
    write_notes(sheet, mark)
    write_box(sheet, mark)
    write_superseded(sheet, mark)
    write_attributes(sheet, mark)
    history_and_text(sheet, mark)
    return sheet.lines


def build(data_dir):
    global region
    region = Region(data_dir, MARKS)
    lines = []
    for mark in MARKS:
        lines.extend(description(mark))
    return lines


def main():
    args = parse_args(__doc__.splitlines()[0])
    out = os.path.join(args.out, "samples")
    os.makedirs(out, exist_ok=True)
    path = os.path.join(out, "sample.dat")
    with open(path, "wb") as f:
        f.write("".join(line + "\r\n" for line in build(args.data)).encode("ascii"))
    print(path)


if __name__ == "__main__":
    main()
