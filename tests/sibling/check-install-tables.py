#!/usr/bin/env python3
"""Checks the tables of a sibling's page against an installed prefix.

    check-install-tables.py PAGE PREFIX

The table of what the package installs (the first table after the heading "## The package")
names files and folders (ending in "/") in its first column, in backquotes: each must be in
PREFIX, and every file in PREFIX must be named or lie in a folder named. The table of imported
targets (the next one) must name exactly the targets that the installed package defines. Exits 1
and names each disagreement.
"""
import os
import re
import sys

CELL = re.compile(r"`([^`]+)`")


def tables_after(lines, heading):
    """The first column of each table after `heading`, as lists of cells, in order."""
    tables, current, seen = [], None, False
    for line in lines:
        if line.startswith("## "):
            if seen:
                break
            seen = line.strip() == heading
            continue
        if not seen:
            continue
        if line.startswith("|"):
            first = line.split("|")[1]
            if current is None:
                current = []
                tables.append(current)
            if not set(first.strip()) <= set("-: "):
                current.append(first)
        else:
            current = None
    return [table[1:] for table in tables]  # without the header row


def main():
    page, prefix = sys.argv[1], sys.argv[2]
    with open(page, encoding="utf-8") as source:
        tables = tables_after(source.readlines(), "## The package: building against ExtCommands")
    if len(tables) < 2:
        sys.exit(f"{page}: no install table and target table under '## The package'")
    named = [entry for row in tables[0] for entry in CELL.findall(row)]
    problems = []
    for entry in named:
        path = os.path.join(prefix, entry)
        if not (os.path.isdir(path) if entry.endswith("/") else os.path.isfile(path)):
            problems.append(f"the page names {entry}, which is not installed")
    folders = tuple(entry for entry in named if entry.endswith("/"))
    for root, _, files in os.walk(prefix):
        for name in files:
            relative = os.path.relpath(os.path.join(root, name), prefix).replace(os.sep, "/")
            if relative not in named and not relative.startswith(folders):
                problems.append(f"{relative} is installed, and the page does not name it")

    targets = {entry for row in tables[1] for entry in CELL.findall(row)}
    with open(os.path.join(prefix, "lib/cmake/ExtCommands/ExtCommandsTargets.cmake")) as package:
        defined = set(re.findall(r"add_library\((ExtCommands::\w+)", package.read()))
    for target in sorted(targets - defined):
        problems.append(f"the page names the target {target}, which the package does not define")
    for target in sorted(defined - targets):
        problems.append(f"the package defines {target}, and the page does not name it")

    for problem in problems:
        print(problem, file=sys.stderr)
    if problems:
        sys.exit(1)
    print(f"{len(named)} installed files and folders and {len(defined)} targets, as the page says")


if __name__ == "__main__":
    main()
