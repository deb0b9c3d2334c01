#!/usr/bin/env -S python3 -B
"""Races the library against what one would choose instead: prints instructions and times with ratios, and writes
build/bench/race.html, which says where ours loses."""
import os, pathlib, resource, statistics, subprocess, sys
from html import escape

sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "report"))
import page
from callgrind import collected, difference
from figures import BIN, KEPT, Figures

FOLDER = "../../../bench/race"
PYTHON, LUA = "pybind11", "Lua's C interface"
SCRIPTS = {
    "ours": ["./velmara", "--module", "./librace.so", f"{FOLDER}/rows.lua"],
    PYTHON: ["/usr/bin/python3", f"{FOLDER}/rows.py"],
    LUA: ["lua5.4", f"{FOLDER}/rows.lua"],
}
PROGRAMS = {"ours": ["./race_driving"], "RTTR": ["./race_rttr"]}
START = ("start-up, with one call", "start", 1, 1)
ROWS = [  # what is said, the row, the repetitions for instructions and for times
    ("method call with 2 numbers", "call", 1000, 100_000),
    ("property read", "read", 1000, 100_000),
    ("property written", "write", 1000, 100_000),
    ("create and destroy", "create", 1000, 50_000),
    ("function with 2 numbers", "func", 1000, 100_000),
    ("string of 12 characters in", "stringIn", 1000, 100_000),
    ("string of 12 characters out", "stringOut", 1000, 100_000),
    ("a bound object in and out", "object", 1000, 100_000),
    ("overload by number, text or object", "overload3", 1000, 50_000),
    ("the last of 8 overloads", "overload8", 1000, 20_000),
    ("1,000 strings in", "stringsIn", 10, 500),
    ("1,000 strings out", "stringsOut", 10, 500),
    ("wrong type, caught", "wrongType", 100, 10_000),
    ("native exception, caught", "exception", 100, 10_000),
    ("array of 1,000,000 doubles in", "arrayIn", 2, 20),
    ("array of 1,000,000 doubles out", "arrayOut", 2, 20),
]
LISTS = [
    ("list of 1,000,000 numbers in", "listIn", 2, 5),
    ("list of 1,000,000 numbers out", "listOut", 2, 5),
]
MISSING = {(LUA, "arrayIn"), (LUA, "arrayOut")}  # it has tables only
ROUNDS = 9
EVEN = 1.05  # no one loses below this ratio
ENVIRONMENT = {**os.environ, "PYTHONHASHSEED": "0"}
INTRODUCTION = f"""
<p>Each contestant binds the same native code (<code>bench/race/native.hpp</code>) with the same compiler and flags and the
same checks: arguments are counted and typed, wrong ones refused, a native object is one object of the script, exceptions
become errors. Interpreters and libraries are those of Debian. A ratio is ours to theirs: above 1, ours costs more; a
row is lost above {EVEN}.</p>
<ul>
<li>Instructions are counted by callgrind, as the difference of two runs, loop included; start-up is that of a whole run.</li>
<li>Times are processor times, each the median of {ROUNDS} rounds in which the contestants take turns.</li>
<li>Our console's Lua is built as C++ and unwinds errors as exceptions; the peer's is C and jumps.</li>
<li>Arrays are the console's own and numpy's; lists are a table or a list of the language. Lua has no arrays.</li>
<li>RTTR passes C++ values as they are, by reference, from C++ to C++. Our driving interface converts them to values of
the host and back, which a script can use.</li>
</ul>
"""


def instructions(command, row, few):
    if row == "start":
        return collected(*command, row, 1, environment=ENVIRONMENT)
    return difference(few, 3 * few, *command, row, environment=ENVIRONMENT)


def nanoseconds(command, row, count):
    """The processor time of one repetition, or of the whole program for its start."""
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    run = subprocess.run([*command, row, str(count)], capture_output=True, text=True, check=True, cwd=BIN)
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    if row == "start":
        return (after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime) * 1e9
    return float(run.stdout) / count * 1e9


def median(contestants, row, count):
    """The median time of each contestant, which take turns."""
    rounds = [{name: nanoseconds(command, row, count) for name, command in contestants.items()} for _ in range(ROUNDS)]
    return {name: statistics.median(times[name] for times in rounds) for name in contestants}


def said(ratio):
    return f"{ratio:.2f}" if ratio < 10 else f"{ratio:,.0f}"


def show(cells):
    return f"{cells[0]:<36} {cells[1]:>14}" + "".join(f" {cell:>{18 - i % 2 * 9}}" for i, cell in enumerate(cells[2:]))


def ratio(values, peer):
    """Of ours to a peer's, 0 where that has no such row."""
    return values["ours"] / values[peer] if peer in values else 0


def compared(values, peer):
    return [f"{values[peer]:,.0f}", said(ratio(values, peer))] if peer in values else ["-", "-"]


def compete(figures, title, contestants, rows, measure):
    """Fills a table of one figure a contestant, with the ratios of ours to the others. Returns the figures by row."""
    peers = [name for name in contestants if name != "ours"]
    columns = ["", "ours", *(column for peer in peers for column in (peer, "ratio"))]
    table = figures.table(title, columns, show, "loses")
    print("\n" + show([title, *columns[1:]]))
    results = {}
    for name, row, *counts in rows:
        entered = {peer: command for peer, command in contestants.items() if (peer, row) not in MISSING}
        values = results[name] = measure(entered, row, *counts)
        table.marked |= {(len(table.rows), 3 + 2 * i) for i, peer in enumerate(peers) if ratio(values, peer) > EVEN}
        table.row(name, f"{values['ours']:,.0f}", *(cell for peer in peers for cell in compared(values, peer)))
    return results


def countAll(contestants, row, few, _):
    return {name: instructions(command, row, few) for name, command in contestants.items()}


def timeAll(contestants, row, _, count):
    return median(contestants, row, count)


def losses(peer, unit, results):
    """Says which rows are lost to a peer, the worst first."""
    ratios = sorted(((ratio(values, peer), name) for name, values in results.items() if peer in values), reverse=True)
    lost = [f"{name} ({said(value)})" for value, name in ratios if value > EVEN]
    head = f"To {peer}, in {unit}, {len(lost)} of {len(ratios)} rows"
    print(f"{head}: {', '.join(lost)}")
    return f"<li><strong>{escape(head)}:</strong> {escape(', '.join(lost))}</li>"


def main():
    for command in SCRIPTS.values():
        subprocess.run([*command, "check", "1"], check=True, cwd=BIN, stdout=subprocess.DEVNULL)
    figures, lost = Figures(), []
    for kind, contestants, rows in [("from a script", SCRIPTS, [*ROWS, *LISTS, START]), ("from C++", PROGRAMS, [*ROWS, START])]:
        for unit, what, measure in [("instructions", "Instructions", countAll), ("time", "Nanoseconds", timeAll)]:
            results = compete(figures, f"{what} {kind}", contestants, rows, measure)
            lost += [losses(peer, unit, results) for peer in contestants if peer != "ours"]
    text = f"<h2>Where ours loses</h2><ul>{''.join(lost)}</ul><h2>How it was measured</h2>{INTRODUCTION}"
    figures.keep("race.json")
    page.write(KEPT / "race.html", "orbis_factory: race", figures, {}, text)
    print(f"\nwritten: {KEPT / 'race.html'}")


main()
