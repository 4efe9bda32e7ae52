"""Functions that depend on the locale, or that the project has better ones for, do not occur."""

import re

from project import cpp_files, code_lines, finish, place

CHARACTER = ("(?:is(?:alnum|alpha|blank|cntrl|digit|graph|lower|print|punct|space|upper|xdigit)"
             "|to(?:upper|lower))")
EVERYWHERE = [
    (re.compile(rf"(?:\bstd)?::{CHARACTER}\b|(?<![\w.>:]){CHARACTER}\s*\("),
     "depends on the locale, use nurl/core/text.hpp or model/text_view.hpp"),
    (re.compile(r"\b(?:ato[fil]|atoll|sto(?:[ifd]|ld|ll?|ull?)|strto(?:[dfl]|ld|ll|ull?))\s*\("),
     "depends on the locale or accepts too much, use std::from_chars"),
    (re.compile(r"\bv?s(?:n)?printf\s*\("), "depends on the locale, use std::to_chars"),
    (re.compile(r"\bstd::w?regex\b|#include <regex>"),
     "depends on the locale and recurses over its input"),
]
IN_HEADERS = [(re.compile(r"\busing namespace\b"), "opens a namespace for everyone who includes it")]


def main():
    faults = []
    for path in cpp_files("include", "src", "platform", "tools"):
        rules = EVERYWHERE + (IN_HEADERS if path.suffix == ".hpp" else [])
        for number, line in enumerate(code_lines(path), 1):
            faults.extend(f"{place(path, number)} {match.group().rstrip(' (')} {reason}"
                          for rule, reason in rules if (match := rule.search(line)))
    finish("forbidden_functions", faults)


if __name__ == "__main__":
    main()
