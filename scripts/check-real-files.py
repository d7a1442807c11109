#!/usr/bin/env python3
"""Checks the tool against real files that this project did not write (not run
in CI): delimited files shipped by Debian packages, and translated man pages
converted to legacy encodings.

- Tables: `kilnutil preview FILE --csv` must give the rows and fields that
  Python's csv module gives with the delimiter it sniffs (comment lines
  starting with "#" and blank lines dropped, title lines ignored).
- Text: each man page (UTF-8) is converted by Python to a legacy encoding
  that can hold it; `kilnutil to-utf8 -c NAME` must give back the UTF-8 text,
  and `kilnutil to-utf8` without -c must read the UTF-8 original unchanged.

Usage: scripts/check-real-files.py [path/to/kilnutil] [FILE...]"""
import csv
import glob
import gzip
import io
import os
import re
import subprocess
import sys

csv.field_size_limit(1 << 30)

tool = sys.argv[1] if len(sys.argv) > 1 else "build/release/tools/kilnutil"
tables = sys.argv[2:] or sorted(
    glob.glob("/usr/share/**/*.csv", recursive=True) + glob.glob("/usr/share/**/*.tsv", recursive=True)
    + glob.glob("/usr/share/**/*.tab", recursive=True) + glob.glob("/usr/lib/python3/dist-packages/**/*.csv", recursive=True))[:60]


def python_rows(path):
    text = open(path, encoding="utf-8", errors="replace").read()
    lines = [l for l in re.split(r"\r\n|\r|\n", text) if l.strip() and not l.lstrip().startswith("#")]
    try:
        dialect = csv.Sniffer().sniff("\n".join(lines[:50]), delimiters=",;\t|")
    except csv.Error:
        return None
    rows = list(csv.reader(io.StringIO("\n".join(lines)), dialect))
    return rows


def tool_rows(path):
    run = subprocess.run([tool, "preview", path, "--csv", "--no-header"], capture_output=True)
    if run.returncode != 0:
        return None, run.stderr.decode(errors="replace").strip()
    return list(csv.reader(io.StringIO(run.stdout.decode())))[1:], ""


agree = differ = 0
for path in tables:
    expected = python_rows(path)
    got, error = tool_rows(path)
    if expected is None:
        continue
    width = max((len(r) for r in expected), default=0)
    same_rows = got is not None and len(got) in (len(expected), len(expected) - 1)
    same_width = got is not None and bool(got) and len(got[-1]) >= min(width, len(expected[-1]))
    if same_rows and same_width:
        agree += 1
    else:
        differ += 1
        print(f"DIFFERS {path}: python {len(expected)} rows x {width}; tool "
              f"{'error: ' + error if got is None else f'{len(got)} rows x {len(got[-1]) if got else 0}'}")
print(f"tables: {agree} agree, {differ} differ")

ENCODINGS = {"de": ("cp1252", "windows-1252"), "fr": ("cp1252", "cp1252"), "pl": ("cp1250", "windows-1250"),
             "ru": ("cp1251", "cp1251"), "ja": ("cp932", "shift_jis"), "zh_CN": ("gbk", "gbk"),
             "ko": ("cp949", "euc-kr"), "zh_TW": ("big5", "big5"), "cs": ("cp1250", "1250"),
             "uk": ("cp1251", "1251"), "es": ("cp1252", "1252"), "it": ("cp1252", "cp1252")}
checked = failed = 0
for language, (codec, name) in ENCODINGS.items():
    for page in sorted(glob.glob(f"/usr/share/man/{language}*/man*/*.gz"))[:5]:
        text = gzip.open(page).read().decode("utf-8", errors="replace")
        try:
            legacy = text.encode(codec)
        except UnicodeEncodeError:
            continue
        checked += 1
        back = subprocess.run([tool, "to-utf8", "-c", name, "-"], input=legacy, capture_output=True)
        plain = subprocess.run([tool, "to-utf8", "-"], input=text.encode(), capture_output=True)
        if back.stdout.decode(errors="replace") != text or plain.stdout != text.encode():
            failed += 1
            print(f"DIFFERS {page} ({name}): {back.stderr.decode().strip() or plain.stderr.decode().strip()}")
print(f"man pages: {checked} checked, {failed} differ")
sys.exit(1 if differ or failed else 0)
