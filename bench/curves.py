#!/usr/bin/python3
"""Draws how the program grows and writes the page about it: curves.py GOALS TEMPLATE FIGURES FOLDER

FIGURES has lines "point CURVE ACROSS UP", the points of curves from left to right, and lines with a name and a value, as
report.py reads them. The pictures go to FOLDER/growth, the page to FOLDER/GROWTH.md.
"""
import dataclasses
import html
import math
import pathlib
import statistics
import sys

sys.dont_write_bytecode = True
import report  # noqa: E402

# Colours that stand out from white and from black alike, for viewers that do not tell which one the page has.
INK = "#767676"
LINES = ("#2972e0", "#c0570a", "#188837", "#a450cc", "#db3448", "#83770b", "#0f8383")
DASHES = ("", "8 3", "2 3", "10 3 2 3", "5 2", "3 2", "12 4")
STYLE = """
  text { font: 13px "Segoe UI", "DejaVu Sans", sans-serif; fill: %s }
  .title { font-size: 16px; font-weight: bold }
  .panel { font-weight: bold }
  .axis, .grid { stroke: %s; stroke-width: 1 }
  .grid { stroke-opacity: .25 }
  .curve { fill: none; stroke-width: 2 }
  .ground { fill: none }
  @media (prefers-color-scheme: light) { .ground { fill: #ffffff } text { fill: #24292f } }
  @media (prefers-color-scheme: dark) { .ground { fill: #0d1117 } text { fill: #e6edf3 } }
""" % (INK, INK)

WIDTH, LEFT, RIGHT, TOP = 860, 76, 240, 40
PANEL, GAP = 150, 58


@dataclasses.dataclass
class Panel:
    title: str
    unit: str
    curves: dict  # of each curve its name in the figures, and what it is called
    is_log: bool = False


@dataclasses.dataclass
class Picture:
    name: str
    title: str
    across: str
    panels: list
    is_log: bool = False


MEMORY = "private memory"
COUNTED = "what is held"


def held(subject):
    return {f"{subject}.gdi": "graphics objects", f"{subject}.other": "other handles", f"{subject}.windows": "windows"}


def compared(subject, work):
    return {f"{subject}.program.ms": work, f"{subject}.platform.ms": "five controls, set directly"}


WINDOWS = {"websafe": "websafe window", "failsafe": "failsafe window", "javascript": "JavaScript window",
           "contrast": "contrast window", "options": "options", "custom": "custom notation", "about": "About"}

PICTURES = (
    Picture("changes", "Change after change of colour", "changes of colour", [
        Panel("Cost of one, until it is painted", "ms", compared("changes", "a change of colour")),
        Panel("Memory", "KB", {"changes.kb": MEMORY}),
        Panel("Objects and handles", "number", held("changes"))]),
    Picture("undos", "Undo after undo, 200 steps at a time", "undos", [
        Panel("Cost of one, until it is painted", "ms", compared("undos", "an undo")),
        Panel("Memory", "KB", {"undos.kb": MEMORY}),
        Panel("Objects and handles", "number", held("undos"))]),
    Picture("openings", "Every window opened and closed again and again", "openings of each window", [
        Panel("From the command until it is painted", "ms",
              {f"openings.{window}.ms": name for window, name in WINDOWS.items()}),
        Panel("Memory that has come to it", "KB",
              {f"openings.{window}.kb": name for window, name in WINDOWS.items()}),
        Panel("Memory", "KB", {"openings.kb": MEMORY}),
        Panel("Objects and handles", "number", held("openings"))]),
    Picture("files", "Opening files of 1 KB to 1 GB", "bytes of the file", [
        Panel("Until the palette is painted", "ms",
              {"files.lines.ms": "a file in lines", "files.oneline.ms": "one long line at the end",
               "files.plain.ms": "reading the file alone"}, is_log=True),
        Panel("Memory", "KB", {"files.lines.kb": "after a file in lines", "files.oneline.kb": "after one long line"})],
            is_log=True),
)


def read_points(text):
    """Of each curve its points, and the text without them."""
    curves, others = {}, []
    for line in text.splitlines():
        if line.startswith("point "):
            name, across, up = line.split()[1:]
            curves.setdefault(name, []).append((float(across), float(up)))
        else:
            others.append(line)
    return curves, "\n".join(others)


def step_of(most):
    """The distance of marks on an axis from 0 to most: 1, 2 or 5 times a power of ten, six marks at the most."""
    rough = max(most, 1e-9) / 6
    power = 10 ** math.floor(math.log10(rough))
    return next(power * times for times in (1, 2, 5, 10) if power * times >= rough * (1 - 1e-9))


class Axis:
    """Values from 0, or powers of ten, on a stretch of the picture."""

    def __init__(self, values, begin, end, is_log):
        self.begin, self.end, self.is_log = begin, end, is_log
        if is_log:
            first, last = math.floor(math.log10(min(values))), math.ceil(math.log10(max(values)))
            self.marks = [10.0 ** power for power in range(first, max(last, first + 1) + 1)]
        else:
            step = step_of(max(values))
            self.marks = [step * number for number in range(max(1, math.ceil(max(values) / step - 1e-9)) + 1)]

    def place(self, value):
        low, high = self.marks[0], self.marks[-1]
        if self.is_log:
            low, high, value = math.log10(low), math.log10(high), math.log10(value)
        return self.begin + (self.end - self.begin) * (value - low) / (high - low)

    @staticmethod
    def text(mark):
        for size, letter in ((1e9, "G"), (1e6, "M")):
            if mark >= size:
                return f"{mark / size:g} {letter}"
        return f"{mark:,g}" if mark < 1e5 else f"{mark:,.0f}"


