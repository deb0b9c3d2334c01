"""The figures of a run: tables, printed while they are measured, and charts. They are kept from one run to the next."""
import json, os, pathlib, re, subprocess, time

ROOT = pathlib.Path(__file__).resolve().parents[2]
BIN = ROOT / "build/release/bin"
KEPT = ROOT / "build/bench"


class Table:
    """Rows of a name and its figures; `show` turns a row into the printed line, None where something else prints it.
    `marked` holds the cells (row, column) that are worse than they should be, and `mark` the word for it."""

    def __init__(self, title, columns, show=None, mark="over"):
        self.title, self.columns, self.show, self.mark = title, columns, show, mark
        self.rows, self.marked = [], set()

    def row(self, *cells):
        self.rows.append([str(cell) for cell in cells])
        if "goal" in self.columns and isOver(*self.rows[-1][1:3]):
            self.marked.add((len(self.rows) - 1, 1))
        if self.show:
            print(self.show(self.rows[-1]), flush=True)


def isOver(ours, goal):
    try:
        return float(ours) > float(goal)
    except ValueError:
        return False  # there is no goal


class Chart:
    """Curves over one quantity. `logarithmic` names the axes that are: "", "x", "y" or "xy"."""

    def __init__(self, name, title, x, y, logarithmic=""):
        self.name, self.title, self.x, self.y, self.logarithmic = name, title, x, y, logarithmic
        self.curves = {}

    def add(self, curve, x, y):
        self.curves.setdefault(curve, []).append([float(x), float(y)])

    def rows(self):
        """The figures as text: the names of the columns, then a row for each x."""
        xs = sorted({x for points in self.curves.values() for x, _ in points})
        values = {curve: dict(points) for curve, points in self.curves.items()}
        yield [self.x, *self.curves]
        for x in xs:
            yield [f"{x:,.0f}", *(f"{values[curve][x]:,.1f}" if x in values[curve] else "" for curve in self.curves)]

    def print(self):
        print(f"\n{self.title}: {self.y}")
        for cells in self.rows():
            print(f"{cells[0]:<20}" + "".join(f" {cell:>16}" for cell in cells[1:]), flush=True)


class Figures:
    """What a run has measured, and where: the machine, its load, date, commit and compiler."""

    def __init__(self):
        self.about, self.tables, self.charts = about(), [], []

    def table(self, *arguments):
        self.tables.append(Table(*arguments))
        return self.tables[-1]

    def chart(self, *arguments):
        self.charts.append(Chart(*arguments))
        return self.charts[-1]

    def keep(self, file):
        """Writes the figures to a file in build/bench, and returns the curves that it held before."""
        path = KEPT / file
        before = json.loads(path.read_text())["charts"] if path.exists() else {}
        KEPT.mkdir(parents=True, exist_ok=True)
        tables = {table.title: [table.columns, *table.rows] for table in self.tables}
        charts = {chart.name: chart.curves for chart in self.charts}
        whole = path.with_suffix(".new")  # an interrupted run leaves the figures of the one before
        whole.write_text(json.dumps({"about": self.about, "tables": tables, "charts": charts}, indent=1) + "\n")
        whole.replace(path)
        return before


def about():
    processor = re.search(r"model name\s*: (.*)", pathlib.Path("/proc/cpuinfo").read_text())
    commit = subprocess.run(["git", "-C", ROOT, "describe", "--always", "--dirty"], capture_output=True, text=True)
    compiler = re.search(r"CMAKE_CXX_COMPILER:\w+=(.*)", (BIN.parent / "CMakeCache.txt").read_text())
    memory = os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_PHYS_PAGES") / 2**30
    name = re.sub(r"\s+", " ", processor[1]) if processor else os.uname().machine
    return {
        "machine": f"{name}, {os.cpu_count()} cores, {memory:.0f} GB",
        "date": time.strftime("%Y-%m-%d %H:%M"),
        "commit": commit.stdout.strip() or "unknown",  # as in sources without their history
        "compiler": output(compiler[1], "--version").splitlines()[0],
        "load": f"{os.getloadavg()[0]:.1f} before the run: times on a busy machine tell little",
    }


def output(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True, cwd=BIN).stdout.strip()
