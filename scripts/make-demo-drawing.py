#!/usr/bin/python3
"""Writes the drawings the host shows.

    make-demo-drawing.py                      host/demo/plan.dxf, the demo session's floor plan
    make-demo-drawing.py --entities N OUTPUT  a generated drawing of N entities (lines,
                                              polylines, circles, arcs and texts in a grid),
                                              to measure how fast the host draws
"""
import argparse
import math
import pathlib

import ezdxf

OUTPUT = pathlib.Path(__file__).resolve().parent.parent / "host" / "demo" / "plan.dxf"


def add_furniture_blocks(doc) -> None:
    table = doc.blocks.new("TABLE4")
    table.add_lwpolyline([(-0.6, -0.4), (0.6, -0.4), (0.6, 0.4), (-0.6, 0.4)], close=True)
    for x, y in ((-0.35, -0.65), (0.35, -0.65), (-0.35, 0.65), (0.35, 0.65)):
        table.add_circle((x, y), 0.2)
    bed = doc.blocks.new("BED")
    bed.add_lwpolyline([(0, 0), (1.6, 0), (1.6, 2.0), (0, 2.0)], close=True)
    bed.add_lwpolyline([(0.1, 1.55), (0.75, 1.55), (0.75, 1.9), (0.1, 1.9)], close=True)
    bed.add_lwpolyline([(0.85, 1.55), (1.5, 1.55), (1.5, 1.9), (0.85, 1.9)], close=True)
    bed.add_line((0, 1.3), (1.6, 1.3))
    # A block of blocks: the dining set is a table that holds a plant.
    dining = doc.blocks.new("DINING")
    dining.add_blockref("TABLE4", (0, 0))
    dining.add_circle((0, 0), 0.15)


def add_door(msp, hinge, width, angle) -> None:
    a = math.radians(angle)
    leaf_end = (hinge[0] + width * math.cos(a + math.pi / 2), hinge[1] + width * math.sin(a + math.pi / 2))
    msp.add_line(hinge, leaf_end)
    msp.add_arc(hinge, width, angle, angle + 90)


def make_plan(output: pathlib.Path) -> None:
    doc = ezdxf.new("R2010")
    add_furniture_blocks(doc)
    msp = doc.modelspace()
    # Outer walls, 0.3 thick, and the inner walls.
    msp.add_lwpolyline([(0, 0), (16, 0), (16, 10), (0, 10)], close=True)
    msp.add_lwpolyline([(0.3, 0.3), (15.7, 0.3), (15.7, 9.7), (0.3, 9.7)], close=True)
    msp.add_line((9, 0.3), (9, 4.2))
    msp.add_line((9, 5.2), (9, 9.7))
    msp.add_line((0.3, 5), (5.5, 5))
    msp.add_line((6.5, 5), (9, 5))
    msp.add_line((12.5, 0.3), (12.5, 4))
    msp.add_line((12.5, 4), (15.7, 4))
    add_door(msp, (9, 4.2), 1.0, 0)
    add_door(msp, (5.5, 5), 1.0, 270)
    add_door(msp, (13.2, 4), 0.9, 180)
    # Windows in the outer walls.
    for x in (2, 6.5, 11, 14):
        msp.add_line((x, 9.85), (x + 1.2, 9.85))
    for y in (2, 7):
        msp.add_line((15.85, y), (15.85, y + 1.2))
    # Columns, furniture and the kitchen counter.
    for x, y in ((4.5, 0.6), (9, 9.4), (12.5, 9.4)):
        msp.add_circle((x, y), 0.2)
    msp.add_blockref("DINING", (4, 7.3))
    msp.add_blockref("BED", (10, 6.8), dxfattribs={"rotation": 0})
    msp.add_blockref("BED", (13.8, 6.8))
    msp.add_lwpolyline([(0.3, 0.3), (0.9, 0.3), (0.9, 4.2), (0.3, 4.2)])
    msp.add_circle((0.6, 2.6), 0.2)
    # A referenced drawing that is not beside the plan: it is drawn as a named frame.
    doc.add_xref_def("site/landscape.dxf", "LANDSCAPE")
    msp.add_blockref("LANDSCAPE", (17, 0))
    # Room names and the title.
    for text, x, y in (("LIVING", 3.2, 2.4), ("DINING", 3.2, 8.8), ("BEDROOM 1", 10.2, 6.2),
                       ("BEDROOM 2", 13.2, 5.6), ("BATH", 13.4, 2.0), ("HALL", 10.2, 2.4)):
        msp.add_text(text, height=0.35).set_placement((x, y))
    msp.add_text("PLAN  1:100", height=0.5).set_placement((0, -1.2))
    dim = msp.add_linear_dim(base=(0, 11), p1=(0, 10), p2=(16, 10),
                              override={"dimtxt": 0.35, "dimasz": 0.25, "dimexe": 0.15, "dimexo": 0.15})
    dim.render()
    doc.saveas(output)


def make_large(count: int, output: pathlib.Path) -> None:
    doc = ezdxf.new("R2010")
    msp = doc.modelspace()
    side = max(1, int(math.sqrt(count / 5)))
    made = 0
    cell = 0
    while made < count:
        x, y = (cell % side) * 10.0, (cell // side) * 10.0
        cell += 1
        for kind in range(5):
            if made == count:
                break
            if kind == 0:
                msp.add_line((x, y), (x + 8, y + 8))
            elif kind == 1:
                msp.add_lwpolyline([(x, y), (x + 8, y), (x + 8, y + 8), (x, y + 8)], close=True)
            elif kind == 2:
                msp.add_circle((x + 4, y + 4), 3)
            elif kind == 3:
                msp.add_arc((x + 4, y + 4), 2, 0, 180)
            else:
                msp.add_text(f"C{cell}", height=1).set_placement((x + 1, y + 1))
            made += 1
    doc.saveas(output)


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--entities", type=int, help="make a generated drawing of this many entities")
    parser.add_argument("output", nargs="?", type=pathlib.Path)
    args = parser.parse_args()
    if args.entities is None:
        make_plan(args.output or OUTPUT)
    elif args.output is None or args.entities < 1:
        parser.error("--entities N needs N >= 1 and an OUTPUT file")
    else:
        make_large(args.entities, args.output)


if __name__ == "__main__":
    main()
