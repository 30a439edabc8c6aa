#!/usr/bin/python3
"""Writes the drawings that the publishing tests open, with ezdxf, into the folder given:

    site/plan.dxf         a small floor plan without references
    site/café.dxf, site/平面.dxf
                          the same plan under names within and beyond Latin-1
    tree/main.dxf         references parts/a.dxf, missing.dxf (which is not there), pipe.dxf
                          and /dev/zero (which are not files: the test makes the pipe),
                          other/b.dxf (a second b.dxf) and parts/部品 ß.dxf
    tree/parts/a.dxf      references ../shared/b.dxf and, by their absolute paths, tree/c.dxf
                          and tree/far/e.dxf
    tree/shared/b.dxf     references ../main.dxf and ..\\parts\\a.dxf (both circular), and
                          ..\\side\\f.dxf
    tree/c.dxf, tree/far/e.dxf, tree/side/f.dxf, tree/other/b.dxf, tree/parts/部品 ß.dxf
                          drawings without references
"""
import pathlib
import sys

import ezdxf


def new_drawing(label: str):
    doc = ezdxf.new("R2010")
    msp = doc.modelspace()
    msp.add_lwpolyline([(0, 0), (12, 0), (12, 8), (0, 8)], close=True)
    msp.add_line((7, 0), (7, 8))
    msp.add_circle((3, 3), radius=1.5)
    msp.add_text(label, height=0.5).set_placement((1, 7))
    return doc


def save(path: pathlib.Path, label: str, references=()) -> None:
    doc = new_drawing(label)
    for name, target in references:
        doc.add_xref_def(target, name)
        doc.modelspace().add_blockref(name, (20, 0))
    path.parent.mkdir(parents=True, exist_ok=True)
    doc.saveas(path)


def main() -> None:
    if len(sys.argv) != 2:
        sys.exit("usage: make-drawings.py FOLDER")
    out = pathlib.Path(sys.argv[1]).resolve()
    tree = out / "tree"
    save(out / "site" / "plan.dxf", "PLAN")
    save(out / "site" / "café.dxf", "PLAN")
    save(out / "site" / "平面.dxf", "PLAN")
    save(tree / "main.dxf", "MAIN", [("PARTA", "parts/a.dxf"), ("GONE", "missing.dxf"),
                                     ("PIPE", "pipe.dxf"), ("DEVICE", "/dev/zero"),
                                     ("OTHERB", "other/b.dxf"), ("WIDE", "parts/部品 ß.dxf")])
    save(tree / "parts" / "a.dxf", "A", [("SHARED", "../shared/b.dxf"), ("DETAIL", str(tree / "c.dxf")),
                                         ("FAR", str(tree / "far" / "e.dxf"))])
    save(tree / "shared" / "b.dxf", "B", [("BACK", "../main.dxf"), ("AGAIN", "..\\parts\\a.dxf"),
                                          ("SIDE", "..\\side\\f.dxf")])
    save(tree / "c.dxf", "C")
    save(tree / "far" / "e.dxf", "E")
    save(tree / "side" / "f.dxf", "F")
    save(tree / "other" / "b.dxf", "OTHER B")
    save(tree / "parts" / "部品 ß.dxf", "WIDE")


if __name__ == "__main__":
    main()
