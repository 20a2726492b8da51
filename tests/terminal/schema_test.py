#!/usr/bin/env python3
"""What every verb tells as JSON is what docs/terminal.schema.json describes, and always the same bytes.

    schema_test.py DRAVIK SAMPLE_LEAGUE [unittest options]
"""

import json
import pathlib
import unittest

from harness import TerminalTest

SCHEMA = json.loads((pathlib.Path(__file__).resolve().parents[2] / "docs" / "terminal.schema.json").read_text(encoding="utf-8"))
TYPES = {"object": dict, "array": list, "string": str, "boolean": bool, "null": type(None)}
KNOWN = {"$schema", "$defs", "$ref", "title", "description", "type", "oneOf", "anyOf", "enum", "required", "properties",
         "additionalProperties", "items", "minimum", "maximum"}


def is_of(value, name):
    if name == "integer":
        return isinstance(value, int) and not isinstance(value, bool)
    return isinstance(value, TYPES[name])


def faults(value, schema, where="$"):
    """What of a value is not as a schema says; of its keywords those that the page uses."""
    assert set(schema) <= KNOWN, set(schema) - KNOWN
    found = []
    if "$ref" in schema:
        target = SCHEMA
        for name in schema["$ref"].removeprefix("#/").split("/"):
            target = target[name]
        found += faults(value, target, where)
    if "type" in schema:
        names = schema["type"] if isinstance(schema["type"], list) else [schema["type"]]
        if not any(is_of(value, name) for name in names):
            return found + [f"{where} is no {' or '.join(names)}"]
    if "enum" in schema and value not in schema["enum"]:
        found.append(f"{where}: {value!r} is none of {schema['enum']}")
    if is_of(value, "integer") and not schema.get("minimum", value) <= value <= schema.get("maximum", value):
        found.append(f"{where}: {value} is out of range")
    if "oneOf" in schema:
        fitting = [one for one in schema["oneOf"] if not faults(value, one, where)]
        if len(fitting) != 1:
            found.append(f"{where} fits {len(fitting)} of {len(schema['oneOf'])}")
    if "anyOf" in schema and all(faults(value, one, where) for one in schema["anyOf"]):
        found.append(f"{where} fits none of {len(schema['anyOf'])}")
    if isinstance(value, dict):
        found += [f"{where} lacks {name}" for name in schema.get("required", ()) if name not in value]
        for name, inner in value.items():
            if name in schema.get("properties", {}):
                found += faults(inner, schema["properties"][name], f"{where}.{name}")
            elif schema.get("additionalProperties") is False:
                found.append(f"{where}.{name} is not described")
            elif isinstance(schema.get("additionalProperties"), dict):
                found += faults(inner, schema["additionalProperties"], f"{where}.{name}")
    if isinstance(value, list) and "items" in schema:
        for at, inner in enumerate(value):
            found += faults(inner, schema["items"], f"{where}[{at}]")
    return found


class SchemaTest(TerminalTest):
    def tell(self, kind, *arguments):
        ended = self.run_it(*arguments, "--json")
        value = ended.json()
        self.assertEqual(faults(value, SCHEMA["$defs"][kind]), [], arguments)
        self.assertEqual(faults(value, SCHEMA), [], arguments)
        again = self.run_it(*arguments, "--json")
        self.assertEqual((again.code, again.out), (ended.code, ended.out))

    def test_every_verb_tells_what_the_schema_says(self):
        self.league()
        self.league("Summer.dvs", "--off-season")
        (self.folder / "bad.dvs").write_bytes(b"bad")
        for arguments in ((), ("--team", 5), ("--passwords", self.passwords(["3 puck", "7 wrong"]))):
            self.tell("check", "check", "League.dvs", "bad.dvs", *arguments)
        for what in (("--teams",), ("--roster",), ("--free-agents",), ("--schedule",), ("--lines", 1), ("--lines", 2, "--farm")):
            self.tell("show", "show", "League.dvs", *what)
        self.tell("verify", "verify", "League.dvs", "bad.dvs", "missing.dvs")
        self.tell("saved", "make", "League.dvs", "--team", 5, "--lines", "--out", "5.dvl")
        self.tell("saved", "make", "League.dvs", "--team", 5, "--out", "5.dvl")
        (self.folder / "o.csv").write_text("id,salary,years\n1,700000,1\n")
        self.tell("saved", "offers", "League.dvs", "--team", 1, "--csv", "o.csv", "--out", "o.dvf")
        self.tell("table", "offers", "League.dvs", "--team", 1, "--read", "o.dvf")
        (self.folder / "d.csv").write_text("id\n20005\n")
        self.tell("saved", "draft", "Summer.dvs", "--team", 1, "--csv", "d.csv", "--out", "d.dvd")
        self.tell("table", "draft", "Summer.dvs", "--team", 1, "--read", "d.dvd")
        self.tell("export", "export", "League.dvs")
        self.league("Yesterday.dvs", "--seed", "1", "--deadline")
        for arguments in (("League.dvs",), ("League.dvs", "--team", 7), ("Yesterday.dvs",), ("bad.dvs",), ("missing.dvs",)):
            self.tell("diff", "diff", "Yesterday.dvs", *arguments, "--passwords", "passwords")
        for kind, arguments in (("show", ("show",)), ("saved", ("make", "--team", 1, "--out", "x")), ("export", ("export",)),
                                ("table", ("offers", "--team", 1, "--read", "x"))):
            self.tell(kind, *arguments, "missing.dvs")

    def test_the_validator_finds_what_is_wrong(self):
        good = {"leagues": [{"file": "x", "league": "y", "written": []}]}
        self.assertEqual(faults(good, SCHEMA["$defs"]["export"]), [])
        for bad in ({}, {"leagues": 1}, {"leagues": [{"file": "x"}]}, {"leagues": [{**good["leagues"][0], "more": 1}]},
                    {"leagues": [{**good["leagues"][0], "written": [1]}]}, {**good, "more": 1}):
            self.assertNotEqual(faults(bad, SCHEMA["$defs"]["export"]), [], bad)
        for good, bad in ((1, 0), (100, 101), (None, "1")):
            team = SCHEMA["$defs"]["change"]["properties"]["team"]
            self.assertEqual((faults(good, team), len(faults(bad, team))), ([], 1))


if __name__ == "__main__":
    unittest.main()
