#!/usr/bin/env python3
"""Writes a drawing tree for the benchmarks: root.dxf referencing COUNT drawings in refs/,
each an ASCII DXF drawing of about SIZE kilobytes of lines. Written as text, not through a
DXF library, so that 100 MB takes a second rather than minutes.

    make-drawing-tree.py FOLDER [--count 200] [--size-kb 512]
"""
import argparse
import os
import sys

HEADER = "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1027\n  0\nENDSEC\n"


def drawing(references, size_kb):
    parts = [HEADER, "  0\nSECTION\n  2\nBLOCKS\n"]
    for index, path in enumerate(references):
        parts.append("  0\nBLOCK\n  2\nREF%d\n 70\n4\n  1\n%s\n  0\nENDBLK\n" % (index, path))
    parts.append("  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n")
    line = "  0\nLINE\n  8\n0\n 10\n%d.0\n 20\n0.0\n 11\n%d.0\n 21\n1.0\n"
    size, n = 0, 0
    while size < size_kb * 1024:
        text = line % (n, n + 1)
        parts.append(text)
        size += len(text)
        n += 1
    parts.append("  0\nENDSEC\n  0\nEOF\n")
    return "".join(parts)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("folder")
    parser.add_argument("--count", type=int, default=200)
    parser.add_argument("--size-kb", type=int, default=512)
    args = parser.parse_args()
    if args.count < 0 or args.size_kb < 0:
        sys.exit("make-drawing-tree: --count and --size-kb take a number of 0 or more")
    refs = os.path.join(args.folder, "refs")
    os.makedirs(refs, exist_ok=True)
    body = drawing([], args.size_kb)
    for index in range(args.count):
        with open(os.path.join(refs, "part%03d.dxf" % index), "w") as out:
            out.write(body)
    with open(os.path.join(args.folder, "root.dxf"), "w") as out:
        out.write(drawing(["refs/part%03d.dxf" % i for i in range(args.count)], 4))


if __name__ == "__main__":
    main()
