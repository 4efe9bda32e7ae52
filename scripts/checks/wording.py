"""Project files name nothing that a reader of the project does not have, and leave nothing half done.

The patterns are written so that they do not match themselves.
"""

import re

from project import finish, place, tracked_files

RULES = [
    (re.compile(r"/(?:[w]ork|[h]ome|[r]oot|[U]sers)/"), "a path of somebody's machine"),
    (re.compile(r"\b[s]pecifications?\b|\bthe [s]pec\b|\b[s]pec\.md\b", re.IGNORECASE),
     "a text that does not come with the project; say the rule or name its public source"),
    (re.compile(r"\b[P]arts? \d"), "a chapter of a text that does not come with the project"),
    (re.compile(r"\b[s]essions?\b", re.IGNORECASE), "how the work was done, not what it is"),
    (re.compile(r"\b(?:TO[D]O|FI[X]ME|XX[X])\b"), "work left over: finish it or file it"),
]


def main():
    faults = []
    for path in tracked_files():
        try:
            text = path.read_text()
        except UnicodeDecodeError:
            continue  # test data with odd bytes, a picture
        for number, line in enumerate(text.split("\n"), 1):
            faults.extend(f"{place(path, number)} '{match.group()}' is {reason}"
                          for rule, reason in RULES if (match := rule.search(line)))
    finish("wording", faults)


if __name__ == "__main__":
    main()
