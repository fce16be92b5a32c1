#!/usr/bin/env python3
"""Makes the photo and sketch files of the sample dataset with ImageMagick (run once by hand).

For each mark of sample_marks.py that has "photo" or "sketch", writes PID + "ph.jpg" or
PID + "sk.jpg" into support/samples/: small JPEG images, a close-up "photo" of the disk with its
stamping and a hand-drawn-looking location sketch with the mark, a road and a north arrow. The
images are committed; the build never runs this, as JPEG bytes differ between ImageMagick versions.

Needs ImageMagick 6 ("convert"; apt-get install imagemagick) and the DejaVu fonts.
"""
import os
import shutil
import subprocess
import sys

from sample_marks import MARKS
from support_text import REPO

FONT = "DejaVu-Sans"
CONVERT = "/usr/bin/convert" if os.path.exists("/usr/bin/convert") else shutil.which("convert")


def run(args):
    subprocess.run([CONVERT] + args, check=True)


def ground(mark):
    """A muted, grassy background, the same for the same PID."""
    return ["-size", "320x240", "-seed", str(sum(map(ord, mark["pid"]))), "plasma:olivedrab-tan", "-blur", "0x1",
            "-modulate", "100,25", "-fill", "olivedrab", "-colorize", "30"]


def landmark_photo(mark, path):
    run(ground(mark) + ["-fill", "skyblue", "-draw", "rectangle 0,0 320,150",
         "-stroke", "gray25", "-strokewidth", "3", "-draw", "line 130,230 150,40", "-draw", "line 190,230 170,40",
         "-draw", "line 137,170 183,170", "-draw", "line 142,110 178,110", "-fill", "gray40",
         "-draw", "rectangle 140,22 180,42", "-stroke", "none", "-fill", "white", "-font", FONT,
         "-pointsize", "11", "-gravity", "southeast", "-annotate", "+6+4", mark["pid"] + " " + mark["name"],
         "-quality", "70", "-strip", path])


def photo(mark, path):
    if mark.get("marker", "").isdigit() and mark["marker"] != "71":
        landmark_photo(mark, path)
        return
    stamping = mark.get("stamping") or mark["name"]
    run(ground(mark) + [
         "-fill", "gray60", "-stroke", "gray30", "-strokewidth", "3", "-draw", "circle 160,120 160,40",
         "-fill", "gray75", "-stroke", "gray45", "-strokewidth", "2", "-draw", "circle 160,120 160,60",
         "-stroke", "none", "-fill", "gray20", "-font", FONT, "-pointsize", "13", "-gravity", "center",
         "-annotate", "+0-28", "SURVEY MARK", "-pointsize", "15", "-annotate", "+0+0", stamping,
         "-pointsize", "11", "-annotate", "+0+26", "DO NOT DISTURB",
         "-gravity", "southeast", "-fill", "white", "-pointsize", "11", "-annotate", "+6+4", mark["pid"],
         "-quality", "70", "-strip", path])


def sketch(mark, path):
    run(["-size", "320x240", "xc:white", "-stroke", "black", "-strokewidth", "2", "-fill", "none",
         "-draw", "line 0,170 320,150", "-draw", "line 0,190 320,170", "-strokewidth", "1",
         "-draw", "line 210,0 200,160", "-draw", "rectangle 40,40 110,100",
         "-fill", "black", "-draw", "circle 150,120 155,120",
         "-draw", "line 280,60 280,20", "-draw", "polygon 274,32 280,18 286,32",
         "-stroke", "none", "-font", FONT, "-pointsize", "11",
         "-annotate", "+276+72", "N", "-annotate", "+160+116", mark["name"],
         "-annotate", "+45+118", "BUILDING", "-annotate", "+120+205", "HIGHWAY",
         "-annotate", "+8+232", "SKETCH OF %s (NOT TO SCALE)" % mark["pid"],
         "-quality", "70", "-strip", path])


def main():
    if not CONVERT:
        sys.exit("ImageMagick's convert is needed: apt-get install imagemagick")
    out = os.path.join(REPO, "support", "samples")
    for mark in MARKS:
        if mark.get("photo"):
            photo(mark, os.path.join(out, mark["pid"] + "ph.jpg"))
        if mark.get("sketch"):
            sketch(mark, os.path.join(out, mark["pid"] + "sk.jpg"))
    print(out)


if __name__ == "__main__":
    main()
