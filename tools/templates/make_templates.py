#!/usr/bin/env python3
"""Writes the delivered template files of the log into data/.

    make_templates.py           write the files
    make_templates.py --check   compare with data/ and with tests/data/callsigns.tsv,
                                exit 1 on any difference

Sources of the facts: ARRL DXCC list (entities and their numbers), ITU Radio Regulations
Appendix 42 (table of allocation of international call sign series), INSEE (departments).
"""

import argparse
import itertools
import re
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
ROOT = HERE.parent.parent
DATA = ROOT / "data"
CALLSIGNS = ROOT / "tests" / "data" / "callsigns.tsv"

ENCODING = "cp1252"
EOL = "\r\n"

# The log compares five characters of a call sign, whatever stands in column 6 and 7.
MAX_PREFIX = 5
MAX_COUNTRY = 35
CURRENT_ENTITIES = 340

# The award counters of the log take exactly these lines for metropolitan France and Corsica,
# so one line more or less would falsify them.
FRANCE = {"F", "TH", "TM", "TP", "TQ", "TV", "TW", "HW", "HX", "HY"}
CORSICA = {"TK"}

FIELDS = ("IM", "IN", "IO", "JM", "JN", "JO", "KM", "KN", "KO")


class SourceError(Exception):
    pass


def rows(path):
    """Yields (line number, cells) of a source table, without comments and empty lines."""
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if line.strip() and not line.startswith("#"):
            yield number, [cell.strip() for cell in line.split("\t")]


def expand(pattern):
    """Turns "D[A-C]" into DA, DB, DC."""
    choices = []
    for group, single in re.findall(r"\[([^\]]+)\]|(.)", pattern):
        if single:
            choices.append(single)
            continue
        letters = ""
        for first, last, one in re.findall(r"(.)-(.)|(.)", group):
            if one:
                letters += one
            elif first <= last:
                letters += "".join(chr(c) for c in range(ord(first), ord(last) + 1))
            else:
                raise SourceError(f"range {first}-{last} runs backwards in {pattern}")
        choices.append(letters)
    return ["".join(parts) for parts in itertools.product(*choices)]


def read_prefixes(path):
    """Returns {prefix: country} after checking the table for consistency."""
    country_of = {}
    name_of_entity = {}
    number, name = "", ""
    for line, cells in rows(path):
        try:
            if not 3 <= len(cells) <= 4:
                raise SourceError(f"{len(cells)} columns instead of 3 or 4")
            if cells[0]:
                number, name = cells[0], cells[1]
                if number != "-":
                    if not number.isdigit():
                        raise SourceError(f"bad DXCC number {number!r}")
                    if number in name_of_entity or name in name_of_entity.values():
                        raise SourceError(f"{number} {name} stands twice")
                    name_of_entity[number] = name
            elif cells[1] or not name:
                raise SourceError("a row that goes on must leave the columns 1 and 2 empty")
            if not 0 < len(name) <= MAX_COUNTRY:
                raise SourceError(f"{name!r} is longer than {MAX_COUNTRY} characters")
            name.encode(ENCODING)
            for prefix in itertools.chain.from_iterable(map(expand, cells[2].split())):
                if not re.fullmatch(r"[0-9A-Z/]{1,%d}" % MAX_PREFIX, prefix):
                    raise SourceError(f"{prefix!r} is no prefix of 1 to {MAX_PREFIX} characters")
                if prefix in country_of:
                    raise SourceError(f"{prefix} stands for {country_of[prefix]} already")
                country_of[prefix] = name
        except (SourceError, UnicodeEncodeError) as error:
            raise SourceError(f"{path.name}:{line}: {error}") from None
    if len(name_of_entity) != CURRENT_ENTITIES:
        raise SourceError(f"{path.name}: {len(name_of_entity)} entities, not {CURRENT_ENTITIES}")
    for wanted, name in ((FRANCE, "France"), (CORSICA, "Corse")):
        found = {prefix for prefix, country in country_of.items() if country == name}
        if found != wanted:
            raise SourceError(f"{path.name}: {name} has {sorted(found)}")
    return country_of


def in_lookup_order(prefixes):
    """Alphabetical, but the end of a prefix counts as the last letter of all.

    So KH0 and KH stand before K, and still all of K stands together.
    """
    return sorted(prefixes, key=lambda prefix: prefix + "\x7f")


def check_none_hidden(ordered):
    above = set()
    for prefix in ordered:
        for length in range(1, len(prefix) + 1):
            if prefix[:length] in above:
                raise SourceError(f"{prefix} is hidden by {prefix[:length]} above it")
        above.add(prefix)


def prefix_file(country_of):
    ordered = in_lookup_order(country_of)
    check_none_hidden(ordered)
    return [f"{prefix:<7}{'0' * 17}  {country_of[prefix]}" for prefix in ordered]


def department_file(path):
    lines = []
    seen = set()
    for line, (key, name) in rows(path):
        if len(key) != 2 or key in seen:
            raise SourceError(f"{path.name}:{line}: key {key!r} is bad or stands twice")
        seen.add(key)
        lines.append(f"{key} {'0' * 17} {name}")
    return lines


def locator_file():
    return [f"{field}{square:02d} {'0' * 8}" for field in FIELDS for square in range(100)]


def encoded(lines):
    return "".join(line + EOL for line in lines).encode(ENCODING)


def country_by_lines(lines, callsign):
    """Looks a call sign up in the finished lines, in the way the log does."""
    for line in lines:
        if callsign.startswith(line[:MAX_PREFIX].strip()):
            return line[26:]
    return None


def check_callsigns(lines, path):
    """Returns the complaints about call signs whose country is not the expected one."""
    complaints = []
    known = {line[26:] for line in lines}
    heard = set()
    for number, (callsign, expected) in rows(path):
        found = country_by_lines(lines, callsign)
        heard.add(expected)
        if found != expected:
            complaints.append(f"{path.name}:{number}: {callsign} is {found}, not {expected}")
    for name in sorted(known - heard):
        complaints.append(f"{path.name}: no call sign of {name}")
    return complaints


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--check", action="store_true", help="compare only, write nothing")
    arguments = parser.parse_args()

    try:
        prefixes = prefix_file(read_prefixes(HERE / "prefixes.tsv"))
        files = {
            "FXXXX.log": b"",
            "Nomenclature.txt": b"",
            "FXXXX_Departement.txt": encoded(department_file(HERE / "departements.tsv")),
            "FXXXX_Locator.txt": encoded(locator_file()),
            "FXXXX_Prefixe.txt": encoded(prefixes),
        }
    except SourceError as error:
        print(error, file=sys.stderr)
        return 1

    if not arguments.check:
        DATA.mkdir(exist_ok=True)
        for name, content in files.items():
            (DATA / name).write_bytes(content)
        return 0

    complaints = []
    for name, content in files.items():
        path = DATA / name
        if not path.is_file():
            complaints.append(f"{name} is missing")
        elif path.read_bytes() != content:
            complaints.append(f"{name} differs from its source")
    complaints += check_callsigns(prefixes, CALLSIGNS)
    for complaint in complaints:
        print(complaint, file=sys.stderr)
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
