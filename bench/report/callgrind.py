"""Instruction counts. The difference of two runs excludes start-up and shutdown."""
import re, subprocess

from figures import BIN


def collected(*command, functions=(), environment=None):
    """The instructions of a run of a program in build/release/bin: all, or those in the named functions and below."""
    toggles = [f"--toggle-collect={function}" for function in functions]
    run = subprocess.run(["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", *toggles, *map(str, command)],
                         capture_output=True, text=True, cwd=BIN, env=environment)
    found = re.search(r"Collected : (\d+)", run.stderr)
    if run.returncode or not found:
        raise SystemExit(f"callgrind of {' '.join(map(str, command))}: {run.stdout}{run.stderr}")
    return int(found[1])


def difference(few, many, *command, **options):
    """The instructions of one repetition: the command's last argument is how many it makes."""
    return (collected(*command, many, **options) - collected(*command, few, **options)) / (many - few)
