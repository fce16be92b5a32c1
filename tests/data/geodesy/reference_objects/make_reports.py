#!/usr/bin/env python3
"""Writes four stations' Description lines (<pid>.dat), the dataset's horizontal marks (nearby.txt)
and the report each must give (<pid>.report), laid out line by line as the command writes its report
of reference objects. Positions of reference marks and the distances between them come from GeographicLib's
GeodSolve on GRS80 (an outside judge), distances and azimuths of nearby marks from GeodSolve's
inverse; written to the report's precision (0.001", 1 mm, 0.1", 0.01 m)."""
import subprocess

CRLF = "\r\n"
GRS80 = ["-e", "6378137", "0.00335281068118232"]  # flattening of e2 = 0.00669438002290


def geod(args, line):
    out = subprocess.run(["GeodSolve", *GRS80, "-p", "9", *args], input=line, capture_output=True, text=True,
                         check=True).stdout.split()
    return [float(v) for v in out]


def deg(d, m, s):
    return d + m / 60 + s / 3600


def dms(value, decimals, width):  # "ddd mm ss.sss" with zero-filled degrees
    total = round(abs(value) * 3600 * 10 ** decimals)
    d, rest = divmod(total, 3600 * 10 ** decimals)
    m, s = divmod(rest, 60 * 10 ** decimals)
    sec = "%0*.*f" % (3 + decimals, decimals, s / 10 ** decimals)
    return "%0*d %02d %s" % (width, d, m, sec)


def packed_azimuth(az):
    return dms(az % 360, 1, 3).replace(" ", "")


# pid, name, latitude (d, m, s), longitude west (d, m, s), box rows (pid, name, distance text, azimuth text)
STATIONS = [
    ("RO0001", "HILLTOP", (36, 3, 42.56888), (79, 7, 18.55999), [
        ("RO0005", "HILLTOP RM 3 AZIMUTH", "", "1470416.6"),
        ("RO0002", "HILLTOP RM 1", "22.140 METERS", "0415230.0"),
        ("RO0003", "HILLTOP RM 2", "31.456 METERS", "1571207.5"),
        ("RO0004", "HILLTOP RM 4", "15.000 METERS", "3000000.0"),
        ("RO0009", "CHAPEL UNIV TANK", "APPROX.18.0 KM", "1604006.7"),
        ("", "HILLTOP LOOKOUT TOWER", "6.280 METERS", "0765247.2")]),
    ("RO0101", "NCCH", (35, 54, 31.27711), (79, 3, 5.35271), [
        ("RO0102", "NCCH AZ MARK", "51.002 METERS", "0102030.4"),
        ("RO0103", "NCCH RM 1", "9.870 METERS", "2101112.3"),
        ("RO0104", "NCCH RM 2", "12.345 METERS", "3300000.0")]),
    ("RO0201", "TANANA", (64, 50, 0.12345), (147, 43, 10.54321), [
        ("RO0202", "JONES RM 1", "105.000 METERS", "0451500.0"),
        ("RO0203", "JONES RM 2", "210.500 METERS", "1353000.0"),
        ("RO0204", "JONES RM 3", "812.250 METERS", "2254500.0"),
        ("RO0205", "TANANA AZ", "950.000 METERS", "3500000.0")]),
    # A row without a PID splits the box: the second box repeats the first one's rows. "FARM 1" holds
    # "RM" and counts as reference mark 1; "JONES RM" has no number and fills slot 0, which is never read.
    ("RO0301", "MILLPOND", (40, 30, 15.0), (105, 5, 30.0), [
        ("RO0302", "MILL FARM 1", "12.500 METERS", "0300000.0"),
        ("RO0303", "MILLPOND RM 2", "20.000 METERS", "1200000.0"),
        ("", "SEE SKETCH", "", ""),
        ("RO0304", "JONES RM", "8.000 METERS", "2100000.0"),
        ("RO0305", "MILLPOND RM 3", "16.000 METERS", "2400000.0")]),
]
# Marks of the dataset with a horizontal order: pid, name, latitude, longitude west, stability code
NEARBY = [
    ("RO0001", "HILLTOP", "36 03 42.56888", "079 07 18.55999", " "),
    ("RO0021", "CHURCH SPIRE", "36 04 30.00000", "079 06 00.00000", "L"),
    ("RO0022", "DISTANT DISK", "36 04 30.00000", "079 08 40.00000", " "),
    ("RO0023", "ROADSIDE DISK", "36 03 55.00000", "079 07 21.00000", " "),
    ("RO0024", "FAR TOWER", "36 10 00.00000", "079 07 00.00000", "L"),
    ("RO0101", "NCCH", "35 54 31.27711", "079 03 05.35271", " "),
    ("RO0201", "TANANA", "64 50 00.12345", "147 43 10.54321", " "),
    ("RO0206", "NENANA LIGHT", "64 49 30.00000", "147 41 00.00000", " "),
    ("RO0301", "MILLPOND", "40 30 15.00000", "105 05 30.00000", " "),
    ("RO0306", "MILL TANK", "40 31 00.00000", "105 05 00.00000", "L"),
]


