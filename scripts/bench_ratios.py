"""Prints each benchmark of a Google Benchmark report on standard input as a ratio to its floor, the
benchmark of the same name with `_floor` behind it."""

import json
import sys

medians = {row["run_name"]: row for row in json.load(sys.stdin)["benchmarks"]
           if row.get("aggregate_name") == "median"}
for name, row in medians.items():
    floor = medians.get(name + "_floor")
    if floor is None:
        continue
    print(f"{name}: {row['cpu_time']:.3g} {row['time_unit']}, floor {floor['cpu_time']:.3g} "
          f"{floor['time_unit']}, ratio {row['cpu_time'] / floor['cpu_time']:.2f}")
    for counter in ("groups", "keywords", "table_bytes"):
        if counter in row:
            print(f"  {counter}: {row[counter]:.0f}")
