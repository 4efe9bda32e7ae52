"""Names the lines and branches that were never run and says how many were.

usage: coverage_report.py COUNTS EXCLUSIONS

COUNTS is the report of gcovr in JSON, EXCLUSIONS a list as explained.py reads it, of lines `file: text`. Exits with 1
when something was never run that is not in the list, and when the list has what was run after all.

Only a line that holds a condition has branches that count. On the others they are the ways out of an exception,
which gcov does not always mark as such."""
import json
import re
import sys

import explained


CONDITION = re.compile(r'\b(if|for|while|switch|case|catch)\b|&&|\|\||\?')


def branches_of(line, source):
    """The branches of a line that its conditions decide."""
    return line['branches'] if CONDITION.search(source[line['line_number'] - 1]) else []


def missing_parts(lines, source):
    """The lines of a file that were not run, or of whose branches one was not taken, each with a word for it."""
    for line in lines:
        number, branches = line['line_number'], branches_of(line, source)
        taken = sum(branch['count'] > 0 for branch in branches)
        if line['count'] == 0:
            yield number, 'never run'
        elif taken < len(branches):
            yield number, f'{taken} of {len(branches)} branches taken'


def main():
    counts_path, exclusions_path = sys.argv[1:]
    with open(counts_path, encoding='utf-8') as file:
        files = json.load(file)['files']
    places, lines, branches = {}, [], []
    for covered in files:
        with open(covered['file'], encoding='utf-8') as file:
            source = file.read().split('\n')
        code = [line for line in covered['lines'] if not line['gcovr/noncode']]
        lines += code
        branches += [branch for line in code for branch in branches_of(line, source)]
        for number, what in missing_parts(code, source):
            name = f'{covered["file"]}: {source[number - 1].strip()}'
            places.setdefault(name, f'{covered["file"]}:{number}: {what}: {source[number - 1].strip()}')
    unexplained, needless = explained.compare(list(places), exclusions_path)
    for name in unexplained:
        print(places[name])
    for name in needless:
        print(f'{exclusions_path}: is run after all: {name}')
    print(f'coverage: {sum(line["count"] > 0 for line in lines)} of {len(lines)} lines, '
          f'{sum(branch["count"] > 0 for branch in branches)} of {len(branches)} branches, '
          f'{len(places) - len(unexplained)} lines explained')
    sys.exit(1 if unexplained or needless else 0)


if __name__ == '__main__':
    main()
