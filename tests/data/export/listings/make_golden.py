#!/usr/bin/env python3
"""Writes the expected listings, Microstation scripts and Street Atlas files of the export tests,
beside this script.

This is an account of the expected files worked out independently of the program: the fields of
each mark are transcribed by hand from fixture.dat and tx.dat into MARKS below, the plane
coordinates come from PROJ (cs2cs, Debian package proj-bin) with the zone constants read from
support/Zones.txt, and the lines are laid out by the listing rules: print positions (Tab), the
number patterns, the sort of whole lines and the headings.

Number patterns are written the classic way: rounded half away from zero from the value's 15
significant digits. Elevations are single precision; in feet they are times 3937, then divided by
1200, each step in single precision.
"""
import decimal
import os
import struct
import subprocess

HERE = os.path.dirname(os.path.abspath(__file__))

# PID: designation (as on its line), datum tag, latitude and longitude as stored (DDMMSS.SSSSS,
# blanks for absent decimals), position source, horizontal order, hand-held, vertical datum,
# orthometric height, vertical order, vertical class, stability, GPS suitability, first date,
# last date, condition.
MARKS = {
    "FY3210": ("HILLSBORO", "2001", "360342.56888", "0790718.55999", "A", "1", False, "88", "262.", "", "",
               " ", " ", "1933", "20040612", "N"),
    "FY3209": ("HILLSBORO LOOKOUT TOWER", "2001", "360342.61513", "0790718.31560", "A", "2", False, "88", "262.",
               "", "", " ", " ", "1954", "20060521", "G"),
    "EZ1203": ("CHAPEL HILL", "NSRS20", "355257.40498", "0790257.65046", "A", "1", False, "88", "148.531", "3", "1",
               "C", "Y", "1933", "20180422", "G"),
    "FY3301": ("MEBANE", "2001", "360602.33871", "0791604.71850", "A", "2", False, "88", "209.482", "2", "0",
               "C", "N", "1954", "20090415", "G"),
    "DH7190": ("ORANGE GPS 1", "2011", "360502.71336", "0790449.18257", "A", "B", False, "88", "171.204", "1", "2",
               "A", "Y", "19980422", "20190218", "G"),
    "DH7198": ("ROUGEMONT", "NSRS20", "361246.55081", "0785441.30297", "A", "A", False, "88", "163.847", "3", "1",
               "A", "Y", "1995", "20060814", "G"),
    "DL8724": ("CHAPEL HILL CORS ARP", "2011", "355433.64612", "0790247.42905", "A", "A", False, "88", "168.02",
               "", "", " ", " ", "20090301", "", " "),
    "DH7203": ("IGX A", "2011", "355607.25530", "0790355.10417", "A", "B", False, "88", "153.288", "3", "?",
               "C", "Y", "2011", "20190909", " "),
    "DH7204": ("IGX B", "2011", "355609.70102", "0790319.55836", "A", "B", False, "88", "150.914", "", "",
               " ", "Y", "2011", "20190909", " "),
    "FY0871": ("K 123", "1986", "360427      ", "0790557      ", "S", "", False, "88", "165.262", "1", "2",
               "B", " ", "1958", "20120716", "G"),
    "FY0875": ("P 123", "1986", "355530      ", "0790318      ", "S", "", False, "88", "141.058", "1", "2",
               "A", " ", "1958", "20100308", "O"),
    "FY0881": ("X 122", "1986", "360641      ", "0790602      ", "S", "", False, "88", "189.46", "", "",
               " ", " ", "1958", "19910703", "P"),
    "FY0895": ("OCCONEECHEE", "1986", "360402.3    ", "0790651.8    ", "O", "4", True, "88", "170.402", "2", "0",
               " ", " ", "1958", "20070930", "G"),
    "FY0896": ("R 123", "1986", "360448.6    ", "0790521.0    ", "O", "4", True, "88", "176.559", "1", "2",
               "C", " ", "1958", "20130412", "G"),
    "EZ0643": ("B 39", "1986", "355720      ", "0785207      ", "S", "", False, "88", "96.51", "3", "",
               " ", " ", "1962", "20001130", "N"),
    "FY3188": ("EFLAND", "1986", "360436.88114", "0791042.20936", "A", "2", False, "88", "207.9", "", "",
               "B", " ", "1959", "20150911", "P"),
    "EZ4420": ("PITTSBORO COURTHOUSE CUPOLA", "1986", "354313.48550", "0791039.27033", "A", "3", False, "", "",
               "", "", " ", " ", "1933", "20100325", " "),
    "FX2201": ("NC VA BDRY MON 77", "2001", "363229.80114", "0785812.09952", "A", "3", False, "88", "158.8",
               "", "", "B", " ", "1887", "20030315", "G"),
    "XA1001": ("CHAPEL HILL WATER TREATMENT PLANT TANK 2", "2011", "355512.34567", "0790123.45678", "A", "2", False,
               "88", "152.345", "1", "2", "B", "Y", "19990315", "20150620", "G"),
    "XT2001": ("SAN PEDRO SPRINGS", "1986", "292610      ", "0983005      ", "S", "", False, "88", "200.123", "1",
               "2", " ", " ", "1934", "20120412", "G"),
    "XT2002": ("ALAMO PLAZA", "2011", "292532.12345", "0982910.54321", "A", "2", False, "", "", "", "",
               " ", " ", "1978", "", " "),
}
# Marks whose marker code is a landmark in support/Monument_Category.dat (57 lookout tower, 43 cupola).
LANDMARKS = {"FY3209", "EZ4420"}
PHOTOS = {"DH7190", "EZ1203", "FY0871", "FY0875", "FY0895", "FY3209", "FY3210"}
SKETCHES = {"DH7190", "FY0875", "FY3188", "FY3210"}
FIXTURE = ["FY3210", "FY3209", "EZ1203", "FY3301", "DH7190", "DH7198", "DL8724", "DH7203", "DH7204", "FY0871",
           "FY0875", "FY0881", "FY0895", "FY0896", "EZ0643", "FY3188", "EZ4420", "FX2201", "XA1001"]

