"""Prints the results of a benchmark run as a table with the ratio of each to its floor."""

import json
import sys

UNITS = {"ns": 1e-6, "us": 1e-3, "ms": 1.0, "s": 1e3}


def main(path: str) -> None:
    with open(path, encoding="utf-8") as file:
        runs = [run for run in json.load(file)["benchmarks"] if run["run_type"] == "iteration"]
    runs.sort(key=lambda run: run["family_index"])
    times: dict[str, float] = {}
    floors: dict[str, str] = {}
    for run in runs:
        name = run["name"].split("/")[0]
        # What else the machine does only makes a run longer.
        times[name] = min(times.get(name, float("inf")), run["real_time"] * UNITS[run["time_unit"]])
        floors[name] = run.get("label", "")
    print(f"{'benchmark':<28}{'ms':>10}  {'floor':<28}{'ms':>10}{'ratio':>8}")
    for name, floor in floors.items():
        row = f"{name:<28}{times[name]:>10.3f}"
        if floor in times:
            row += f"  {floor:<28}{times[floor]:>10.3f}{times[name] / times[floor]:>8.2f}"
        print(row)


main(sys.argv[1])
