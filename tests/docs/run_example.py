"""Runs a program and compares its output with the first `text` block of a page.

usage: run_example.py PROGRAM PAGE
"""

import subprocess
import sys

from blocks import blocks

program, page = sys.argv[1:]
expected = blocks(page, "text")[0]
printed = subprocess.run([program], check=True, capture_output=True, text=True).stdout
if printed != expected:
    sys.exit(f"expected:\n{expected}printed:\n{printed}")