# Lambert zones from their lines of support/Zones.txt: parallels and origin in degrees and minutes,
# central meridian in degrees west, false easting and northing in metres, foot unit.
ZONES = {
    "NC": ((36, 10), (34, 20), (33, 45), 79, 609601.22, 0.0, "sFT"),
    "SC": ((34, 50), (32, 30), (31, 50), 81, 609600.0, 0.0, "iFT"),
    "TX SC": ((30, 17), (28, 23), (27, 50), 99, 600000.0, 4000000.0, "sFT"),
}


def degrees(dm):
    return dm[0] + dm[1] / 60.0


def angle(packed, degree_digits):
    """Decimal degrees of a stored DDMMSS.SSSSS (blanks for absent decimals)."""
    text = packed.strip()
    d, m, s = text[:degree_digits], text[degree_digits:degree_digits + 2], text[degree_digits + 2:]
    return int(d) + int(m) / 60.0 + float(s) / 3600.0


def project(zone, pids):
    """Metres (north, east) of each mark from cs2cs."""
    p1, p2, p0, lon0, x0, y0, _ = ZONES[zone]
    proj = ["+proj=lcc", f"+lat_1={degrees(p1)!r}", f"+lat_2={degrees(p2)!r}", f"+lat_0={degrees(p0)!r}",
            f"+lon_0={-lon0}", f"+x_0={x0}", f"+y_0={y0}", "+ellps=GRS80", "+units=m", "+no_defs"]
    points = "".join(f"{-angle(MARKS[p][3], 3)!r} {angle(MARKS[p][2], 2)!r}\n" for p in pids)
    out = subprocess.run(["cs2cs", "-f", "%.7f", "+proj=longlat", "+ellps=GRS80", "+no_defs", "+to"] + proj,
                         input=points, capture_output=True, text=True, check=True).stdout
    result = {}
    for pid, row in zip(pids, out.splitlines()):
        east, north = row.split()[:2]
        result[pid] = (float(north), float(east))
    return result


def fmt(value, pattern):
    """A number through a classic pattern of "#", "0", "." and trailing blanks."""
    body = pattern.rstrip(" ")
    tail = pattern[len(body):]
    decimals = len(body.split(".")[1]) if "." in body else 0
    exact = decimal.Decimal("%.15g" % value).quantize(decimal.Decimal(1).scaleb(-decimals),
                                                      rounding=decimal.ROUND_HALF_UP)
    text = f"{abs(exact):.{decimals}f}"
    return ("-" if exact < 0 or (exact == 0 and value < 0) else "") + text + tail


