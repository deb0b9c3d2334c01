"""Instructions of calls through the library's descriptors, from the program `instructions`."""
from callgrind import difference

ANNOUNCE = "orbis::factory::basic::BindingRegistry::announce(void*, orbis::COSNameID const&)"
CONSTRUCTOR = "orbis::factory::impl::OrbisConstructor::invoke*"
CLASS_INFO = "orbis::factory::HandleClassInfo<bench::Adder, 1>::destroyInstanceData*"


def goalRow(cells):
    name, ours, goal = cells
    return f"{name:<48} {ours:>8}" + (f"  <= {goal}" if goal else "")


def goals(figures, title, heading):
    """A table of figures beside their goals."""
    print(f"\n{heading}")
    return figures.table(title, ["", "ours", "goal"], goalRow)


def count(scenario, *functions):
    return f"{difference(1000, 3000, './instructions', scenario, functions=functions):.1f}"


def countLong(scenario):
    return f"{difference(10, 20, './instructions', scenario):.0f}"


def ratio(a, b):
    return f"{float(a) / float(b):.3f}"


def calls(table):
    member, handWritten = count("member"), count("handWritten")
    table.row("free function through its FunctionInfo", count("function"), 85)
    table.row("member function on a bound object", member, 220)
    table.row(f"  its ratio to the hand-written ({handWritten})", ratio(member, handWritten), 1.05)
    table.row("the same by name through dispatch", count("dispatch"), 450)
    table.row("return a bound object (announce)", count("announce", ANNOUNCE), 170)
    objectIn, objectOut = count("objectIn"), count("objectOut")
    table.row(f"enumerator in, to an object ({objectIn})", ratio(count("enumeratorIn"), objectIn), 2)
    table.row(f"enumerator out, to an object ({objectOut})", ratio(count("enumeratorOut"), objectOut), 2)


def objects(table):
    table.row("create and destroy one bound handle object", count("construct", CONSTRUCTOR, CLASS_INFO), 556)
    for name, scenario in [("of it the native object's memory", "allocate"),
                           ("by class name, with the host's object", "construct"),
                           ("likewise a value", "createValue"),
                           ("a full::Wrappable", "createWrappable"),
                           ("a full::Shareable", "createShareable"),
                           ("a full::StdShareable", "createStdShareable")]:
        table.row(f"  {name}", count(scenario), "")


def properties(table):
    for name, scenario in [("property read", "get"), ("property written", "set")]:
        ours, handWritten = count(scenario), count(f"handWritten{scenario.capitalize()}")
        table.row(name, ours, 220)
        table.row(f"  its ratio to the hand-written ({handWritten})", ratio(ours, handWritten), 1.05)
    table.row("property read by name", count("getByName"), 450)
    table.row("property written by name", count("setByName"), 450)


def strings(table):
    table.row("string of 12 characters in", count("stringIn"), 280)
    table.row("string of 12 characters out", count("stringOut"), 440)
    table.row("vector of 1,000 std::string in", countLong("narrowVectorIn"), 168000)
    table.row("vector of 1,000 std::string out", countLong("narrowVectorOut"), 322000)
    into, out = countLong("vectorIn"), countLong("vectorOut")
    table.row(f"1,000 UTF-16 strings in ({into}), to bare steps", ratio(into, countLong("bareVectorIn")), 1.1)
    table.row(f"the same out ({out}), to bare steps", ratio(out, countLong("bareVectorOut")), 1.1)


def measure(figures):
    table = goals(figures, "Instructions of a call through a descriptor",
                  "instructions a call                                  ours    goal")
    calls(table)
    objects(table)
    properties(table)
    strings(table)
