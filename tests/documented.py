"""Holds the docs against the build: keys of definition files, rules, members and commands are all described.

Run from the top of the sources with the path of htdrdd. Prints one line for each missing place.
"""
import pathlib
import re
import subprocess
import sys

missing = []


def demand(place, words, told=None):
    if words not in pathlib.Path(place).read_text(encoding="utf-8"):
        missing.append(f"{place} doesn't name {told or words}")


def keys():
    for key in sorted(set(re.findall(r"^([A-Za-z]\w+)=", pathlib.Path("tests/words/saved.txt").read_text(), re.M))):
        demand("docs/definition-file.md", f"`{key}`")
        demand("fuzz/definition.dict", f'"{key}="')


def rules():
    """Each enumerator of a list of rules has a number in the table of its section."""
    chapters = re.split(r"^## ", pathlib.Path("docs/validation.md").read_text(encoding="utf-8"), flags=re.M)
    for source in pathlib.Path("src").rglob("*_rules.cpp"):
        name, enumerators = re.search(r"^enum (\w+)Rule : std::size_t \{([^}]*)\}", source.read_text(), re.M).groups()
        title = {"Key": "Answer key", "Version": "Test versions", "Subtest": "Learning objectives",
                 "GradeScale": "Grade scale", "ScaledScore": "Scaled score"}[name]
        numbers = [int(n) for row in re.findall(r"^\| ([\d, ]+) \|", next(c for c in chapters if c.startswith(title)), re.M)
                   for n in row.split(",")]
        if name != "Subtest" and numbers != list(range(1, enumerators.count(",") + 1)):
            missing.append(f"docs/validation.md, {title}: has rows {numbers} for the rules {' '.join(enumerators.split())}")


def forms():
    """Members that read or write grade scales and scaled scores in a form of their own are described and fuzzed."""
    listing = pathlib.Path("docs/interfaces.txt").read_text()
    for name in sorted(set(re.findall(r" ((?:Export|Import|\w+(?:To|From)[A-Z]|(?:To|From)[A-Z])\w*)\(", listing))):
        demand("docs/exchange.md", f"`{name}`")
        demand("fuzz/forms_fuzz.cpp", f"{name}(")


def commands(htdrdd, *path):
    usage = subprocess.run([htdrdd, *path, "--help"], capture_output=True, text=True, check=True).stdout
    if path:
        demand("docs/command-line.md", "htdrdd " + " ".join(path))
        if not usage.count("Usage: htdrdd " + " ".join(path)):
            missing.append(f"{' '.join(path)} --help doesn't tell how to use it")
    listed = re.search(r"^Subcommands:\n(.*?)(?:\n\n|\Z)", usage, re.M | re.S)
    for command in re.findall(r"^  ([a-z-]+)", listed[1] if listed else "", re.M):
        commands(htdrdd, *path, command)


keys()
rules()
forms()
commands(sys.argv[1])
sys.exit("\n".join(missing) or None)