def words(x, y, text, kind="", anchor="start"):
    named = f' class="{kind}"' if kind else ""
    return f'<text x="{x:g}" y="{y:g}"{named} text-anchor="{anchor}">{html.escape(text, quote=False)}</text>'


def line(kind, x1, y1, x2, y2):
    return f'<line class="{kind}" x1="{x1:g}" y1="{y1:g}" x2="{x2:g}" y2="{y2:g}"/>'


def curve(points, across, up, number):
    places = " ".join(f"{across.place(x):.1f},{up.place(y):.1f}" for x, y in points)
    dashes = f' stroke-dasharray="{DASHES[number]}"' if DASHES[number] else ""
    return f'<polyline class="curve" stroke="{LINES[number]}"{dashes} points="{places}"/>'


def legend(number, top, text):
    y = top + 10 + 19 * number
    begin = WIDTH - RIGHT + 14
    dashes = f' stroke-dasharray="{DASHES[number]}"' if DASHES[number] else ""
    return [f'<line class="curve" stroke="{LINES[number]}"{dashes} x1="{begin}" y1="{y}" x2="{begin + 28}" y2="{y}"/>',
            words(begin + 34, y + 4, text)]


def panel_lines(picture, panel, curves, top):
    values = [up for name in panel.curves for _, up in curves[name]]
    reached = [across for name in panel.curves for across, _ in curves[name]]
    bottom = top + PANEL
    across = Axis(reached, LEFT, WIDTH - RIGHT, picture.is_log)
    up = Axis(values, bottom, top, panel.is_log)
    lines = [words(LEFT, top - 10, f"{panel.title} ({panel.unit})", "panel")]
    for mark in up.marks:
        lines += [line("grid", LEFT, up.place(mark), WIDTH - RIGHT, up.place(mark)),
                  words(LEFT - 8, up.place(mark) + 4, Axis.text(mark), anchor="end")]
    for mark in across.marks:
        lines += [line("axis", across.place(mark), bottom, across.place(mark), bottom + 4),
                  words(across.place(mark), bottom + 18, Axis.text(mark), anchor="middle")]
    lines += [line("axis", LEFT, bottom, WIDTH - RIGHT, bottom), line("axis", LEFT, top, LEFT, bottom)]
    for number, (name, called) in enumerate(panel.curves.items()):
        lines += [curve(curves[name], across, up, number), *legend(number, top, called)]
    return lines


def drawn(picture, curves):
    """The picture as text."""
    height = TOP + len(picture.panels) * (PANEL + GAP) + 26
    lines = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {height}" width="{WIDTH}" height="{height}"'
             ' role="img">', f"<title>{html.escape(picture.title)}</title>", f"<style>{STYLE}</style>",
             f'<rect class="ground" width="{WIDTH}" height="{height}"/>', words(LEFT, 22, picture.title, "title")]
    for number, panel in enumerate(picture.panels):
        lines += panel_lines(picture, panel, curves, TOP + 26 + number * (PANEL + GAP))
    middle = (LEFT + WIDTH - RIGHT) / 2
    return "\n".join([*lines, words(middle, height - 8, picture.across, anchor="middle"), "</svg>"]) + "\n"


def figures_of(curves):
    """What the page says of each curve: its ends, what has come to it, and how the last fifth compares with the first."""
    figures = {}
    for name, points in curves.items():
        values = [up for _, up in points]
        fifth = max(1, len(values) // 5)
        early, late = statistics.median(values[:fifth]), statistics.median(values[-fifth:])
        figures |= {f"{name}.first": values[0], f"{name}.last": values[-1], f"{name}.more": values[-1] - values[0],
                    f"{name}.early": early, f"{name}.late": late, f"{name}.reached": points[-1][0]}
        if early > 0:
            figures[f"{name}.growth"] = late / early
    return figures


def compared_figures(figures):
    """Figures of more than one curve. Beside the same controls set directly, the noise of the machine does not count."""
    more = {f"{subject}.growth": figures[f"{subject}.program.ms.growth"] / figures[f"{subject}.platform.ms.growth"]
            for subject in ("changes", "undos")}
    more["openings.growth"] = statistics.median(figures[f"openings.{window}.ms.growth"] for window in WINDOWS)
    more["files.lines.growth"] = figures["files.lines.ms.last"] / figures["files.lines.ms.first"]
    more["files.oneline.rate"] = figures["files.oneline.ms.reached"] / 1000 / figures["files.oneline.ms.last"]
    return figures | more


def main(goals, template, figures, folder):
    texts = [pathlib.Path(path).read_text(encoding="utf-8") for path in (goals, template, figures)]
    curves, others = read_points(texts[2])
    measured = report.read_figures(others) | compared_figures(figures_of(curves))
    page = report.Report(report.read_goals(texts[0]), measured).fill(texts[1])
    pictures = {picture.name: drawn(picture, curves) for picture in PICTURES}
    target = pathlib.Path(folder)
    (target / "growth").mkdir(exist_ok=True)
    for name, text in pictures.items():
        (target / "growth" / f"{name}.svg").write_text(text, encoding="utf-8")
    (target / "GROWTH.md").write_text(page, encoding="utf-8")


if __name__ == "__main__":
    main(*sys.argv[1:])
