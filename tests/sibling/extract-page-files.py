#!/usr/bin/env python3
"""Writes the files that a documentation page shows, so that a test can build them.

    extract-page-files.py PAGE FOLDER

A code block belongs to a file when the line before its opening fence (blank lines aside) is
the comment <!-- first-sibling: NAME -->. Blocks of the same NAME are joined in the order of the
page, separated by a blank line. FOLDER is emptied first. Exits 1, naming the line, when a marker
is not followed by a code block, a block is not closed, a NAME is not a plain file name, or the
page marks no file at all.
"""
import os
import re
import shutil
import sys

MARKER = re.compile(r"^<!--\s*first-sibling:\s*(\S+)\s*-->\s*$")
FENCE = re.compile(r"^(```+)")


def fail(page, line, problem):
    sys.exit(f"{page}:{line}: {problem}")


def blocks(page, lines):
    """Yields (name, text) for every marked block, in order."""
    at = 0
    while at < len(lines):
        marker = MARKER.match(lines[at])
        at += 1
        if not marker:
            continue
        name, marked_at = marker.group(1), at
        if name in (".", "..") or "/" in name or "\\" in name:
            fail(page, marked_at, f"'{name}' is not a plain file name")
        while at < len(lines) and not lines[at].strip():
            at += 1
        fence = FENCE.match(lines[at]) if at < len(lines) else None
        if not fence:
            fail(page, marked_at, f"the marker of {name} is not followed by a code block")
        at += 1
        body = []
        while at < len(lines) and not lines[at].startswith(fence.group(1)):
            body.append(lines[at])
            at += 1
        if at == len(lines):
            fail(page, marked_at, f"the code block of {name} is not closed")
        at += 1
        yield name, "".join(body)


def main():
    if len(sys.argv) != 3:
        sys.exit("usage: extract-page-files.py PAGE FOLDER")
    page, folder = sys.argv[1], sys.argv[2]
    with open(page, encoding="utf-8") as source:
        lines = source.readlines()
    files = {}
    for name, text in blocks(page, lines):
        files[name] = files[name] + "\n" + text if name in files else text
    if not files:
        sys.exit(f"{page}: no code block is marked as a file (<!-- first-sibling: NAME -->)")
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(folder)
    for name, text in files.items():
        with open(os.path.join(folder, name), "w", encoding="utf-8") as target:
            target.write(text)
    print(f"{len(files)} files from {page}: {', '.join(sorted(files))}")


if __name__ == "__main__":
    main()