def single(x):
    return struct.unpack("f", struct.pack("f", x))[0]


class Line:
    """Print positions: Tab(n) to column n, or to column n of a new line when past it."""

    def __init__(self):
        self.text = ""
        self.start = 0

    def tab(self, column):
        if len(self.text) - self.start + 1 > column:
            self.text += "\r\n"
            self.start = len(self.text)
        self.text += " " * (column - (len(self.text) - self.start + 1))
        return self

    def put(self, *items):
        self.text += "".join(items)
        return self

    def done(self):
        return self.text + "\r\n"


def lat_text(m):
    lat = m[2]
    return (lat[:2] + " " + lat[2:4] + " " + lat[4:]).strip()


def lon_text(m):
    lon = m[3]
    return (lon[:3] + " " + lon[3:5] + " " + lon[5:]).strip()


def horizontal(pid, m, north, east):
    adjusted = m[4] == "A"
    n = fmt(north, "#######0.000 " if adjusted else "#######0    ").ljust(12)
    e = fmt(east, "#######0.000" if adjusted else "#######0     ").ljust(12)
    line = Line().put(m[0][:30].ljust(30)).tab(32).put(pid).tab(40).put("83(", m[1].ljust(6), ")")
    line.tab(55).put(lat_text(m)).tab(71).put(lon_text(m)).tab(88).put(m[5].ljust(1)).tab(91).put(n, e)
    return state(line, pid, m, 116)


def vertical(pid, m, north, east, elevation_feet):
    line = Line().put(m[0][:30].ljust(30)).tab(32).put(pid).tab(40).put(m[7].ljust(2))
    line.tab(50).put(lat_text(m)[:11]).tab(63).put(lon_text(m)[:12]).tab(76).put(m[9].ljust(1), " ", m[10].ljust(1))
    line.tab(81)
    if north != 0 and east != 0:
        line.put(fmt(north, "######0  ").ljust(9), fmt(east, "######0  ").ljust(9))
        elevation = single(float(m[8]) if m[8] else 0.0)
        if elevation_feet:
            elevation = single(single(elevation * 3937) / 1200)
        if elevation != 0:
            line.tab(99).put(fmt(elevation, "###0.000").ljust(8))
    return state(line, pid, m, 119)


def state(line, pid, m, column):
    line.tab(column).put(m[11]).tab(column + 2).put(m[12]).tab(column + 4).put(m[13][:4].ljust(4))
    line.tab(column + 9).put(m[14][:4].ljust(4)).tab(column + 13).put(m[15])
    line.tab(column + 15).put("Y" if pid in PHOTOS else " ").tab(column + 17).put("Y" if pid in SKETCHES else " ")
    return line.done()


def is_horizontal(m):
    return m[5] not in ("", "4") and not m[6]


def is_vertical(m):
    return m[9] != ""


def heading_h(feet):
    return (Line().put("DESIGNATION").tab(32).put("PID").tab(40).put("DATUM").tab(55).put("LATITUDE").tab(71)
            .put("LONGITUDE").tab(88).put("O").tab(91).put("NORTH (FT)" if feet else "NORTH (M)").tab(103)
            .put("EAST (FT)" if feet else "EAST (M)").tab(116).put("M G SET  REC C P S").done())


def heading_v(feet, elevation_feet):
    elev = "88-ELEV (FEET)     M G SET  REC C P S" if elevation_feet else "88-ELEV (METERS)   M G SET  REC C P S"
    return (Line().put("DESIGNATION").tab(32).put("PID").tab(40).put("DATUM").tab(50).put("LATITUDE").tab(63)
            .put("LONGITUDE").tab(76).put("O C").tab(81).put("NORTH FT" if feet else "NORTH M").tab(90)
            .put("EAST FT" if feet else "EAST M").tab(100).put(elev).done())


def close(printed, heading):
    """The sorted, headed file from the unsorted one; 0 bytes stay 0 bytes."""
    if not printed:
        return ""
    elements = printed.split("\r\n")
    if len(elements) >= 3:
        elements.sort(key=lambda s: s.encode("latin-1"))
    return heading + "".join(e + "\r\n" for e in elements)


