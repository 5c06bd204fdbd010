#!/usr/bin/env python3
"""Prints the ratios of a benchmark run, and draws them.

   report.py RUN.json... [--json FILE] [--svg FILE]

RUN.json is what Google Benchmark writes, with several repetitions. Its benchmarks are named
case/role: the subject, its floor, "least" (the floor with what the interface asks for besides) or
"other" (another way to reach the same). Medians of processor time count, since a benchmark's thread
may have to wait for other programs; for threads it is the time of all of them, per call.
"""

import argparse
import json
import sys
from html import escape

# How many times its floor a case may cost; how many times faster than "other" it is to be; how many
# ns it may take; how many more than its floor.
LIMITS = {
    "update-1x8": 1.15, "update-10x64": 1.15, "update-1x64K": 1.05, "update-1x1M": 1.05,
    "timed-update-1x8": 1.3, "timed-update-10x64": 1.3, "reflect-1": 1.2, "reflect-10": 1.2,
    "reflect-100": 1.2, "timeAdvanceGrant": 2.0, "federationSaved": 2.0,
    "getAttributeHandle": 1.15, "evokeCallback": 1.15,
}
FASTER = {"update-10x64": 3.0}
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


def ratio(case, role):
    return case["subject"]["median"] / case[role]["median"] if role in case else None


def summary(cases):
    """What is kept by --json: figures and ratios by case."""
    result = {}
    for name, case in cases.items():
        if "subject" not in case:
            continue
        row = {role: figures["median"] for role, figures in case.items()}
        row["spread"] = case["subject"].get("stddev", 0) / case["subject"]["median"]
        row["bytes"] = case["subject"].get("bytes")
        row["clock"] = case["subject"].get("clock")
        row["ratio"] = ratio(case, "floor")
        row["to least"] = ratio(case, "least")
        other = ratio(case, "other")
        row["times faster"] = 1 / other if other else None
        row["limit"] = LIMITS.get(name)
        result[name] = row
    return result


def number(value, form):
    return format(value, form) if value is not None else ""


def verdict(name, row):
    """Empty where there is nothing to reach."""
    reached = []
    if row["limit"] and row["ratio"]:
        reached.append(row["ratio"] <= row["limit"])
    if name in FASTER and row["times faster"]:
        reached.append(row["times faster"] >= FASTER[name])
    if name in AT_MOST:
        reached.append(row["subject"] <= AT_MOST[name])
    if name in MORE:
        reached.append(row["subject"] - row["floor"] <= MORE[name])
    return "" if not reached else "reached" if all(reached) else "not reached"


def print_table(rows):
    print(f"{'case':24}{'subject':>12}{'+-':>6}{'floor':>12}{'ratio':>8}{'limit':>7}"
          f"{'to least':>10}{'times faster':>14}")
    for name, row in sorted(rows.items()):
        print(f"{name:24}{row['subject']:12.1f}{row['spread']:6.0%}"
              f"{number(row.get('floor'), '.1f'):>12}"
              f"{number(row['ratio'], '.2f'):>8}{number(row['limit'], '.2f'):>7}"
              f"{number(row['to least'], '.2f'):>10}{number(row['times faster'], '.2f'):>14}"
              f"  {verdict(name, row)}")
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
    """Bars of the ratios, with a mark where the limit is."""
    drawn = [(name, row) for name, row in sorted(rows.items()) if row["ratio"] and row["limit"]]
    left, scale, step, most = 190, 110, 26, 4.5
    width, height = left + int(most * scale) + 70, 50 + step * len(drawn)
    out = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}"'
           ' font-family="sans-serif" font-size="13">',
           f'<rect width="{width}" height="{height}" fill="white"/>',
           '<text x="10" y="20">Cost as a multiple of the barest JNI call; the mark is the most'
           ' that it may be</text>']
    for i, (name, row) in enumerate(drawn):
        y = 36 + i * step
        shown = min(row["ratio"], most)
        colour = "#3b7d5c" if row["ratio"] <= row["limit"] else "#c0722c"
        mark = left + row["limit"] * scale
        out += [f'<text x="{left - 8}" y="{y + 14}" text-anchor="end">{escape(name)}</text>',
                f'<rect x="{left}" y="{y}" width="{shown * scale:.0f}" height="18"'
                f' fill="{colour}"/>',
                f'<line x1="{mark:.0f}" y1="{y - 3}" x2="{mark:.0f}" y2="{y + 21}" stroke="black"'
                ' stroke-width="2"/>',
                f'<text x="{left + shown * scale + 8:.0f}" y="{y + 14}">{row["ratio"]:.2f}</text>']
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
