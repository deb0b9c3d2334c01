"""Charts as SVG, drawn by gnuplot, in colours that can be told apart on white and on black."""
import re, subprocess

COLOURS = ["#2f7de1", "#c8641a", "#2a9460", "#a854a0"]
GREY = "#8a8f98"
SETTINGS = """
set terminal svg size 480,300 font "sans-serif,13" linewidth 1.5
set border 3
set tics nomirror
set grid ytics linecolor rgb "{grey}" linewidth 0.3
set key outside top center horizontal
set xlabel "{x}"
set ylabel "{y}"
"""


def block(name, points):
    return f"${name} << END\n" + "".join(f"{x} {y}\n" for x, y in points) + "END\n"


def axes(chart):
    points = [point for curve in chart.curves.values() for point in curve]
    xs, highest = [x for x, _ in points], max(y for _, y in points)
    for axis in chart.logarithmic:
        yield f'set logscale {axis}\nset format {axis} "%.0s%c"'
    if "y" not in chart.logarithmic:
        yield f"set yrange [0:{highest * 1.15}]"
    if "x" in chart.logarithmic:
        yield f"set xrange [{min(xs) / 1.3}:{max(xs) * 1.3}]"
    else:
        margin = (max(xs) - min(xs) or 1) * 0.04
        yield f"set xrange [{min(xs) - margin}:{max(xs) + margin}]"
        yield f"set xtics {max(1, round((max(xs) - min(xs)) / 8))}"


def plots(chart, before):
    """The curves of the run before, in grey and below, then those of this one."""
    old = [curve for curve in before if curve in chart.curves]
    for number, curve in enumerate(old):
        title = 'title "the run before"' if number == 0 else "notitle"
        yield f'$old{number} with lines linecolor rgb "{GREY}" linewidth 2 {title}'
    for number, curve in enumerate(chart.curves):
        yield (f'$new{number} with linespoints linecolor rgb "{COLOURS[number % len(COLOURS)]}" pointtype 7 pointsize 0.5 '
               f'title "{curve}"')


def draw(chart, before):
    """The chart as an `svg` element, with `before` as the curves of the run before."""
    old = [points for curve, points in before.items() if curve in chart.curves]
    script = "".join([
        SETTINGS.format(x=chart.x, y=chart.y, grey=GREY),
        *(f"{line}\n" for line in axes(chart)),
        *(block(f"old{number}", points) for number, points in enumerate(old)),
        *(block(f"new{number}", points) for number, points in enumerate(chart.curves.values())),
        "plot " + ", ".join(plots(chart, before)) + "\n"])
    svg = subprocess.run(["gnuplot"], input=script, capture_output=True, text=True, check=True).stdout
    return adapt(svg[svg.index("<svg"):], chart)


def adapt(svg, chart):
    """Fits the drawing into a page: it scales, has the page's colour, says what it is, and shares no name with others."""
    svg = re.sub(r"\s*<filter.*?</filter>", "", svg, flags=re.S)
    svg = re.sub(r'\s+width="\d+" height="\d+"\s+viewBox', f' role="img" aria-label="{chart.title}" viewBox', svg, count=1)
    svg = re.sub(r'<desc>.*?</desc>|<rect [^>]*fill="#ffffff"/>|<title>[^<]*</title>', "", svg, flags=re.S)
    svg = re.sub(r"(?<=\bid=['\"])|(?<=href='#)", f"{chart.name}-", svg)
    svg = svg.replace('color="black"', 'color="inherit"')
    return re.sub(r"(fill|stroke)=(['\"])black\2", r"\1=\2currentColor\2", svg)
