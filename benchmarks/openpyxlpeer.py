"""Prints the median time of the same work on workbooks with openpyxl, in milliseconds.

    openpyxlpeer.py write LIST.csv WORKBOOK.xlsx RUNS      writes the cells of a device list as text
    openpyxlpeer.py change WORKBOOK.xlsx COLUMN RUNS       opens, changes one column of every device, and saves
"""
import statistics
import sys
import time

import openpyxl
from openpyxl.cell import WriteOnlyCell


def write(rows, path):
    book = openpyxl.Workbook(write_only=True)  # the fastest mode of the library
    sheet = book.create_sheet()
    for row in rows:
        cells = []
        for text in row:
            cell = WriteOnlyCell(sheet, text)
            cell.number_format = "@"
            cells.append(cell)
        sheet.append(cells)
    book.save(path)


def change(path, column):
    book = openpyxl.load_workbook(path)
    sheet = book.worksheets[0]
    for row in range(3, sheet.max_row + 1):
        cell = sheet.cell(row, column, f"done {row}")
        cell.number_format = "@"
    book.save(path)


def main():
    if sys.argv[1] == "write":
        with open(sys.argv[2], encoding="utf-8") as lines:
            rows = [line.rstrip("\n").split(",") for line in lines]
        work = lambda: write(rows, sys.argv[3])
    else:
        work = lambda: change(sys.argv[2], int(sys.argv[3]))
    times = []
    for _ in range(int(sys.argv[-1])):
        start = time.perf_counter()
        work()
        times.append((time.perf_counter() - start) * 1000)
    print(statistics.median(times))


main()
