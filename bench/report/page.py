"""One page of figures for a browser, complete in its one file."""
from html import escape

from drawing import draw

STYLE = """
:root {
  color-scheme: light dark;
  --paper: #ffffff; --ink: #1b1d21; --quiet: #50555e; --line: #c3c8d0; --bad: #a81f1f;
}
@media (prefers-color-scheme: dark) {
  :root { --paper: #15171b; --ink: #e8eaed; --quiet: #b4bac4; --line: #454b55; --bad: #ff9d94; }
}
* { box-sizing: border-box; }
body {
  margin: 0 auto; max-width: 76rem; padding: 0 1rem 2rem; background: var(--paper); color: var(--ink);
  font: 1rem/1.5 system-ui, sans-serif;
}
h1 { margin: 1rem 0 0.5rem; }
h2 { margin: 2rem 0 0.5rem; font-size: 1.2rem; }
p, li { max-width: 48rem; }
dl { display: grid; grid-template-columns: auto 1fr; gap: 0 1rem; margin: 0; color: var(--quiet); }
dd { margin: 0; overflow-wrap: anywhere; }
.charts { display: grid; grid-template-columns: repeat(auto-fit, minmax(min(100%, 28rem), 1fr)); gap: 1rem 2rem; }
.tables { display: flex; flex-wrap: wrap; gap: 0 3rem; }
.tables > section { max-width: 100%; }
figure { margin: 0; min-width: 0; }
figcaption { font-weight: bold; }
svg { display: block; width: 100%; height: auto; }
.table { overflow-x: auto; }
table { border-collapse: collapse; font-variant-numeric: tabular-nums; }
th, td { padding: 0.15rem 0.75rem; text-align: right; white-space: nowrap; border-bottom: 1px solid var(--line); }
th:first-child {
  position: sticky; left: 0; min-width: 11rem; padding-left: 0; background: var(--paper);
  text-align: left; white-space: pre-wrap; font-weight: normal;
}
thead th { color: var(--quiet); vertical-align: bottom; font-weight: normal; }
@media (max-width: 32rem) { th, td { padding: 0.15rem 0.35rem; } th:first-child { min-width: 8rem; } }
.marked { color: var(--bad); font-weight: bold; }
summary { color: var(--quiet); cursor: pointer; }
summary:focus-visible, .table:focus-visible { outline: 3px solid var(--quiet); outline-offset: 2px; }
@media print { :root { --paper: #ffffff; --ink: #000000; --quiet: #333333; } figure, tr { break-inside: avoid; } }
"""


def rows(header, body, marked=(), mark=""):
    """A table of text: `marked` cells (row, column) are followed by the word `mark`."""
    def cell(row, column, text):
        if column == 0:
            return f'<th scope="row">{escape(text)}</th>'
        isMarked = (row, column) in marked
        return f'<td class="marked">{escape(text)} {mark}</td>' if isMarked else f"<td>{escape(text)}</td>"

    yield "<table><thead><tr>" + "".join(f'<th scope="col">{escape(name)}</th>' for name in header) + "</tr></thead><tbody>"
    for row, cells in enumerate(body):
        yield "<tr>" + "".join(cell(row, column, text) for column, text in enumerate(cells)) + "</tr>"
    yield "</tbody></table>"


def scrolling(title, content):
    yield f'<div class="table" role="region" aria-label="{escape(title)}" tabindex="0">'
    yield from content
    yield "</div>"


def tableSection(table):
    yield f"<section><h2>{escape(table.title)}</h2>"
    yield from scrolling(table.title, rows(table.columns, table.rows, table.marked, table.mark))
    yield "</section>"


def chartFigure(chart, before):
    header, *body = chart.rows()
    yield f"<figure><figcaption>{escape(chart.title)}</figcaption>"
    yield draw(chart, before)
    yield "<details><summary>the figures</summary>"
    yield from scrolling(f"{chart.title}: {chart.y}", rows(header, body))
    yield "</details></figure>"


def page(title, figures, before, introduction):
    yield f'<!DOCTYPE html>\n<html lang="en"><head><meta charset="utf-8"><title>{escape(title)}</title>'
    yield '<meta name="viewport" content="width=device-width, initial-scale=1">'
    yield f"<style>{STYLE}</style></head><body><main><h1>{escape(title)}</h1><dl>"
    yield from (f"<dt>{name}</dt><dd>{escape(value)}</dd>" for name, value in figures.about.items())
    yield f"</dl>{introduction}"
    if figures.charts:
        yield '<section><h2>Growth</h2><div class="charts">'
        for chart in figures.charts:
            yield from chartFigure(chart, before.get(chart.name, {}))
        yield "</div></section>"
    yield '<div class="tables">'
    for table in figures.tables:
        yield from tableSection(table)
    yield "</div></main></body></html>"


def write(file, title, figures, before, introduction=""):
    """`before` holds the curves of the run before, `introduction` HTML that comes before the figures."""
    file.parent.mkdir(parents=True, exist_ok=True)
    file.write_text("\n".join(page(title, figures, before, introduction)) + "\n")
