#!/usr/bin/env python3
"""read_back.py FILE: the one sheet of a workbook, read with nothing but the standard library.

First a line with the sheet's name and how many rows stand still, one with the formats of the columns and the filter's
range, one with what stands on paper and in what size, and the creator, then a line a cell: place, kind (text or number),
number format, value; a bold cell's kind ends in a star.
"""
import re, sys, xml.etree.ElementTree as tree, zipfile

main = "{http://schemas.openxmlformats.org/spreadsheetml/2006/main}"
with zipfile.ZipFile(sys.argv[1]) as book:
    parts = {name: tree.fromstring(book.read(name)) for name in book.namelist() if name.endswith(".xml")}
styles, sheet = parts["xl/styles.xml"], parts["xl/worksheets/sheet1.xml"]
own = {one.get("numFmtId"): one.get("formatCode") for one in styles.iter(main + "numFmt")} | {"0": "General", "49": "@"}
bold = [one.find(main + "b") is not None for one in styles.find(main + "fonts")]
formats = [(own[one.get("numFmtId")], bold[int(one.get("fontId"))]) for one in styles.find(main + "cellXfs")]
shared = [] if "xl/sharedStrings.xml" not in parts else [
    "".join(one.itertext()) for one in parts["xl/sharedStrings.xml"].iter(main + "si")]
escaped = re.compile("_x([0-9A-F]{4})_")

pane = next(sheet.iter(main + "pane"))
print(next(parts["xl/workbook.xml"].iter(main + "sheet")).get("name"), pane.get("ySplit"), pane.get("state"))
print(*(formats[int(one.get("style", "0"))][0] for one in sheet.iter(main + "col")),
      next(sheet.iter(main + "autoFilter")).get("ref"))
setup, creator = next(sheet.iter(main + "pageSetup")), "{http://purl.org/dc/elements/1.1/}creator"
print(*(next(sheet.iter(main + name)).text for name in ("oddHeader", "oddFooter")), setup.get("scale") or "one page wide",
      next(parts["docProps/core.xml"].iter(creator)).text)
for cell in sheet.iter(main + "c"):
    kind = cell.get("t", "n")
    text = "".join(cell.itertext())
    if kind == "s":
        text = shared[int(text)]
    text = escaped.sub(lambda found: f"<{int(found.group(1), 16)}>", text)
    numbers, strong = formats[int(cell.get("s", "0"))]
    print(cell.get("r"), ("number" if kind == "n" else "text") + ("*" if strong else ""), numbers, text)
