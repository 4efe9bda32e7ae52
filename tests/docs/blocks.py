"""Fenced code blocks of a Markdown page.

usage: blocks.py PAGE LANGUAGE      prints the first block of that language
"""

import re
import sys


def blocks(page, language):
    """The texts of all blocks of a language, in order."""
    with open(page, encoding="utf-8") as file:
        return re.findall(rf"^```{language}\n(.*?)^```$", file.read(), re.MULTILINE | re.DOTALL)


if __name__ == "__main__":
    sys.stdout.write(blocks(sys.argv[1], sys.argv[2])[0])