def box_row(st, pid, name, dist, az):
    row = " %s| %-6s %-30s" % (st, pid, name)
    if dist.startswith("APPROX."):
        return row + "      " + dist + " " + az + " |"
    return row + "     " + (dist.rjust(15) + " " + az).ljust(25) + " |" if dist else row + " " * 21 + az + " |"


def description(st, name, lat, lon, rows):
    lines = [" " + st + "  DESIGNATION -  " + name, " " + st + "* NAD 83(1986)-  %02d %02d %08.5f(N)    %03d %02d %08.5f(W)     ADJUSTED" % (lat + lon), " " + st, " " + st + "|" + "-" * 69 + "|",
             " " + st + "| PID    Reference Object                     Distance      Geod. Az  |",
             " " + st + "|                                                           dddmmss.s |"]
    lines += [box_row(st, *r) for r in rows]
    lines += [" " + st + "|" + "-" * 69 + "|", " " + st, " " + st + "  STATION RECOVERY (2001)"]
    return lines


def main():
    with open("nearby.txt", "w") as f:
        f.write("# PID|designation (30)|latitude|longitude|stability code\n")
        for pid, name, la, lo, stab in NEARBY:
            f.write("%s|%-30s|%s|%s|%s\n" % (pid, name, la, lo, stab))
    for st, name, lat, lon, rows in STATIONS:
        lines = description(st, name, lat, lon, rows)
        with open(st + ".dat", "w", newline="") as f:
            f.write("".join(l + CRLF for l in lines))
        with open(st + ".report", "w", newline="") as f:
            f.write(report(st, name, lat, lon, lines))


def val(text):
    out = ""
    for c in text.replace(" ", ""):
        if not (c.isdigit() or c == "."):
            break
        out += c
    return float(out) if out.strip(".") else 0.0


def nearby_rows(st, lat, lon):
    rows = []
    for pid, name, la, lo, stab in NEARBY:
        mlat, mlon = deg(*map(float, la.split())), deg(*map(float, lo.split()))
        azi1, _, s12 = geod(["-i"], "%.12f %.12f %.12f %.12f" % (lat, -lon, mlat, -mlon))[:3]
        head = " %s| %s %-30s      " % (st, pid, name)
        if 1 <= s12 < 1000:
            rows.append(head + "%7.3f METERS %s |" % (s12, packed_azimuth(azi1)))
        elif 1000 <= s12 < 10000 and stab == "L":
            rows.append(head + "APPROX.%4.1f KM %s |" % (s12 / 1000, packed_azimuth(azi1)))
    return rows


def report(st, name, lat, lon, lines):
    name30 = "%-30s" % name
    lat, lon = deg(*lat), deg(*lon)
    text = CRLF + CRLF + " " * 30 + "Station " + name30 + CRLF + CRLF
    rows, in_table, rm = [], False, {}
    station_line = ""
    for line in lines:
        if line[7:15] == "* NAD 83":
            station_line = " %s %s %s  %s" % (st, name30, line[24:38], line[45:60])
        elif line[7:9] == "| " and line[12:15].strip():
            rows.append(line)
            in_table = True
        elif in_table:
            rows += nearby_rows(st, lat, lon)
            if len(rows) >= 3:
                rows.sort(key=lambda r: r[67:])
            front = " " + st
            rule = front + "|" + "-" * 69 + "|" + CRLF
            text += rule + front + "| PID    Reference Object" + " " * 21 + "Distance      Geod. Az  |" + CRLF
            text += front + "|" + " " * 59 + "dddmmss.s |" + CRLF
            for i, r in enumerate(rows):
                if i == 0 or r[9:15] != rows[i - 1][9:15]:
                    text += r + CRLF
            last = rows[-1][9:15]
            text += rule + " PID    Name" + " " * 27 + "Latitude        Longitude" + CRLF + station_line + CRLF
            for r in rows:
                d = val(r[51:59])
                if d <= 0:
                    continue
                pid, rname, az = r[9:15], r[16:46], r[67:76]
                p = rname.find("RM")
                if p < 0 or pid == last:
                    continue
                lat2, lon2 = geod([], "%.12f %.12f %.12f %.6f" % (lat, -lon, deg(val(az[0:3]), val(az[3:5]), val(az[5:9])), d))[:2]
                rm[round(val(rname[p + 3:]))] = (lat2, lon2)
                text += " %s %s %s    %s" % (pid, rname, dms(lat2, 3, 3), dms(-lon2, 3, 3)) + CRLF
                last = pid
            in_table = False
    text += " " + "-" * 23 + " approx. mark-mark dist " + "-" * 23 + CRLF
    for i in range(1, 11):
        for j in range(i + 1, 11):
            if i in rm and j in rm:
                d = geod(["-i"], "%.12f %.12f %.12f %.12f" % (*rm[i], *rm[j]))[2]
                text += " FROM RM %d TO RM %d = %7.2f METERS (%7.2f FEET)" % (i, j, d, d * 3.28083333333333) + CRLF
    return text


main()
