"""Fails when a page shows an example otherwise than it lies in the folder of examples.

usage: shown_examples.py PAGE FOLDER
"""

import pathlib
import sys

from blocks import blocks

page, folder = sys.argv[1:]
shown = sorted(blocks(page, "cpp"))
files = sorted(path.read_text(encoding="utf-8") for path in pathlib.Path(folder).glob("*.cpp"))
if shown != files:
    sys.exit(f"the programs in {folder} and those shown in {page} differ")
