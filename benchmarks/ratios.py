#!/usr/bin/env python3
"""Runs the benchmarks and prints, for each hot path, the median of ours, of its bound, and their ratio.

    benchmarks/ratios.py build/release/bin/vx_benchmarks

Ours and bound run in turn, several times, so that a machine that slows down slows both. Each hot path runs in a process of
its own, whose kernel holds the data of that path only.
"""

import json
import os
import statistics
import subprocess
import sys
from collections import defaultdict

AIMS = {
    "property_to_widget": 1.5,
    "state_change": 1.5,
    "view_change": 1.5,
    "dialog_launch": 1.5,
    "axis_details_open": 1.5,
    "axis_details_tab": 1.5,
    "open_file": 1.2,
    "probe": 1.0,
    "zone_list": None,
    "style_burst": None,
}
REPETITIONS = 9


def run(program: str, path: str) -> dict[str, list[float]]:
    environment = {"QT_QPA_PLATFORM": "offscreen", **os.environ}
    arguments = [f"--benchmark_filter=^{path}/", "--benchmark_format=json", f"--benchmark_repetitions={REPETITIONS}",
                 "--benchmark_enable_random_interleaving=true", "--benchmark_min_time=0.2"]
    done = subprocess.run([program, *arguments], env=environment, capture_output=True, text=True, check=True)
    times = defaultdict(list)
    for result in json.loads(done.stdout)["benchmarks"]:
        if result["run_type"] == "iteration" and not result.get("error_occurred"):
            times[result["run_name"]].append(result["real_time"])
    return times


def main() -> int:
    if len(sys.argv) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    print("| hot path | ratio to its bound | aim |\n|---|---|---|")
    for path, aim in AIMS.items():
        times = run(sys.argv[1], path)
        ours, bound = times[f"{path}/ours"], times[f"{path}/bound"]
        if not ours or not bound:
            print(f"| {path} | not measured | {aim or 'none'} |")
            continue
        print(f"| {path} | {statistics.median(ours) / statistics.median(bound):.2f} | {aim or 'none'} |")
    return 0


if __name__ == "__main__":
    sys.exit(main())
