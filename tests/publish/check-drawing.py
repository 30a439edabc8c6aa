#!/usr/bin/python3
"""Audits the drawing COPY with ezdxf and compares it, group for group, with SOURCE.

    check-drawing.py COPY SOURCE

Exits 0 when ezdxf reads COPY without audit errors and both files hold the same groups (code
and value, comments included) in the same order; otherwise says what differs and exits 1.
"""
import sys

import ezdxf
from ezdxf.lldxf.tagger import ascii_tags_loader


def groups(path: str):
    with open(path, encoding="utf-8", errors="surrogateescape") as stream:
        return [(tag.code, tag.value) for tag in ascii_tags_loader(stream, skip_comments=False)]


def main() -> int:
    if len(sys.argv) != 3:
        sys.exit("usage: check-drawing.py COPY SOURCE")
    copy, source = sys.argv[1], sys.argv[2]
    try:
        auditor = ezdxf.readfile(copy).audit()
        written, original = groups(copy), groups(source)
    except (OSError, ezdxf.DXFError) as error:
        print(f"check-drawing.py: {error}")
        return 1
    if auditor.has_errors:
        for error in auditor.errors:
            print(f"audit: {error.message}")
        return 1
    for index, (a, b) in enumerate(zip(written, original)):
        if a != b:
            print(f"group {index} differs: {a!r} written, {b!r} in the source")
            return 1
    if len(written) != len(original):
        print(f"{len(written)} groups written, {len(original)} in the source")
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
