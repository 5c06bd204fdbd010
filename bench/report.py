#!/usr/bin/env python3
"""Prints the ratios of a benchmark run, and draws them.

   report.py RUN.json... [--json FILE] [--svg FILE]

RUN.json is what Google Benchmark writes, with several repetitions. Its benchmarks are named
case/role: the subject, and what it is compared with: its floor, "least" (the floor with what the
interface asks for besides), "hand" (what a user would write instead), "table" (the same by a table
that is known at run time only) or "other" (another way to reach the same). Medians of processor
time count, since a benchmark's thread may have to wait for other programs; for threads it is the
time of all of them, per call.
"""

import argparse
import json
import sys
from html import escape

# What the subject of a case may cost, as a multiple of a role; how many ns it may take; how many
# more than its floor.
LIMITS = {
    "update-1x8": {"floor": 1.15}, "update-10x64": {"floor": 1.25, "hand": 0.85, "other": 0.33},
    "update-100x8": {"hand": 0.6}, "update-1x64K": {"floor": 1.05}, "update-1x1M": {"floor": 1.05},
    "timed-update-1x8": {"floor": 1.25}, "timed-update-10x64": {"floor": 1.4},
    "getAttributeHandle": {"floor": 1.15}, "evokeCallback": {"floor": 1.15},
    "reflect-1": {"floor": 1.0}, "reflect-10": {"floor": 0.4}, "reflect-100": {"floor": 0.3},
    "reflect-10-changing": {"floor": 1.05}, "timeAdvanceGrant": {"floor": 1.5},
    "federationSaved": {"floor": 2.0}, "make-ten-values": {"floor": 1.25},
    "encode-record-of-ten": {"table": 1.5, "other": 0.8}, "decode-record-of-ten": {"table": 1.5},
    "encode-array-of-100": {"floor": 4.5}, "decode-array-of-100": {"floor": 4.5},
    "encode-array-of-1000000": {"other": 0.8}, "decode-HLAopaqueData-1KiB": {"floor": 1.3},
}
AT_MOST = {"createRTIambassador": 5e6}
MORE = {
    "record-getAttributeHandle": 300, "record-update-3x8": 300, "record-timeAdvanceRequest": 300,
    "record-evokeMultipleCallbacks": 300, "record-reflect-3x8": 300,
}
RUNGS = 8  # of updateAttributeValues
UNITS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}


def read_runs(names):
    """By case and role: median and spread in ns, and bytes a call."""
    cases = {}
    for name in names:
        with open(name, encoding="utf-8") as file:
            benchmarks = json.load(file)["benchmarks"]
        for entry in benchmarks:
            aggregate = entry.get("aggregate_name")
            if entry.get("error_occurred"):
                sys.exit(f"{entry['name']}: {entry['error_message']}")
            if aggregate not in ("median", "stddev"):
                continue
            case, role = entry["run_name"].split("/")[:2]
            figures = cases.setdefault(case, {}).setdefault(role, {})
            figures[aggregate] = entry["cpu_time"] * UNITS[entry["time_unit"]]
            if aggregate == "median" and entry["threads"] > 1:
                figures["clock"] = entry["real_time"] * entry["threads"]
            if aggregate == "median" and "bytes_per_second" in entry:
                figures["bytes"] = round(entry["bytes_per_second"] * figures[aggregate] / 1e9)
    return cases


def summary(cases):
    """What is kept by --json: the median of every role and the subject's ratios to them, by case."""
    result = {}
    for name, case in cases.items():
        if "subject" not in case:
            continue
        subject = case["subject"]
        row = {role: figures["median"] for role, figures in case.items()}
        row["ratios"] = {role: subject["median"] / figures["median"]
                         for role, figures in case.items() if role != "subject"}
        row["limits"] = LIMITS.get(name, {})
        row["spread"] = subject.get("stddev", 0) / subject["median"]
        row["bytes"] = subject.get("bytes")
        row["clock"] = subject.get("clock")
        result[name] = row
    return result


def verdict(value, limit):
    """Empty where there is nothing to reach."""
    return "" if limit is None else "reached" if value <= limit else "not reached"


