"""Turns what the benchmarks measured into the table and the plot of docs/benchmarks.md.

    python3 scripts/bench_report.py TIMES.json MEMORY.json

TIMES.json is a report of Google Benchmark with repetitions, MEMORY.json what bench_peak_memory prints.
Each row is the ratio of a median to the median of its floor. Prints the table; replaces it in the page,
between the two comments that mark it, and draws the plot.
"""

import json
import math
import re
import sys
from pathlib import Path
from typing import NamedTuple

DOCS = Path(__file__).resolve().parent.parent / "docs"


class Row(NamedTuple):
    benchmark: str
    work: str
    floor: str
    reach: float | None  # the ratio aimed at; None where the row only shows where the time goes


ROWS = [
    Row("parse_orbitals", "`parse_string`, 20 MB `$VEC`", "find line ends, one `std::string` a line", 1.25),
    Row("parse_atoms", "`parse_string`, `$DATA` of 100,000 atoms",
        "find line ends, split, four `std::from_chars` and one `AtomRecord` a line", 1.4),
    Row("parse_keywords", "`parse_string`, 5 MB of keyword groups",
        "find line ends, one `KeyValue` a pair at known offsets, keys in upper case", 2.0),
    Row("parse_optimisation", "`parse_string`, 40-line optimisation deck", "a copy of its document", 3.0),
    Row("write_atoms", "`to_string`, 100,000 atoms", "`std::to_chars` of the numbers into a reserved string",
        1.3),
    Row("write_orbitals", "`to_string`, 20 MB `$VEC`", "one append a line into a reserved string", 1.2),
    Row("set_and_get_in_large_deck", "`set_keyword` and `get_keyword`, small group of a 20 MB deck",
        "the same in a deck of 1 KB", 1.2),
    Row("list_keywords", "`list_keywords`, 100,000 keywords in a group", "one hash insert a keyword", 3.0),
    Row("load_schema", "first use of the schema, full `gamess.yaml`",
        "read its lines, one map insert an entry", 2.0),
    Row("check_small_deck_process", "`gms-inp check`, small deck, whole process",
        "`gms-inp --version` and one schema load", 1.5),
    Row("index_deck", "index of `source::Deck`, 20 MB `$VEC`", "find line ends", 1.5),
    Row("set_in_large_deck_process", "`gms-inp set` in a 20 MB deck, whole process, to a file",
        "read the file, write it, flushed the same way", 1.5),
    Row("check_orbitals_process", "`gms-inp check`, 20 MB `$VEC`, whole process",
        "read the file, find line ends, one schema load", 3.0),
    Row("check_list_process", "`gms-inp check`, 20 MB in one keyword's list", "the same", None),
    Row("check_atoms_process", "`gms-inp check`, 20 MB `$DATA`", "the same", None),
]
MEMORY = Row("", "peak memory of `parse_file`, 20 MB `$VEC`", "bytes of the deck and of its document", 1.3)
MILLISECONDS = {"ns": 1e-6, "us": 1e-3, "ms": 1.0, "s": 1e3}


def medians(report: dict) -> dict[str, float]:
    """Milliseconds by benchmark: of the clock for whole processes, of the processor for the rest."""
    found = {}
    for row in report["benchmarks"]:
        if row.get("aggregate_name") == "median":
            name, _, of_clock = row["run_name"].partition("/")
            time = row["real_time" if of_clock == "real_time" else "cpu_time"]
            found[name] = time * MILLISECONDS[row["time_unit"]]
    return found


def time_text(milliseconds: float) -> str:
    for unit, size in (("s", 1e3), ("ms", 1.0), ("µs", 1e-3), ("ns", 1e-6)):
        if milliseconds >= size:
            return f"{milliseconds / size:.3g} {unit}"
    return "0"


def table_line(row: Row, measured: str, floor: str, ratio: float) -> str:
    reach = "" if row.reach is None else f"{row.reach:.2f}"
    shown = f"**{ratio:.2f}**" if row.reach is not None and round(ratio, 2) > row.reach else f"{ratio:.2f}"
    return f"| {row.work} | {measured} | {row.floor} | {floor} | {shown} | {reach} |"


def plot(ratios: list[tuple[Row, float]]) -> str:
    """One bar a row, on a logarithmic scale from 0.25 to 64, with a mark at the ratio aimed at."""
    left, width, step, top = 440, 420, 24, 30

    def x(ratio: float) -> float:
        return left + width * (math.log2(min(max(ratio, 0.25), 64)) + 2) / 8

    height = top + step * len(ratios) + 10
    lines = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{left + width + 70}" height="{height}" '
             'font-family="sans-serif" font-size="12" fill="#24292f">',
             '<rect width="100%" height="100%" fill="#ffffff"/>']
    for tick in (0.25, 0.5, 1, 2, 4, 8, 16, 32, 64):
        colour = "#57606a" if tick == 1 else "#d0d7de"
        lines.append(f'<line x1="{x(tick):.1f}" x2="{x(tick):.1f}" y1="{top - 6}" y2="{height - 6}" '
                     f'stroke="{colour}"/>')
        lines.append(f'<text x="{x(tick):.1f}" y="{top - 12}" text-anchor="middle">{tick:g}</text>')
    for i, (row, ratio) in enumerate(ratios):
        y = top + step * i
        colour = "#8c959f" if row.reach is None else "#bf8700" if round(ratio, 2) > row.reach else "#2da44e"
        begin, end = sorted((x(1), x(ratio)))
        lines.append(f'<text x="{left - 10}" y="{y + 14}" text-anchor="end">{row.work.replace("`", "")}</text>')
        lines.append(f'<rect x="{begin:.1f}" y="{y + 3}" width="{max(end - begin, 1):.1f}" height="14" '
                     f'fill="{colour}"/>')
        lines.append(f'<text x="{max(end, x(1)) + 6:.1f}" y="{y + 14}">{ratio:.2f}</text>')
        if row.reach is not None:
            lines.append(f'<line x1="{x(row.reach):.1f}" x2="{x(row.reach):.1f}" y1="{y}" y2="{y + 20}" '
                         'stroke="#cf222e" stroke-width="2"/>')
    return "\n".join(lines + ["</svg>", ""])


def main() -> None:
    times = medians(json.loads(Path(sys.argv[1]).read_text()))
    memory = json.loads(Path(sys.argv[2]).read_text())
    table = ["| work | measured | floor | measured | ratio | reach |", "|---|---|---|---|---|---|"]
    ratios = []
    for row in ROWS:
        measured, floor = times[row.benchmark], times[row.benchmark + "_floor"]
        ratios.append((row, measured / floor))
        table.append(table_line(row, time_text(measured), time_text(floor), measured / floor))
    peak, floor = memory["peak"], memory["floor"]
    ratios.append((MEMORY, peak / floor))
    table.append(table_line(MEMORY, f"{peak / 1e6:.1f} MB", f"{floor / 1e6:.1f} MB", peak / floor))
    text = "\n".join(table)
    print(text)

    page = DOCS / "benchmarks.md"
    marked = re.compile(r"(<!-- table: scripts/bench.sh -->\n).*?(\n<!-- end of table -->)", re.DOTALL)
    page.write_text(marked.sub(lambda m: m[1] + text + m[2], page.read_text()))
    (DOCS / "benchmarks.svg").write_text(plot(ratios))


main()