def listings(pids, zone, feet, elevation_feet):
    factor = 1.0
    if feet:
        factor = 1000 / 304.79999999999995 if ZONES[zone][6] == "iFT" else 3937 / 1200
    metres = project(zone, pids)
    hcl = vcl = ""
    for pid in pids:
        m = MARKS[pid]
        north, east = metres[pid]
        if is_horizontal(m):
            hcl += horizontal(pid, m, factor * north, factor * east)
        if is_vertical(m):
            vcl += vertical(pid, m, factor * north, factor * east, elevation_feet)
    return close(hcl, heading_h(feet)), close(vcl, heading_v(feet, elevation_feet))


ABBREVIATIONS = [
    ("AIRPORT", "APT", "first"), ("AZIMUTH", "AZ", "first"), ("BEACON", "BCN", "first"),
    ("BOUNDARY", "BDRY", "first"), ("CATHOLIC", "CATH", "first"), ("CHURCH", "CH", "whole"),
    ("COURTHOUSE", "CTHSE", "first"), ("CREEK", "CR", "first"), ("CUPOLA", "CUP", "first"),
    ("EAST ", "E ", "first"), ("EPISCOPAL", "EPIS", "first"), ("EXPERIMENTAL", "EXPTL", "first"),
    ("FLAGPOLE", "FP", "first"), ("FRONT RANGE", "FRGE", ""), ("ISLAND", "IS", "first"),
    ("LARGE", "L", "first"), ("LIGHT", "LT ", "first"), ("LIGHTHOUSE", "LH ", "first"),
    ("LOOKOUT TOWER", "LOT", "first"), ("LOOKOUT", "LO", "first"), ("MAGNETIC", "MAG", "first"),
    ("MARK", "", "first"), ("MAST", "MST", "first"), ("MICROWAVE", "MV", "first"),
    ("MONUMENT", "MON", "first"), ("MUNICIPAL", "MUN", "first"), ("NORTH", "N", "leading"),
    ("POINT", "PT", "first"), ("PRESBYTERIAN", "PRESB", "first"), ("RADIO", "RAD", "first"),
    ("REAR RANGE", "RRGE", ""), ("RANGE", "RGE", "first"), ("REFERENCE", "RM", ""), ("RESET", "RST", ""),
    ("RIVER", "R", "first"), ("SCHOOL", "SCH", "first"), ("STANDPIPE", "SPIPE", "first"),
    ("SOUTH", "S", "leading"), ("SPIRE", "SP", "first"), ("STACK", "STK", "first"),
    ("STATION", "STA", "first"), (" TANK", " TK", "first"), ("TOWER", "TWR", "first"),
    ("WATER TANK", "WT TK", "first"), (" WATER", " WT", "first"), ("WEST", "W", "leading"),
]


def abbreviate(name):
    name = name.strip()
    out, i = "", 0  # 0-based here
    while i < len(name):
        for word, short, unless in ABBREVIATIONS:
            if name[i:i + len(word)] != word:
                continue
            if (unless == "first" and i == 0) or (unless == "leading" and name.startswith(word)) or \
                    (unless == "whole" and len(name) == len(word)):
                continue
            out += short
            i += len(word)
        digits = name[i:i + 4].replace(" ", "")
        year = float(digits) if digits.isdigit() else 0
        if 1800 < year < 2000 and i > 3:
            i += 4
        out += name[i:i + 1]
        i += 1
    return out


