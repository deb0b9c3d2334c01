"""Instructions where people call: from a loop of a script in the console, and by the host's driving interface. The
figures of the peers are of the same class in a widely used binder for Lua and one for Python, measured by callgrind as
well."""
from callgrind import difference
from figures import output

SCRIPT = "../../../bench/crossings/crossings.lua"
FROM_SCRIPT = [  # what is said, the scenario, its repetitions, the goal and the peers' figures
    ("a:getSum(1.0, 2.0)", "call", 1000, 600, 2105, 702),
    ("property read", "read", 1000, 450, 1197, 532),
    ("property written", "write", 1000, 450, 1195, 549),
    ("create and collect", "create", 1000, 1800, 3123, 937),
    ("  while lines are recorded", "createRecorded", 1000, "-", "-", "-"),
    ("package function", "functionLocal", 1000, 450, 496, 572),
    ("  by its name, package.f()", "functionName", 1000, 520, 542, 607),
    ("method, property and function of 64 names each", "mixed", 1000, "-", "-", "-"),
    ("string of 12 characters in", "stringIn", 1000, 400, 403, 582),
    ("string of 12 characters out", "stringOut", 1000, 520, 548, 627),
    ("bound object in and out", "object", 1000, 480, 907, 482),
    ("the last of 20 overloads", "overload", 1000, 2500, 9636, 2724),
    ("1,000 strings in", "stringsIn", 10, 160000, 345000, 162000),
    ("1,000 strings out", "stringsOut", 10, 220000, 449000, 228000),
    ("wrong type, caught", "wrongType", 100, 35000, 55656, 9033),
    ("native exception, caught", "exception", 100, 34000, 49573, 34683),
]
DRIVEN = [  # likewise; there is no Lua peer of these
    ("package function by another name each time", "functionByName", 1000, 538),
    ("create and destroy", "create", 1000, 894),
    ("bound object in and out, by name", "identity", 1000, 502),
    ("string of 12 characters in", "stringIn", 1000, 582),
    ("the last of 2 overloads", "overload2", 1000, 527),
    ("the last of 8 overloads", "overload8", 1000, 1323),
    ("the last of 20 overloads", "overload20", 1000, 2438),
    ("wrong type", "wrongType", 100, 7711),
    ("native exception", "exception", 100, 32513),
]


def peersRow(cells):
    name, ours, goal, lua, python = cells
    return f"{name:<48} {ours:>8}  <= {goal:<8} {lua:>9} {python:>9}"


def peers(figures, title, heading):
    columns = ["ours", "goal", "Lua peer", "Python's"]
    print("\n" + peersRow([heading, *columns]))
    return figures.table(title, ["", *columns], peersRow)


def count(repetitions, *command):
    return f"{difference(repetitions, 3 * repetitions, *command):.0f}"


def measure(figures):
    table = peers(figures, "Instructions from a loop of a script", "instructions from a loop of a script")
    for name, scenario, repetitions, *known in FROM_SCRIPT:
        table.row(name, count(repetitions, "./velmara", "--module", "./libcrossings.so", SCRIPT, scenario), *known)
    table = peers(figures, "Instructions by the driving interface", "instructions by the driving interface")
    for name, scenario, repetitions, goal in DRIVEN:
        table.row(name, count(repetitions, "./driving", "./libcrossings.so", scenario), goal, "-", goal)
    table.row("bytes of one of 10^6 live objects", output("./driving", "./libcrossings.so", "memory", "1000000"), 200, "-", "-")
