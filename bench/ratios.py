"""Prints the results of a benchmark run as a table with the ratio of each to its floor."""

import json
import sys

UNITS = {"ns": 1e-6, "us": 1e-3, "ms": 1.0, "s": 1e3}


def main(path: str) -> None:
    with open(path, encoding="utf-8") as file:
        runs = json.load(file)["benchmarks"]
    times = {run["name"].split("/")[0]: run["real_time"] * UNITS[run["time_unit"]] for run in runs}
    print(f"{'benchmark':<28}{'ms':>10}  {'floor':<28}{'ms':>10}{'ratio':>8}")
    for run in runs:
        name = run["name"].split("/")[0]
        floor = run.get("label", "")
        row = f"{name:<28}{times[name]:>10.3f}"
        if floor in times:
            row += f"  {floor:<28}{times[floor]:>10.3f}{times[name] / times[floor]:>8.2f}"
        print(row)


main(sys.argv[1])
