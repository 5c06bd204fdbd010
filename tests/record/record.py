#!/usr/bin/env python3
"""Tries the recorder: federates run under it as without it, what it records is what they did, and
nothing that goes wrong with the recording touches them.

   record.py RECORDER EXAMPLES [BRIDGE_TESTS]
"""

import json
import os
import re
import signal
import subprocess
import sys
import tempfile
import time
from collections import Counter
from pathlib import Path
from xml.etree import ElementTree

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "gen/generator"))
import rows  # noqa: E402

RECORDER, EXAMPLES = sys.argv[1], Path(sys.argv[2])
faults = []


def check(what, right, seen=""):
    if not right:
        faults.append(what)
        print(f"{what}: {str(seen)[-1500:]}")


def run(*command):
    done = subprocess.run([str(part) for part in command], text=True, check=False,
                          stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    errors = [line for line in done.stderr.splitlines() if line.startswith("tarn1516e-record: ")]
    return done.returncode, done.stdout, errors


def record(trace, *command, options=()):
    return run(RECORDER, "--output", trace, *options, "--", *command)


def events(trace, category):
    return [event for event in json.loads(trace.read_text()) if event.get("cat") == category]


def check_events(trace):
    """Each begin has its end, and bears a row's name with that row's arguments."""
    known = set()
    for row in rows.read_operations() + rows.read_callbacks():
        known.add((row.name, "rti", *(field.name for field in row.fields)))
    stacks, last = {}, {}
    for event in json.loads(trace.read_text()):
        if event["ph"] == "M":
            continue
        thread = event["tid"]
        check("times go on", last.get(thread, 0) <= event["ts"], event)
        last[thread] = event["ts"]
        if event["ph"] == "B":
            stacks.setdefault(thread, []).append(event)
            shape = (event["name"], *event["args"])
            check("a row", event["cat"] == "start" or shape in known, shape)
        else:
            check("an end without a begin", stacks.get(thread) and stacks[thread].pop(), event)
    check("all have ended", not any(stacks.values()), stacks)


def try_examples(folder):
    trace = folder / "run with spaces.json"
    status, output, errors = record(trace, EXAMPLES / "demo")
    counts = re.search(r"(\d+) services called, (\d+) callbacks received", output)
    recorded = (len(events(trace, "service")), len(events(trace, "callback")))
    check("the demo", status == 0 and not errors and "0 differences" in output, output)
    check("its counts", counts and recorded == tuple(map(int, counts.groups())), recorded)
    check_events(trace)
    run(RECORDER, "--html", folder / "run.html", trace)
    page = ElementTree.fromstring((folder / "run.html").read_text().replace('charset="utf-8">', "/>"))
    drawn = Counter(part.get("class") for part in page.iter())
    check("the drawing", drawn["service"] > 20 and drawn["callback"] > 10 and drawn["stair"] == 4, drawn)
    styled = {None, *re.findall(r"\.([a-z]+){", page.findtext(".//style"))}
    check("styles", drawn.keys() <= styled, drawn.keys() - styled)
    # The story of the pilotage always runs the same way, and so it does without room on the disk.
    story = (ROOT / "tests/examples/pilotage.txt").read_text()
    for output_file, status, complaint in (
            (folder / "%p.json", 0, ""), ("/dev/full", 2, "No space left on device")):
        found, told, errors = record(output_file, EXAMPLES / "pilotage")
        check(f"pilotage to {output_file}", (found, told) == (status, story), told)
        check(f"told of {output_file}", [complaint in line for line in errors] == [True] * (status // 2),
              errors)
    written = [path for path in folder.glob("*.json") if path.stem.isdigit()]
    check("a file by the process's number", len(written) == 1, written)
    record(trace, EXAMPLES / "pilotage", options=("--values", "4"))
    shown = json.dumps(events(trace, "callback"))
    check("values as bytes", re.search(r'"\d+ bytes [0-9a-f]{8}', shown), shown)


def try_troubles(folder):
    trace, page = folder / "trouble.json", folder / "trouble.html"
    for trouble, report, mark in (
            ("grant", "! no grant in the last .* Ship: timeAdvanceRequest", 'class="missing" d="M[1-9]'),
            ("exception", r"10  updateAttributeValues: AttributeNotOwned", 'rect class="failed"'),
            ("chatty", r"Ship.Name +50 +12000 +\d+", 'rect class="callback"')):
        record(trace, EXAMPLES / "troubles", trouble)
        status, output, errors = run(RECORDER, "--report", trace)
        check(f"report of {trouble}", status == 0 and not errors and re.search(report, output), output)
        status, _, _ = run(RECORDER, "--html", page, trace)
        check(f"page of {trouble}", status == 0 and re.search(mark, page.read_text()))
    # A federate that is killed while it waits: what it did stands in a whole file.
    federate = subprocess.Popen(
        [RECORDER, "-o", trace, "--", EXAMPLES / "troubles", "grant", "100000"],
        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    deadline = time.monotonic() + 60
    while "timeAdvanceRequest" not in trace.read_text() and time.monotonic() < deadline:
        time.sleep(0.2)
    pid = json.loads(trace.read_text())[0]["pid"]
    subprocess.run(["kill", "-KILL", str(pid)], check=True)
    check("status of a killed federate", federate.wait() == 128 + signal.SIGKILL)
    status, output, _ = run(RECORDER, "--report", trace)
    check("a killed federate", status == 0 and "no grant" in output, output)


def try_many(folder):
    trace, page = folder / "many.json", folder / "many.html"
    record(trace, EXAMPLES / "troubles", "chatty", "17000")
    check("a hundred thousand events", len(json.loads(trace.read_text())) > 100000)
    run(RECORDER, "--html", page, trace)
    check("a page that stays small", 10000 < page.stat().st_size < 500000, page.stat())
    outside = re.findall(r"https?:|src=|href=|url\(|@import", page.read_text())
    check("nothing from outside", not outside, outside)
    status, output, errors = record(
        trace, EXAMPLES / "troubles", "chatty", options=("--limit", "9K"))
    check("a limit", status == 0 and "sailed" in output and "limit is reached" in errors[0], errors)
    check("its size", 4000 < trace.stat().st_size <= 9216 and json.loads(trace.read_text()))


def try_bad_input(folder):
    trace = folder / "good.json"
    record(trace, EXAMPLES / "troubles", "exception")
    whole = trace.read_bytes()
    files = {"cut.json": whole[:len(whole) // 2], "empty.json": b"", "text.json": b"hello\n",
             "other.json": b'[{"ph":"B","name":"x","pid":1,"tid":1,"ts":1}]',
             "ended.json": whole.replace(b'"ph":"B"', b'"ph":"E"')}
    for name, content in files.items():
        (folder / name).write_bytes(content)
    for arguments, complaint in (
            (("--report", "cut.json"), r"cut.json breaks off or is damaged at byte \d+"),
            (("--report", "empty.json"), "empty.json: is empty"),
            (("--report", "text.json"), "text.json: is no recording"),
            (("--report", "other.json"), "other.json: is no recording"),
            (("--report", "ended.json"), "ended.json: has a call that ends before it begins"),
            (("--report", "missing.json"), "missing.json: No such file"),
            (("--html", "none/page.html", "good.json"), "none/page.html: can't be written"),
            (("--limit", "much", "--", "true"), "no size is 'much'"),
            (("--values", "-1", "--", "true"), "can be shown, not '-1'"),
            ((), "nothing to do"),
            (("--output", "none/run.json", "--", "true"), "none/run.json: No such file"),
            (("--", "none/federate"), "none/federate: No such file"),
            (("--", "good.json"), "good.json: Permission denied")):
        local = [folder / part if part.endswith((".json", ".html")) or part.startswith("none")
                 else part for part in arguments]
        status, output, errors = run(RECORDER, *local)
        told = len(errors) == 1 and re.search(complaint, errors[0])
        check(f"{arguments}", status == 2 and told, errors)
        check("tables of what there is", ("Services" in output) == ("cut.json" in arguments), output)
    for command, status in (("exit 7", 7), ("kill -TERM $$", 128 + signal.SIGTERM)):
        check(command, record(trace, "sh", "-c", command)[0] == status)


def try_bridge(folder, program):
    """The bridge is as it was through the recorder: results, exceptions, arguments of callbacks."""
    status, output, errors = record(
        folder / "bridge.json", program, "--gtest_filter=Services.*:Ladders.*:Callbacks.*")
    check("the bridge", status == 0 and not errors, output)
    check_events(folder / "bridge.json")
    called = {event["name"] for category in ("service", "callback")
              for event in events(folder / "bridge.json", category)}
    wanted = {row.service.operation.name for row in rows.read_operations() if row.service}
    wanted |= {row.name for row in rows.read_callbacks()}
    check("everything is recorded", wanted <= called, wanted - called)


def main():
    with tempfile.TemporaryDirectory(prefix="tarn-record-") as folder:
        folder = Path(folder)
        os.chdir(folder)
        for trial in (try_examples, try_troubles, try_many, try_bad_input):
            trial(folder)
        if len(sys.argv) > 3:
            try_bridge(folder, sys.argv[3])
    print(f"{len(faults)} faults")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
