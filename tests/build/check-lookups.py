#!/usr/bin/env python3
"""Checks that the module compares identifiers only through common/IdentifierMatch.h, the one
home of its two look-up rules (any letter case everywhere, exactly at a few named places):
code elsewhere in src/ that compares by itself (equalNoCase, compare, FindFirst, case folding,
a Qt::CaseSensitivity) could pick a rule by accident. A few files compare values that are not
identifiers, each named below with what it compares.

    check-lookups.py SRC_DIR

Quiet when all hold; otherwise names each file, line and comparison, and exits 1.
"""
import os
import re
import sys

from checker_support import report

COMPARISON = re.compile(
    r"\.(equalNoCase|compare|FindFirst|toCaseFolded|foldedKey)\s*\("
    r"|Qt::Case(Insensitive|Sensitive)"
    r"|GetIdentifier\(\)\s*[=!]=|[=!]=\s*[\w.>-]*GetIdentifier\(\)")
HOME = {os.path.join("common", "IdentifierMatch.h"), os.path.join("common", "IdentifierMatch.cpp")}
NOT_IDENTIFIERS = {
    os.path.join("module", "CrashReportVersionRule.cpp"): "version numbers",
    os.path.join("module", "CompanionSettings.cpp"): "a setting's value",
    os.path.join("locale", "ProductPage.cpp"): "a language folder's name",
}
SOURCE_SUFFIXES = (".h", ".cpp")


def offences(root):
    top = os.path.basename(os.path.normpath(root))
    for folder, _, files in sorted(os.walk(root)):
        for name in sorted(files):
            path = os.path.join(folder, name)
            relative = os.path.relpath(path, root)
            skipped = relative in HOME or relative in NOT_IDENTIFIERS
            if skipped or not name.endswith(SOURCE_SUFFIXES):
                continue
            with open(path, encoding="utf-8", errors="replace") as stream:
                for number, line in enumerate(stream, 1):
                    code = line.split("//", 1)[0]
                    for match in COMPARISON.finditer(code):
                        yield "%s:%d: compares by itself (%s); look identifiers up through " \
                              "common/IdentifierMatch.h" % (os.path.join(top, relative), number,
                                                            match.group(0).strip("( "))


def main(arguments):
    if len(arguments) != 1 or not os.path.isdir(arguments[0]):
        print("usage: check-lookups.py SRC_DIR", file=sys.stderr)
        return 2
    return report(offences(arguments[0]))


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
