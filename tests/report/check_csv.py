"""Reads tables with Python's csv and holds them against the JSON reports of the
same collections.

  check_csv.py FOLDER    FOLDER holds NAME.json and NAME.CLASS.csv for each NAME
"""

import csv
import json
import pathlib
import re
import sys

NUMBER = re.compile(r"[+-]?[0-9]+(\.[0-9]+)?([eE][+-]?[0-9]+)?")
BESIDE_PROPERTIES = ["Reading", "Unit", "State"]


def cell(value):
    """A value of the report as the table has it."""
    if value[:1] in ("=", "+", "-", "@", "\t", "\r") and not NUMBER.fullmatch(value):
        return "'" + value
    return value


def read_report(path):
    """Numbers stay as they are written: no digit of them may get lost."""
    return json.loads(path.read_text("utf-8"), parse_int=str, parse_float=str)


def read_table(path):
    with path.open(encoding="utf-8", newline="") as file:
        rows = list(csv.reader(file, strict=True))
    return rows[0], rows[1:]


def expected_row(instance, header):
    said = dict(instance["properties"])
    unknown = set(said) - set(header)
    if unknown:
        raise ValueError(f"the table has no columns {sorted(unknown)}")
    for name in BESIDE_PROPERTIES:
        if name in header:
            said[name] = instance.get(name.lower(), "")
    return [cell(said.get(name, "")) for name in header]


def check(table):
    name, class_name, _ = table.name.split(".")
    header, rows = read_table(table)
    instances = read_report(table.with_name(name + ".json"))["instances"]
    expected = [
        expected_row(instance, header)
        for instance in instances
        if instance["class"] == class_name
    ]
    if rows != expected:
        raise ValueError(f"expected {expected}, got {rows}")


def main():
    tables = sorted(pathlib.Path(sys.argv[1]).glob("*.csv"))
    for table in tables:
        try:
            check(table)
        except (ValueError, csv.Error) as error:
            sys.exit(f"{table.name}: {error}")
    print(f"{len(tables)} tables are as their reports say")


main()