def print_table(rows):
    print(f"{'case':24}{'subject':>12}{'+-':>6}  {'beside':8}{'time':>12}{'ratio':>8}{'limit':>7}")
    for name, row in sorted(rows.items()):
        head = f"{name:24}{row['subject']:12.1f}{row['spread']:6.0%}  "
        if not row["ratios"]:
            print(head + verdict(row["subject"], AT_MOST.get(name)))
        for role, ratio in sorted(row["ratios"].items()):
            limit = row["limits"].get(role)
            told = verdict(ratio, limit)
            if role == "floor" and name in MORE:
                told = verdict(row["subject"] - row["floor"], MORE[name])
            print(f"{head}{role:8}{row[role]:12.1f}{ratio:8.2f}"
                  f"{'' if limit is None else format(limit, '.2f'):>7}  {told}")
            head = " " * len(head)
    print("Times in ns of the processor, medians; +- is the standard deviation of the subject.")


def print_derived(rows):
    first, last = rows.get("fails-on-first-rung"), rows.get("fails-on-last-rung")
    if first and last:
        print(f"one rung of a ladder: {(last['subject'] - first['subject']) / (RUNGS - 1):.0f} ns")
    for name, row in sorted(rows.items()):
        if row["clock"]:
            print(f"{name}: {row['subject']:.0f} ns of the processor a call, "
                  f"{row['clock']:.0f} ns by each thread's clock")
    objects = sorted((row["bytes"], row["subject"], row["floor"])
                     for name, row in rows.items() if name.startswith("objects-"))
    for fewer, more in zip(objects, objects[1:]):
        bytes_more = more[0] - fewer[0]
        print(f"from {fewer[0]} to {more[0]} bytes an update: "
              f"{(more[1] - fewer[1]) / bytes_more:.2f} ns a byte, "
              f"{(more[2] - fewer[2]) / bytes_more:.2f} of them the floor's")


def svg(rows):
    """Bars of the ratios to the floor, with a mark where the limit is."""
    drawn = [(name, row["ratios"]["floor"], row["limits"]["floor"])
             for name, row in sorted(rows.items())
             if "floor" in row["ratios"] and "floor" in row["limits"]]
    left, scale, step, top, most = 190, 110, 26, 62, 5.0
    width, height = left + int(most * scale) + 70, top + 14 + step * len(drawn)
    reached, beyond = "#3b7d5c", "#c0722c"

    def text(x, y, content, more=""):
        return f'<text x="{x:.0f}" y="{y:.0f}"{more}>{escape(content)}</text>'

    def bar(x, y, length, colour):
        return f'<rect x="{x}" y="{y}" width="{length:.0f}" height="18" fill="{colour}"/>'

    def mark(x, y):
        return (f'<line x1="{x:.0f}" y1="{y - 3}" x2="{x:.0f}" y2="{y + 21}" stroke="black"'
                ' stroke-width="2"/>')

    out = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}"'
           ' font-family="sans-serif" font-size="13">',
           f'<rect width="{width}" height="{height}" fill="white"/>',
           text(10, 20, "Cost as a multiple of the same done by hand at the least"),
           bar(10, 32, 18, reached), text(34, 46, "within the limit"), bar(150, 32, 18, beyond),
           text(174, 46, "beyond it"), mark(259, 32), text(268, 46, "the limit")]
    for i, (name, ratio, limit) in enumerate(drawn):
        y = top + i * step
        shown = min(ratio, most)
        out += [text(left - 8, y + 14, name, ' text-anchor="end"'),
                bar(left, y, shown * scale, reached if ratio <= limit else beyond),
                mark(left + limit * scale, y),
                text(left + max(shown, limit) * scale + 8, y + 14, f"{ratio:.2f}")]
    return "\n".join(out + ["</svg>"]) + "\n"


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("runs", nargs="+", metavar="RUN.json")
    parser.add_argument("--json", help="file for the figures and ratios")
    parser.add_argument("--svg", help="file for the plot")
    arguments = parser.parse_args()
    rows = summary(read_runs(arguments.runs))
    if not rows:
        sys.exit("no subject was measured")
    print_table(rows)
    print_derived(rows)
    if arguments.json:
        with open(arguments.json, "w", encoding="utf-8") as file:
            json.dump(rows, file, indent=1)
    if arguments.svg:
        with open(arguments.svg, "w", encoding="utf-8") as file:
            file.write(svg(rows))


if __name__ == "__main__":
    main()
