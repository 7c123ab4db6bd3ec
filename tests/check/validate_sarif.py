"""Judges what `localize check --format sarif` prints by the schema of SARIF 2.1.0, for a tree with a
finding of every kind, and for one with more findings than are told.

usage: validate_sarif.py LOCALIZE SAMPLES SCHEMA
"""
import json
import pathlib
import shutil
import subprocess
import sys
import tempfile

import jsonschema

localize, samples, schema_file = sys.argv[1:]
schema = json.loads(pathlib.Path(schema_file).read_text())  # scripts/test installs it
jsonschema.Draft7Validator.check_schema(schema)


def check(tree):
    printed = subprocess.run([localize, "check", "--root", tree, "--format", "sarif"],
                             stdout=subprocess.PIPE, check=False)
    assert printed.returncode == 1, printed.returncode
    log = json.loads(printed.stdout)
    jsonschema.Draft7Validator(schema).validate(log)
    return log["runs"][0]


def prints(results):
    return sorted(result["partialFingerprints"]["localize/v1"] for result in results)


with tempfile.TemporaryDirectory() as directory:
    tree = pathlib.Path(directory) / "a tree"
    shutil.copytree(pathlib.Path(samples) / "tree", tree)
    texts = tree / "de" / "Locs" / "main.lt"
    texts.write_text(texts.read_text().replace("$userName", "$😀").replace("Menu.Quit", "menu.QUIT"))
    common = tree / "pt" / "Locs" / "common.lt"
    common.write_bytes(common.read_bytes().replace("ã".encode(), b"\xe3")
                       + b"A = B B = A OK = '\x07' + 'C:\\new'\n")
    (tree / "ja" / "Locs" / "common.lt").write_text("A = 'x' a = 'y'")
    (tree / "ru" / "Plural.rule").write_text("n==1;")
    run = check(tree)
    rules = {result["ruleId"] for result in run["results"]}
    assert {"syntax", "encoding", "duplicate-key", "reference-cycle", "rule-gap", "missing-key"} <= rules, rules
    for result in run["results"]:
        assert run["tool"]["driver"]["rules"][result["ruleIndex"]]["id"] == result["ruleId"]
        assert " " not in result["locations"][0]["physicalLocation"]["artifactLocation"]["uri"]

    # Lines above change no fingerprint.
    common.write_bytes(b"; a line\n\n" + common.read_bytes())
    assert prints(check(tree)["results"]) == prints(run["results"])

    many = "".join(f"Key{i} = 'x'\n" for i in range(6000))
    (tree / "de" / "Locs" / "main.lt").write_text(many)
    run = check(tree)
    assert len(run["results"]) == 5000, len(run["results"])
    assert run["properties"]["omittedResults"] > 1000
    # Errors come first, so that those of later files are told, too.
    levels = [result["level"] for result in run["results"]]
    assert levels == sorted(levels)
    files = {result["locations"][0]["physicalLocation"]["artifactLocation"]["uri"].split("/tree/")[-1].split("/")[-3]
             for result in run["results"] if result["level"] == "error"}
    assert {"de", "ja", "pt"} <= files, files
