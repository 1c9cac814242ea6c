#!/usr/bin/python3
"""Opens a column's DXF drawing as a CAD program would, with ezdxf, and reports
what the engineer would meet: the audit's errors and repairs, the units, the
layers with their colours and the texts, as one line of JSON.

    check_dxf.py DRAWING.dxf
"""
import json
import sys

import ezdxf


def main(path):
    doc = ezdxf.readfile(path)
    auditor = doc.audit()
    report = {
        "version": doc.dxfversion,
        "audit": [f"erro {e.code}: {e.message}" for e in auditor.errors]
        + [f"reparo {f.code}: {f.message}" for f in auditor.fixes],
        "insunits": doc.header.get("$INSUNITS", 0),
        "layers": {layer.dxf.name: layer.color for layer in doc.layers},
        "texts": [t.dxf.text for t in doc.modelspace().query("TEXT")],
    }
    print(json.dumps(report, ensure_ascii=False))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
