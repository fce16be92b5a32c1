"""Shared helpers of the support-file generators (standard library only).

Every generator reads the public source tables of the data folder (default: ../shared/data beside
the repository) and writes one support file into the output folder (default: support/ of the
repository). Files are plain ASCII text with CR LF line ends, so that they read the same on every
system, and a generator run twice on the same tables writes the same bytes.
"""
import argparse
import csv
import os
import unicodedata

REPO = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
DEFAULT_DATA = os.path.join(os.path.dirname(REPO), "shared", "data")
DEFAULT_OUT = os.path.join(REPO, "support")


def parse_args(description):
    """Command line of every generator: --data DIR (source tables), --out DIR (target folder)."""
    parser = argparse.ArgumentParser(description=description)
    parser.add_argument("--data", default=DEFAULT_DATA, help="folder of the source tables")
    parser.add_argument("--out", default=DEFAULT_OUT, help="folder to write the file into")
    return parser.parse_args()


def read_table(data_dir, name):
    """The rows of a CSV source table as dictionaries, in file order."""
    with open(os.path.join(data_dir, name), encoding="utf-8", newline="") as f:
        return list(csv.DictReader(f))


def ascii_text(text):
    """Accented letters lose their marks ("Doña" -> "Dona"); other non-ASCII characters go."""
    return unicodedata.normalize("NFKD", text).encode("ascii", "ignore").decode("ascii")


def ascii_upper(text):
    return ascii_text(text).upper()


def write_lines(out_dir, name, lines):
    """Writes the lines, each ended by CR LF, as ASCII bytes; returns the path."""
    os.makedirs(out_dir, exist_ok=True)
    path = os.path.join(out_dir, name)
    data = "".join(line + "\r\n" for line in lines).encode("ascii")
    with open(path, "wb") as f:
        f.write(data)
    return path
