"""One row, COUNT times: `rows.py NAME COUNT`, beside race_python. Prints the seconds of processor time."""
import os, sys, time

sys.path.insert(0, os.getcwd())
import race_python as race

adder, texts = race.Adder(), [f"name of {i + 1}" for i in range(1000)]
add, length, name, self, describe = race.add, race.length, race.name, race.self, race.describe
choose, kind = race.choose, race.Kind7()


def isRefused(function, *arguments):
    try: function(*arguments)
    except (TypeError, RuntimeError, AttributeError): return True
    return False

def check(_):
    """Fails unless the binding does what every contestant does."""
    assert adder.getSum(1.0, 2.0) == 3 and adder.total == 3 and add(1.0, 2.0) == 3
    assert length("twelve bytes") == 12 and name() == "twelve bytes" and self(adder) is adder
    assert describe(1.0) == 1 and describe("text") == 2 and describe(adder) == 3 and choose(kind) == 7
    assert race.count(texts) == 1000 and len(race.names()) == 1000 and race.countNumbers([1.5, 2.5]) == 2
    assert isRefused(add, 1.0) and isRefused(add, 1.0, 2.0, 3.0) and isRefused(add, "1", 2.0) and isRefused(length, 1.0)
    assert isRefused(self, kind) and isRefused(choose, adder) and isRefused(describe, kind)
    assert isRefused(race.count, [1.5]) and isRefused(race.countNumbers, ["text"]) and isRefused(race.fail)
    assert isRefused(setattr, adder, "total", "text") and isRefused(getattr, adder, "colour")


def call(count):
    for _ in range(count): adder.getSum(1.0, 2.0)

def read(count):
    for _ in range(count): adder.total

def write(count):
    for _ in range(count): adder.total = 3.0

def create(count):
    for _ in range(count): race.Adder()

def func(count):
    for _ in range(count): add(1.0, 2.0)

def stringIn(count):
    for _ in range(count): length("twelve bytes")

def stringOut(count):
    for _ in range(count): name()

def object(count):
    for _ in range(count): self(adder)

def overload3(count):
    for _ in range(count): describe(adder)

def overload8(count):
    for _ in range(count): choose(kind)

def stringsIn(count):
    for _ in range(count): race.count(texts)

def stringsOut(count):
    for _ in range(count): race.names()

def wrongType(count):
    for _ in range(count):
        try: adder.getSum("text", 2.0)
        except TypeError: continue
        raise SystemExit("the wrong type was taken")

def exception(count):
    for _ in range(count):
        try: race.fail()
        except RuntimeError: continue
        raise SystemExit("nothing was raised")

def listIn(count):
    for _ in range(count): race.countNumbers(values)

def listOut(count):
    for _ in range(count): race.numbers()

def arrayIn(count):
    for _ in range(count): race.countArray(values)

def arrayOut(count):
    for _ in range(count): race.array()


start = call
row, count = sys.argv[1], int(sys.argv[2])
if row == "listIn":
    values = race.numbers()
if row in ("arrayIn", "arrayOut"):
    values = race.array()
began = time.process_time()
globals()[row](count)
print(time.process_time() - began, flush=True)
os._exit(0)  # excludes the end, whose cost depends on the count
