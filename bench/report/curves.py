"""Curves: what a call, an object, a machine costs as there are more of something."""
import csv, io

from callgrind import difference
from figures import output

SCRIPT = "../../../bench/curves/curves.lua"
MODULE = "./libcurves.so"


def instructions(what, size):
    return difference(1000, 3000, "./velmara", "--module", MODULE, SCRIPT, what, size)


def scripts(figures):
    """Instructions, from a loop of a script."""
    chart = figures.chart("arguments", "A function called from a script, by its arguments", "numbers passed", "instructions")
    for size in [0, 1, 2, 3, 4, 6, 8, 10]:
        chart.add("a call", size, instructions("arguments", size))
    chart.print()
    chart = figures.chart("overloads", "An overloaded function called from a script", "overloads", "instructions")
    for size in [1, 2, 4, 8, 16, 32]:
        chart.add("the first is meant", size, instructions("first", size))
        chart.add("the last is meant", size, instructions("last", size))
    chart.print()


def times(command, *charts):
    """What a program in build/release/bin prints: a chart with the names and units of the columns that it shows."""
    rows = list(csv.reader(io.StringIO(output(*command))))
    for chart, columns, unit in charts:
        for row in rows[1:]:
            for column in columns:
                chart.add(column, row[0], float(row[rows[0].index(column)]) / unit)
        chart.print()


def measure(figures):
    scripts(figures)
    chart = figures.chart
    times(["./bench_sizes", MODULE, "strings"],
          (chart("strings", "A string passed, by its length", "characters", "ns", "xy"), ["in", "out"], 1))
    times(["./bench_sizes", MODULE, "arrays"],
          (chart("arrays", "An array passed, beside memory and one memcpy", "doubles", "ns", "xy"), ["in", "out", "copy"], 1))
    times(["./bench_objects", MODULE],
          (chart("objects", "One object beside many that live", "live objects", "ns", "xy"), ["create", "call", "destroy"], 1),
          (chart("bytes", "Memory of one object beside many that live", "live objects", "bytes", "x"), ["bytes"], 1))
    times(["./bench_machines", MODULE],
          (chart("machines", "One machine beside others, with its module", "machines", "µs", "x"), ["create", "close"], 1000),
          (chart("turns", "A call, from one machine to the next", "machines", "ns", "x"), ["call"], 1),
          (chart("machine-bytes", "Memory of one machine, with its module", "machines", "kB", "x"), ["bytes"], 1000))
    times(["./bench_threads", MODULE],
          (chart("threads", "Threads with a machine each, together", "threads", "millions a second"), ["calls", "objects"], 1))
