"""Times, from the programs of Google Benchmark, and the weight of a description."""
import csv, io, json, re, subprocess, tempfile

from descriptors import goals, ratio
from figures import BIN, ROOT, output

OPERATIONS = ["bind", "find", "return", "release", "bytes"]


def calls(figures):
    """The programs print their own tables, and hand the same figures over in a file."""
    table = figures.table("Times of many calls or strings, and of one", ["", "ns", "CPU ns", "CPU ns of one"])
    for program in ["calls", "strings", "numbers"]:
        with tempfile.NamedTemporaryFile(suffix=".json") as file:
            subprocess.run([f"./{program}", "--benchmark_min_time=0.2", f"--benchmark_out={file.name}"], cwd=BIN, check=True)
            for run in json.load(file)["benchmarks"]:
                nanoseconds = {"ns": 1, "us": 1e3, "ms": 1e6}[run["time_unit"]]
                one = f"{1e9 / run['items_per_second']:.1f}" if "items_per_second" in run else ""
                table.row(run["name"], *(f"{run[time] * nanoseconds:.1f}" for time in ["real_time", "cpu_time"]), one)


def weight(figures):
    print(flush=True)
    table = figures.table("Weight of the README's example", ["", "ours", "goal"])
    run = subprocess.Popen([ROOT / "scripts/weigh"], stdout=subprocess.PIPE, text=True)
    for line in run.stdout:
        print(line, end="", flush=True)
        if row := re.match(r"(.{48}) +(\S+)  <= (\S+)$", line):
            table.row(row[1].rstrip(), row[2], row[3])
    if run.wait():
        raise SystemExit("scripts/weigh failed")


def benchmarks(program, *options):
    """The rows of a program of Google Benchmark, by column."""
    text = output(f"./{program}", "--benchmark_format=csv", *options)
    return list(csv.DictReader(io.StringIO(text[text.index("name,"):])))


def copies(figures):
    cpuTime = {run["name"]: run["cpu_time"] for run in benchmarks("numbers", "--benchmark_min_time=0.5")}
    table = goals(figures, "Time of 1,000,000 doubles, to memory and one memcpy",
                  "time of 1,000,000 doubles, to memory and one memcpy  ours    goal")
    for name, scenario in [("vector in", "vectorIn"), ("vector out", "vectorOut"), ("span in", "spanIn")]:
        table.row(name, ratio(cpuTime[f"call/{scenario}"], cpuTime["copy"]), 1.2)


def registryRow(cells):
    """Each number with its ratio to the one above."""
    count, *figures = cells
    return f"{count:<13}" + "".join(" {:>8} {:<6}".format(*(figure.split() + [""])[:2]) for figure in figures)


def registry(figures):
    print("\nlive bindings       bind, ns        find, ns      return, ns     release, ns           bytes")
    table = figures.table("The table of live bindings", ["live", "bind, ns", "find, ns", "return, ns", "release, ns", "bytes"],
                          registryRow)
    above = {}
    for run in benchmarks("registry"):
        cells = []
        for operation in OPERATIONS:
            value = float(run[operation])
            cells.append(f"{value:.1f}" + (f" x{value / above[operation]:.2f}" if operation in above else ""))
            above[operation] = value
        table.row(run["name"].split("/")[1], *cells)
