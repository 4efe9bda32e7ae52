"""Runs the `console` blocks of pages and compares what each command prints.

A line `$ COMMAND` is run by a shell in a copy of the examples; the lines behind it are what it prints
on standard output and standard error.

usage: run_console.py PATH SOURCE_DIR PAGE...      PATH lists the folders of the programs
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

from blocks import blocks


def steps(block):
    """The commands of a block, each with the output that stands behind it."""
    found = []
    for line in block.splitlines(keepends=True):
        if line.startswith("$ "):
            found.append([line[2:], ""])
        else:
            found[-1][1] += line
    return found


def run(command, folder, programs):
    path = f"{programs}{os.pathsep}{os.environ['PATH']}"
    result = subprocess.run(command, shell=True, cwd=folder, env={**os.environ, "PATH": path},
                            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                            stderr=subprocess.STDOUT, text=True, check=False)
    return result.stdout


def main():
    programs = sys.argv[1]
    source, *pages = map(pathlib.Path, sys.argv[2:])
    faults = 0
    with tempfile.TemporaryDirectory() as folder:
        shutil.copytree(source / "examples", pathlib.Path(folder) / "examples")
        for page in pages:
            for command, expected in (step for block in blocks(page, "console")
                                      for step in steps(block)):
                printed = run(command, folder, programs)
                if printed != expected:
                    faults += 1
                    print(f"{page.name}: $ {command}expected:\n{expected}printed:\n{printed}")
    sys.exit(1 if faults else 0)


main()
