"""The tables of data/ for the tools that look at the figures in them."""

from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
DATA = ROOT / "data"


def read(path):
    """The rows of a table of tab-separated cells as dictionaries by column name; row 1 is the first below the header."""
    lines = path.read_text(encoding="utf-8").removesuffix("\n").split("\n")
    header = lines[0].split("\t")
    return [dict(zip(header, line.split("\t"), strict=True)) for line in lines[1:]]


def table(name):
    return read(DATA / "tables" / f"{name}.tsv")


def names():
    return sorted(path.stem for path in (DATA / "tables").glob("*.tsv"))
