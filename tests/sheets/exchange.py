"""Workbooks of openpyxl are read and changed by this project, and read again by openpyxl.

    exchange.py SHEETTOOL
"""
import datetime
import os
import subprocess
import sys
import tempfile
import unittest

import openpyxl
from openpyxl.comments import Comment
from openpyxl.styles import Alignment, Font, PatternFill

TOOL = sys.argv[1]

def tool(*arguments):
    done = subprocess.run([TOOL, *map(str, arguments)], text=True, encoding="utf-8", stdout=subprocess.PIPE, check=True)
    return [line.split("\t") for line in done.stdout.splitlines()]

class Exchange(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.path = os.path.join(folder.name, "exchange.xlsx")

    def write_with_openpyxl(self):
        book = openpyxl.Workbook()
        sheet = book.active
        sheet.append(["设备", 37777, 0.1 + 0.2])
        sheet.append([True, None, "two\nlines"])
        sheet["A4"] = "filled"
        sheet["A4"].fill = PatternFill("solid", start_color="FFFF00")
        sheet["A4"].font = Font(bold=True, size=14)
        sheet["A4"].alignment = Alignment(horizontal="center")
        sheet["A4"].comment = Comment("a comment", "author")
        sheet["B4"] = datetime.date(2024, 2, 29)
        sheet["C4"] = "=B1+1"
        sheet.merge_cells("A6:C6")
        sheet.freeze_panes = "A2"
        book.create_sheet("Second")["A1"] = "other"
        book.save(self.path)

    def test_a_workbook_of_openpyxl_is_read(self):
        self.write_with_openpyxl()
        rows = tool("print", self.path)
        self.assertEqual(rows, [["设备", "37777", "0.3"], ["TRUE", "", "two\\nlines"], ["", "", ""],
                                    ["filled", "45351", ""]])

    def test_openpyxl_reads_what_was_changed(self):
        self.write_with_openpyxl()
        for row, column, text in [(4, 1, "changed"), (4, 3, "0"), (9, 2, "new"), (1, 1, "_x0041_")]:
            tool("change", self.path, row, column, text)
        book = openpyxl.load_workbook(self.path)
        sheet = book.worksheets[0]
        self.assertEqual([sheet[place].value for place in ("A4", "C4", "B9", "B1", "C2")],
                         ["changed", "0", "new", 37777, "two\nlines"])
        cell = sheet["A4"]
        self.assertEqual((cell.number_format, cell.fill.start_color.rgb, cell.font.sz, cell.font.b,
                          cell.alignment.horizontal, cell.comment.text),
                         ("@", "00FFFF00", 14, True, "center", "a comment"))
        self.assertEqual(sheet["B4"].value, datetime.datetime(2024, 2, 29))
        self.assertEqual((sheet.freeze_panes, sheet.dimensions), ("A2", "A1:C9"))
        self.assertEqual(book.worksheets[1]["A1"].value, "other")
        self.assertEqual(tool("print", self.path)[0][0], "_x0041_")

if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
