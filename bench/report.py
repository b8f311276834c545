#!/usr/bin/env python3
"""Makes a table and a chart of the figures that scripts/bench has measured.

A figure is the median over the rounds: processor time for one operation, or the time that a workload measured itself;
for memory/* the bytes of one list.
"""

import argparse
import json
import pathlib
import re
import statistics
import sys

import capacity
import chart

LIBRARY = "attrmgr"
LIMIT = "limit"
SIMILAR = 1.05  # up to here the library counts as no slower


class Results:
    """figures[workload][subject], with workloads and subjects in the order in which they were measured."""

    def __init__(self, json_dir):
        self.subjects = []
        self.errors = []
        self.context = {}
        rounds = {}
        for path in sorted(pathlib.Path(json_dir).glob("*.json")):
            text = path.read_text()
            if text:  # a filter may leave a program nothing to do
                self._add(json.loads(text), rounds)
        self.figures = {
            workload: {subject: statistics.median(values) for subject, values in by_subject.items()}
            for workload, by_subject in rounds.items()
        }

    def _add(self, report, rounds):
        self.context = report["context"]
        subject = self.context["subject"]
        if subject not in self.subjects:
            self.subjects.append(subject)
        for run in report["benchmarks"]:
            workload = re.sub(r"/iterations:\d+|/manual_time", "", run["name"])
            if run.get("error_occurred"):
                self.errors.append(f"{subject}: {workload} {run['error_message']}")
                continue
            if workload.startswith("memory/"):
                figure = run["bytes"]
            else:
                figure = run["real_time" if run["name"].endswith("/manual_time") else "cpu_time"]
            rounds.setdefault(workload, {}).setdefault(subject, []).append(figure)

    def peers(self):
        return [subject for subject in self.subjects if subject not in (LIBRARY, LIMIT)]

    def machine(self):
        return f"{self.context['cpu']}, {self.context['compiler']}"


def in_three_digits(figure):
    if figure >= 100:
        return f"{figure:.0f}"
    return f"{figure:.1f}" if figure >= 10 else f"{figure:.2f}"


def shown(workload, figure):
    if figure is None:
        return "-"
    if workload.startswith("memory/"):
        return f"{figure:.0f} B"
    for unit, size in (("ms", 1e6), ("µs", 1e3)):
        if figure >= size:
            return f"{in_three_digits(figure / size)} {unit}"
    return f"{in_three_digits(figure)} ns"


def ratio(figure, other):
    return "-" if figure is None or other is None else in_three_digits(figure / other)


def table(results):
    peers = results.peers()
    header = ["workload", LIBRARY, LIMIT, f"{LIBRARY} / {LIMIT}", *peers, f"{LIBRARY} / fastest peer"]
    lines = [header, ["---"] + ["---:"] * (len(header) - 1)]
    for workload, by_subject in results.figures.items():
        own, limit = by_subject.get(LIBRARY), by_subject.get(LIMIT)
        best = min((by_subject[peer] for peer in peers if peer in by_subject), default=None)
        against_best = ratio(own, best)
        if own is not None and best is not None and own <= SIMILAR * best:
            against_best = f"**{against_best}**"
        row = [workload, shown(workload, own), shown(workload, limit), ratio(own, limit)]
        lines.append(row + [shown(workload, by_subject.get(peer)) for peer in peers] + [against_best])
    return "\n".join("| " + " | ".join(line) + " |" for line in lines)


def replaced(document, name, text):
    begin, end = f"<!-- {name}: begin -->", f"<!-- {name}: end -->"
    before, rest = document.split(begin)
    _, after = rest.split(end)
    return f"{before}{begin}\n{text}\n{end}{after}"


def write(folder, results, text):
    path = pathlib.Path(folder, "performance.md")
    document = replaced(path.read_text(), "figures", text)
    own = {workload: by_subject.get(LIBRARY) for workload, by_subject in results.figures.items()}
    path.write_text(replaced(document, "capacity", capacity.table(own)))
    pathlib.Path(folder, "performance.svg").write_text(
        chart.svg(results.figures, results.subjects, LIBRARY, LIMIT, results.machine())
    )


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--json-dir", required=True, help="what the programs wrote, a file for each program and round")
    parser.add_argument("--check", action="store_true", help="only say whether workloads failed")
    parser.add_argument("--write", metavar="DOCS", help="put table and chart into this folder's performance.md and .svg")
    arguments = parser.parse_args()

    results = Results(arguments.json_dir)
    own_errors = [error for error in results.errors if error.split(":")[0] in (LIBRARY, LIMIT)]
    if own_errors or (arguments.check and results.errors) or not results.figures:
        sys.exit("\n".join(results.errors) or "nothing was measured")
    for error in dict.fromkeys(results.errors):  # a peer that cannot do a workload gets a dash
        print(error, file=sys.stderr)
    if arguments.check:
        print(f"{len(results.figures)} workloads, none failed")
        return
    text = f"Measured on: {results.machine()}.\n\n{table(results)}"
    print(text)
    if arguments.write:
        write(arguments.write, results, text)


if __name__ == "__main__":
    main()
