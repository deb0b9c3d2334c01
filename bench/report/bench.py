#!/usr/bin/env -S python3 -B
"""Measures the programs in build/release/bin, prints the figures, and writes build/bench/index.html."""
import crossings, curves, descriptors, page, times
from figures import KEPT, Figures


def main():
    figures = Figures()
    times.calls(figures)
    descriptors.measure(figures)
    crossings.measure(figures)
    times.weight(figures)
    times.copies(figures)
    times.registry(figures)
    curves.measure(figures)
    figures.tables.append(figures.tables.pop(0))  # on the page what has goals comes first
    before = figures.keep("figures.json")
    page.write(KEPT / "index.html", "orbis_factory: figures", figures, before)
    print(f"\nwritten: {KEPT / 'index.html'}")


main()
