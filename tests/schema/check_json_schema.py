"""Holds reports against a JSON schema of draft 2020-12.

  check_json_schema.py SCHEMA FOLDER    FOLDER/valid*.json have to be valid,
                                        FOLDER/wrong*.json have not to be
"""

import json
import pathlib
import sys

import jsonschema


def read(path):
    return json.loads(pathlib.Path(path).read_text("utf-8"))


def main():
    schema = read(sys.argv[1])
    jsonschema.Draft202012Validator.check_schema(schema)
    validator = jsonschema.Draft202012Validator(schema)
    folder = pathlib.Path(sys.argv[2])
    valid = sorted(folder.glob("valid*.json"))
    wrong = sorted(folder.glob("wrong*.json"))
    for path in valid:
        for error in validator.iter_errors(read(path)):
            sys.exit(f"{path.name}: {error.json_path}: {error.message}")
    for path in wrong:
        report = read(path)
        if validator.is_valid(report):
            sys.exit(f"{path.name} is admitted: {json.dumps(report)}")
    print(f"{len(valid)} valid, {len(wrong)} refused")


main()