def script(pids, zone, feet, not_recovered, landmarks, scale):
    """The Microstation script of the marks, with its head, eight groups and legend."""
    factor = 1.0
    if feet:
        factor = 1000 / 304.79999999999995 if ZONES[zone][6] == "iFT" else 3937 / 1200
    metres = project(zone, pids)
    labels = []
    for pid in pids:
        m = MARKS[pid]
        north, east = metres[pid]
        adjusted = m[4] == "A"
        n = fmt(factor * north, "#######0.000 " if adjusted else "#######0    ").ljust(12)
        e = fmt(factor * east, "#######0.000" if adjusted else "#######0     ").ljust(12)
        dropped = (m[15] == "N" and not not_recovered) or (pid in LANDMARKS and not landmarks)
        labels.append("" if dropped else m[5].ljust(1) + " " + m[9].ljust(1) + " " + n + e + " " + m[0].strip())
    size = round(float(scale) / 12.5)  # Python rounds halves to even, as wanted
    esc = "\x1b"
    lines = ["SET PARSEALL OFF", f"TX={size}", "CO=0", "ACTIVE TXJ LC"]
    groups = [(0, "A", "C", 1, 11), (0, "B", "C", 2, 12), (0, "1", "C", 3, 13), (0, "2", "C", 4, 14),
              (0, "3", "B", 5, 15), (2, "1", "E", 21, 31), (2, "2", "E", 22, 32), (2, "3", "E", 23, 33)]
    for column, key, symbol, level, name_level in groups:
        members = [lb for lb in labels if lb[column:column + 1] == key]
        xy = [f"XY={lb[16:27].strip()},{lb[4:15].strip()},0" for lb in members]
        lines += ["WT=3", "CO=0", f"LV={level}", "FT=91", "PLACE TEXT", symbol, esc] + xy
        lines += ["PLACE LINE", "RESET", "FT=1", f"LV={name_level}", "PLACE TEXT"]
        for lb, point in zip(members, xy):
            lines += ["  " + abbreviate(lb[28:63]), esc, point, "RESET"]
        lines += [esc, "PLACE LINE", "RESET"]
    s, north, east = size, -10 * size, 0
    lines += ["WT=3", "CO=0", "LV=1", "FT=91", "PLACE TEXT"]
    lines += ["C", esc, f"XY={east},{north},0", "RESET", "B", esc, f"XY={east},{north - 2 * s},0", "RESET"]
    lines += ["E", esc, f"XY={east},{north - 4 * s},0", "PLACE LINE", "RESET", "FT=1", "PLACE TEXT"]
    lines += ["A - 2 ORDER HORIZONTAL MARK", esc, f"XY={east + 2 * s},{north},0", "RESET"]
    lines += ["3 ORDER HORIZONTAL MARK", esc, f"XY={east + 2 * s},{north - 2 * s},0", "RESET"]
    lines += ["VERTICAL CONTROL MARK", esc, f"XY={east + 2 * s},{north - 4 * s},0", "PLACE LINE", "RESET"]
    return "".join(line + "\r\n" for line in lines)


def street_atlas(pids, not_recovered, listed):
    """The Street Atlas lines; `listed`: a listing took the marks, cutting their names to 30."""
    text = ""
    for pid in pids:
        m = MARKS[pid]
        name = m[0][:30] if listed and (is_horizontal(m) or is_vertical(m)) else m[0]
        point = "N" + lat_text(m) + ",W" + lon_text(m) + "," + name.strip()
        lost = m[15] == "N"
        vertical_colour = {"1": "2", "2": "1", "3": "4", "": "4"}.get(m[9])
        horizontal = {"A": ("47", "2"), "B": ("47", "2"), "0": ("51", "2"), "1": ("51", "2"), "2": ("51", "1"),
                      "3": ("51", "4")}.get(m[5])
        for tail in ([("46", vertical_colour)] if vertical_colour else []) + ([horizontal] if horizontal else []):
            if lost and not not_recovered:
                continue
            text += point + f",{tail[0]},1,{'0' if lost else tail[1]}\r\n"
    return text


def write(name, text):
    with open(os.path.join(HERE, name), "wb") as f:
        f.write(text.encode("latin-1"))


def main():
    sets = {
        "nc_feet": (FIXTURE, "NC", True, False),
        "sc_ifeet": (FIXTURE, "SC", True, True),
        "nc_meters": (FIXTURE, "NC", False, False),
        "selected": (["FY3210", "DH7204", "FY0895"], "NC", False, False),
        "tx_break": (["XT2001"], "TX SC", True, False),
    }
    for name, (pids, zone, feet, elevation_feet) in sets.items():
        hcl, vcl = listings(pids, zone, feet, elevation_feet)
        write(name + ".hcl", hcl)
        write(name + ".vcl", vcl)
    # Metres with the defaults (no marks reported not recovered, no landmarks); feet with both kept.
    write("nc_meters.msf", script(FIXTURE, "NC", False, False, False, "5280"))
    write("nc_feet_kept.msf", script(FIXTURE, "NC", True, True, True, "1320"))
    write("nc_meters_sa6.txt", street_atlas(FIXTURE, False, True))
    write("nc_kept_sa6.txt", street_atlas(FIXTURE, True, True))


if __name__ == "__main__":
    main()
