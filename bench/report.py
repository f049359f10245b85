#!/usr/bin/python3
"""Writes the report of a run: report.py GOALS TEMPLATE FIGURES

FIGURES has a name and a value on each line. TEMPLATE is text with
    {name}, {name:,.0f}    the value, as str.format writes it
    {name/name:.2f}        one value in proportion to another
    {mark name}            whether the figure meets its goal
    {goals}                a table of all goals, with the run's command, date and commit; the missed ones on top
    %when name missed      (or met, or a value): the text up to %end is shown only then
"""
import operator
import re
import sys

RELATIONS = {"<=": (operator.le, "at most"), ">=": (operator.ge, "at least")}


class Goal:
    def __init__(self, line):
        self.figure, relation, limit, self.format, self.title = line.split(maxsplit=4)
        self.holds, self.words = RELATIONS[relation]
        self.limit = float(limit)

    def is_met(self, figures):
        return self.holds(figures[self.figure], self.limit)

    def mark(self, figures):
        return f"{self.words} {self.limit:,g}: {'met' if self.is_met(figures) else '**missed**'}"

    def row(self, figures):
        cells = (self.title, f"{figures[self.figure]:{self.format}}", self.mark(figures),
                 f"`{figures['run.command']}`", figures["run.date"], figures["run.commit"])
        return f"| {' | '.join(cells)} |"


def read_goals(text):
    goals = [Goal(line) for line in text.splitlines() if line and not line.startswith("#")]
    return {goal.figure: goal for goal in goals}


def read_figures(text):
    """Values as numbers where they are numbers, else as text; so is a commit, even if all of it is digits."""
    figures = {}
    for line in text.splitlines():
        name, value = line.split(maxsplit=1)
        try:
            figures[name] = value if name == "run.commit" else float(value)
        except ValueError:
            figures[name] = value
    return figures


class Report:
    def __init__(self, goals, figures):
        self.goals = goals
        self.figures = figures

    def goal_table(self):
        """What is missed stands on top."""
        goals = sorted(self.goals.values(), key=lambda goal: goal.is_met(self.figures))
        rows = [goal.row(self.figures) for goal in goals]
        return "\n".join(["| goal | figure | | command | date | commit |", "|---|---|---|---|---|---|", *rows])

    def number(self, name):
        over, _, under = name.partition("/")
        return self.figures[over] / self.figures[under] if under else self.figures[over]

    def filled_in(self, place):
        what, _, style = place[1].partition(":")
        if what == "goals":
            return self.goal_table()
        if what.startswith("mark "):
            return self.goals[what.removeprefix("mark ")].mark(self.figures)
        return format(self.number(what), style or "")

    def applies(self, name, state):
        if state in ("met", "missed"):
            return self.goals[name].is_met(self.figures) == (state == "met")
        return self.figures[name] == state

    def fill(self, template):
        lines = []
        is_shown = True
        for line in template.splitlines():
            if line.startswith("%when "):
                is_shown = self.applies(*line.split()[1:])
            elif line == "%end":
                is_shown = True
            elif is_shown:
                lines.append(re.sub(r"\{([^}]*)\}", self.filled_in, line))
        return "\n".join(lines) + "\n"


def complete_figures(figures):
    """Adds the figures that follow from what was measured."""
    own, stock = (figures[f"idle.{program}.kb"] for program in ("huevox", "stock"))
    requests = figures["requests.huevox"] - figures["requests.stock"]
    return figures | {"idle.huevox.ratio": own / stock, "idle.own.kb": own - stock, "start.own.requests": requests}


def main(goals, template, figures):
    texts = []
    for path in (goals, template, figures):
        with open(path, encoding="utf-8") as file:
            texts.append(file.read())
    report = Report(read_goals(texts[0]), complete_figures(read_figures(texts[2])))
    sys.stdout.write(report.fill(texts[1]))


if __name__ == "__main__":
    main(*sys.argv[1:])
