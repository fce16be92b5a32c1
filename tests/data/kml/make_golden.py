#!/usr/bin/env python3
"""Writes marks.ndx, a small index, and marks.kml, the KML file the Google Earth command must make
of it, worked out here apart from the program: decimal degrees as degrees + minutes / 60 +
seconds / 3600, to radians by times pi / 180 and back by / pi * 180 (pi = 3.14159265358979), written
with 15 significant digits and no trailing zeros; the view over the mean of the extent's bounds."""
PI = 3.14159265358979
URL = "http://127.0.0.1:8642/cgi-bin/ds_mark.prl?PidBox="
ICONS = "http://maps.google.com/mapfiles/kml/shapes/"

# PID, horizontal order, vertical order, latitude, longitude, designation (code page bytes), CORS flag
MARKS = [
    ("KM0001", "A", " ", "39 44 52.12345", "104 59 01.54321", b"ORBIS CORS ARP", "C"),
    ("KM0002", "S", "1", "39 45 10.00000", "105 01 30.98765", b"SPECIAL STAR", " "),
    ("KM0003", "B", " ", "39 40 00.55555", "104 55 59.99999", b"BROWN HILL", " "),
    ("KM0004", "1", "2", "39 41 11.11111", "104 58 22.22222", b"FIRST ORDER 1934", " "),
    ("KM0005", "2", " ", "39 42 33.33333", "105 00 44.44444", b"SECOND ORDER", " "),
    ("KM0006", "3", " ", "39 43 45.67890", "104 57 12.34567", b"THIRD ORDER", " "),
    ("KM0007", " ", "1", "39 46 01.00001", "105 02 02.00002", b"LEVEL ONE", " "),
    ("KM0008", " ", "2", "39 39 59.99999", "104 54 00.00001", b"LEVEL TWO", " "),
    ("KM0009", "4", "3", "39 42 00.00000", "105 00 00.00000", b"FOURTH AND THIRD", " "),
    ("KM0010", " ", " ", "39 43 00.00000", "104 59 00.00000", b"", " "),
    ("KM0011", "1", " ", "39 43 0*.00000", "104 59 00.00000", b"STAR IN SECONDS", " "),
    ("KM0012", "2", "1", "39 44 00.50000", "104 58 00.25000", b"CAF\xc9 & <MILL> \x93TOP\x94", " "),
]
STYLES = [("PnkStar", "ffff80ff", "star"), ("PnkTri", "ffff80ff", "triangle"), ("BrnTri", "ffffC080", "triangle"),
          ("RedTri", "ff0000ff", "triangle"), ("BluTri", "ffff0000", "triangle"), ("BlkTri", "ff000000", "triangle"),
          ("BluSqr", "ffff0000", "square"), ("RedSqr", "ff0000ff", "square"), ("BlkSqr", "ff000000", "square"),
          ("WhtSqr", "ffffffff", "square")]


def record(pid, h, v, lat, lon, name, cors, offset):
    flags = " ".join([" ", " ", " ", cors, " ", " ", " ", " ", " "])
    text = (pid.encode() + b" " + h.encode() + b" " + v.encode() + b" " + lat.encode() + b" " + lon.encode() + b" "
            + name.ljust(30) + b" " + b"DENVER".ljust(23) + b" " + flags.encode() + b" 2001 2019 G OCO    "
            + b"%09d |" % offset)
    assert len(text) == 145 and text[103:104] == cors.encode(), text
    return text


def plain(x):
    if x == 0:
        return "0"
    mantissa, exponent = ("%.14e" % abs(x)).split("e")
    digits = (mantissa[0] + mantissa[2:]).rstrip("0") or "0"
    e = int(exponent)
    assert -4 <= e < 15
    whole = e + 1
    if e < 0:
        s = "0." + "0" * (-e - 1) + digits
    elif len(digits) <= whole:
        s = digits + "0" * (whole - len(digits))
    else:
        s = digits[:whole] + "." + digits[whole:]
    return ("-" if x < 0 else "") + s


def degrees(text):
    d, m, s = text.split()
    return float(d) + float(m) / 60.0 + float(s) / 3600.0


def readable(text):
    return "*" not in text


def round_trip(deg):
    return deg * PI / 180.0 / PI * 180.0


def leading(text):  # the extent's leading-number read of one slice
    out = ""
    for c in text.replace(" ", ""):
        if not (c.isdigit() or c == "."):
            break
        out += c
    return float(out) if out else 0.0


def extent_value(text, width):
    return leading(text[:width]) + leading(text[width + 1:width + 3]) / 60 + leading(text[width + 4:width + 12]) / 3600


def main():
    lines, offset = [], 1
    for m in MARKS:
        lines.append(record(*m, offset))
        offset += 4000
    with open("marks.ndx", "wb") as f:
        f.write(b"".join(line + b"\r\n" for line in lines))
        f.write(b" " * 134 + b"%09d |\r\n" % offset)

    lats = [extent_value(m[3], 2) for m in MARKS]
    lons = [extent_value(m[4], 3) for m in MARKS]
    out = ['<?xml version="1.0" encoding="UTF-8"?>', '<kml xmlns="http://www.opengis.net/kml/2.2">', "<Document>"]
    for sid, color, shape in STYLES:
        out += ['  <Style id="%s">' % sid, "    <IconStyle>", "      <color>%s</color>" % color,
                "      <colorMode>normal</colorMode>", "      <scale>0.75</scale>", "      <Icon>",
                "        <href>%s%s.png</href>" % (ICONS, shape), "      </Icon>", "    </IconStyle>", "  </Style>"]
    for sid, width in (("LevLin", "1"), ("DblLevLin", "4")):
        out += ['  <Style id="%s">' % sid, "    <LineStyle>", "      <color>ffffffff</color>",
                "      <width>%s</width>" % width, "    </LineStyle>", "  </Style>"]
    out += ['  <LookAt id="ID">', "    <longitude>%s</longitude>" % plain(-((min(lons) + max(lons)) / 2)),
            "    <latitude>%s</latitude>" % plain((min(lats) + max(lats)) / 2), "    <altitude>500000</altitude>",
            "    <heading>0</heading>", "    <tilt>0</tilt>", "  </LookAt>"]
    style = {"S": "PnkStar", "A": "PnkTri", "0": "PnkTri", "B": "BrnTri", "1": "BluTri", "2": "RedTri", "3": "BlkTri"}
    for pid, h, v, lat, lon, name, _ in MARKS:
        if not readable(lat) or not readable(lon):
            continue
        text = name.decode("cp1252").strip().replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;")
        out += ["  <Placemark>", "    <name>%s</name>" % text]
        if name.strip():
            out.append("    <description><![CDATA[%s%s]]></description>" % (URL, pid))
        out.append("    <altitudeMode>clampToGround</altitudeMode>")
        out.append("    <styleUrl>#%s</styleUrl>" % style.get(h, {"1": "BluSqr", "2": "RedSqr"}.get(v, "BlkSqr")))
        out += ["    <Point>", "      <coordinates>%s,%s</coordinates>" % (
            plain(-round_trip(degrees(lon))), plain(round_trip(degrees(lat)))), "    </Point>", "  </Placemark>"]
    out += ["</Document>", "</kml>"]
    with open("marks.kml", "wb") as f:
        f.write("".join(line + "\r\n" for line in out).encode("utf-8"))


main()
