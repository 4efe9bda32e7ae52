"""Prints the instructions of each family at n and at 4n, and their ratio.

    growth quick | growth_ratios.py PREFIX

Standard input names the runs in pairs, "n<tab>name" and "4n<tab>name"; the files PREFIX.* are what
callgrind wrote about them, without compressed names. Ends with 1 when a ratio is above the limit, and
names the functions that grew. So that a family cannot pass by mistake, it also ends with 1 when one
was not counted, did next to nothing, hardly grew, or is so small that one instruction for each pair
of its n units would not take it over the limit.
"""

import glob
import re
import sys
from collections import Counter

LIMIT = 4.2
LEAST_RATIO = 3.5
LEAST_PER_UNIT = 1 / 8  # vector instructions take 16 bytes at once
TRIGGER = re.compile(r"^desc: Trigger: Client Request: (.*)$", re.MULTILINE)
TOTALS = re.compile(r"^totals: (\d+)$", re.MULTILINE)


def read_counts(prefix):
    """The instructions of each run and the file they stand in, by the run's label."""
    counts = {}
    for path in glob.glob(glob.escape(prefix) + ".*"):
        with open(path, encoding="utf-8") as file:
            text = file.read()
        trigger, totals = TRIGGER.search(text), TOTALS.search(text)
        if trigger and totals:
            counts[trigger.group(1)] = (int(totals.group(1)), path)
    return counts


def costs_of_functions(path):
    """The instructions of each function by its name, without those of the functions it calls."""
    costs, function, is_call = Counter(), "", False
    with open(path, encoding="utf-8") as file:
        for line in file:
            if line.startswith("fn="):
                function = re.split("[(<[]", line[3:-1].replace("(anonymous namespace)::", ""))[0]
            elif line[0] in "+-*0123456789" and not is_call:
                costs[function] += int(line.split()[1])
            is_call = line.startswith("calls=")
    return costs


def grown(small_path, large_path):
    """The functions that took most instructions beyond four times as many."""
    small, large = costs_of_functions(small_path), costs_of_functions(large_path)
    excess = Counter({name: large[name] - 4 * small[name] for name in large})
    return ", ".join(name for name, count in excess.most_common(2) if count > 0)


def fault_of(n, small, large):
    """What is wrong with a family, given its counts at n and at 4n, or nothing."""
    if small is None or large is None:
        return "was not counted"
    if small[0] < n * LEAST_PER_UNIT:
        return "did next to nothing"
    ratio = large[0] / small[0]
    if ratio > LIMIT:
        return f"grows faster than its input, {ratio:.2f} times, by {grown(small[1], large[1])}"
    if ratio < LEAST_RATIO:
        return f"hardly grows, {ratio:.2f} times, so something else was counted"
    pairs = n * n / 2
    if (large[0] + 16 * pairs) / (small[0] + pairs) <= LIMIT:
        return "is too small to show an instruction for each pair of units"
    return None


def print_row(n, name, small, large, is_faulty):
    """A line of the table; what was not counted is shown as a dash."""
    shown = [f"{count[0]:,}" if count else "-" for count in (small, large)]
    ratio = f"{large[0] / small[0]:.2f}" if small and large and small[0] else "-"
    print(f"{name:<75} {n:>10,} {shown[0]:>14} {shown[1]:>15} {ratio:>5}{' !' if is_faulty else ''}")


def main():
    labels = sys.stdin.read().splitlines()  # ends when all runs have
    counts = read_counts(sys.argv[1])
    if not labels:
        sys.exit("growth: there is no such family")
    print(f"{'family':<75} {'n':>10} {'instructions':>14} {'at 4n':>15} ratio")
    faults = []
    for first, second in zip(labels[::2], labels[1::2]):
        n, name = first.split("\t")
        small, large = counts.get(first), counts.get(second)
        fault = fault_of(int(n), small, large)
        print_row(int(n), name, small, large, fault is not None)
        if fault:
            faults.append(f"{name}: {fault}")
    print(f"{len(labels) // 2} families, {len(faults)} with a fault")
    for fault in faults:
        print(f"growth: {fault}", file=sys.stderr)
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
