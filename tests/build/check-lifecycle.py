#!/usr/bin/env python3
"""Keeps docs/lifecycle.md and what points to it honest:
 - every test that a row names as checking it ("Suite.Name" in backticks) is a test of tests/;
 - every pointer to a row in the sources, tests and docs names a row the page has: the page's
   name and a comma, then "row" and the row's name in double quotes, or "rows" and several
   names, joined by commas and "and" (a pointer may go on over comment lines); on the page
   itself, "(row" and a name in double quotes;
 - no two rows share a name.

    check-lifecycle.py REPOSITORY

Quiet when all hold; otherwise names each broken pointer and missing test, and exits 1.
"""
import os
import re
import sys

from checker_support import report

PAGE = os.path.join("docs", "lifecycle.md")
FOLDERS = ("src", "include", "tests", "docs", "samples")
SUFFIXES = (".h", ".cpp", ".md", ".txt", ".cmake", ".in")
TEST = re.compile(r"\bTEST(?:_F|_P)?\(\s*(\w+)\s*,\s*(\w+)\s*\)")
CHECKED = re.compile(r"`(\w+)\.(\w+)`")
NAMES = r'((?:"[^"]+"(?:\s*,\s*|\s+and\s+)?)+)'
POINTER = re.compile(r"docs/lifecycle\.md,\s+rows?\s+" + NAMES)
ON_PAGE = re.compile(r"\(rows?\s+" + NAMES + r"\)")
# A comment that goes on over the next line reads as one line.
CONTINUATION = re.compile(r"\n[ \t]*(?://|#)?[ \t]*")


def read(path):
    with open(path, encoding="utf-8", errors="replace") as stream:
        return stream.read()


def rows(page):
    """The rows of the page's tables: name -> the tests named in the last cell."""
    found, duplicates = {}, []
    for line in page.splitlines():
        cells = [cell.strip() for cell in line.strip().strip("|").split("|")]
        if not line.startswith("|") or cells[0] in ("row", "") or set(cells[0]) <= set("-: "):
            continue
        if cells[0] in found:
            duplicates.append(cells[0])
        found[cells[0]] = CHECKED.findall(cells[-1])
    return found, duplicates


def files(root):
    for folder in FOLDERS:
        for top, _, names in os.walk(os.path.join(root, folder)):
            for name in sorted(names):
                if name.endswith(SUFFIXES):
                    yield os.path.join(top, name)
    yield os.path.join(root, "README.md")


def pointers(text, pattern):
    for match in pattern.finditer(CONTINUATION.sub(" ", text)):
        yield from re.findall(r'"([^"]+)"', match.group(1))


def problems(root):
    page_path = os.path.join(root, PAGE)
    page = read(page_path)
    named, duplicates = rows(page)
    for name in duplicates:
        yield "%s: two rows are called \"%s\"" % (PAGE, name)
    tests = set()
    for path in files(root):
        if path.endswith(".cpp") and os.path.relpath(path, root).startswith("tests"):
            tests.update(TEST.findall(read(path)))
    for name, checked in named.items():
        for suite, test in checked:
            if (suite, test) not in tests:
                yield "%s: row \"%s\" is checked by %s.%s, which is no test" % (PAGE, name, suite,
                                                                              test)
    for path in files(root):
        if not os.path.isfile(path):
            continue
        on_page = os.path.samefile(path, page_path)
        for name in pointers(read(path), ON_PAGE if on_page else POINTER):
            if name not in named:
                yield "%s: points to a row that %s lacks: \"%s\"" % (os.path.relpath(path, root),
                                                                     PAGE, name)


def main(arguments):
    if len(arguments) != 1 or not os.path.isfile(os.path.join(arguments[0], PAGE)):
        print("usage: check-lifecycle.py REPOSITORY (the folder that holds %s)" % PAGE,
              file=sys.stderr)
        return 2
    return report(problems(arguments[0]))


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
