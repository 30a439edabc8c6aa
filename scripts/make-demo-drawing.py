#!/usr/bin/python3
"""Writes host/demo/plan.dxf, the drawing that the demo session opens: a small floor plan."""
import pathlib

import ezdxf

OUTPUT = pathlib.Path(__file__).resolve().parent.parent / "host" / "demo" / "plan.dxf"


def main() -> None:
    doc = ezdxf.new("R2010")
    msp = doc.modelspace()
    msp.add_lwpolyline([(0, 0), (12, 0), (12, 8), (0, 8)], close=True)
    msp.add_line((7, 0), (7, 8))
    msp.add_line((0, 4), (7, 4))
    msp.add_text("PLAN", height=0.5).set_placement((1, 7))
    doc.saveas(OUTPUT)


if __name__ == "__main__":
    main()
