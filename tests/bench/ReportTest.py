#!/usr/bin/python3
"""Does the report of a run say what was measured, and whether that keeps to the goals? ReportTest.py PROJECT_FOLDER"""
import pathlib
import re
import sys
import unittest

project = pathlib.Path(sys.argv.pop(1))
sys.dont_write_bytecode = True
sys.path.insert(0, str(project / "bench"))

import report  # noqa: E402

GOALS = """\
# a note
start.ratio <= 1.3 .2f Start, times the bare window
open.ratio >= 0.3 .1f Opening, times a plain read
"""
RUN = {"run_command": "bench/run", "run_date": "2026-01-02", "run_commit": "abc1234"}
TOLD = "`bench/run` | 2026-01-02 | abc1234"


def filled(template, **figures):
    named = {name.replace("_", "."): value for name, value in figures.items()}
    return report.Report(report.read_goals(GOALS), named).fill(template)


class Marks(unittest.TestCase):
    def test_a_limit_is_missed_above_and_met_at_and_below(self):
        for value, mark in ((1.31, "at most 1.3: **missed**\n"), (1.3, "at most 1.3: met\n"),
                            (0.9, "at most 1.3: met\n")):
            self.assertEqual(filled("{mark start.ratio}", start_ratio=value), mark)

    def test_a_floor_is_missed_below_and_met_at_and_above(self):
        for value, mark in ((0.29, "at least 0.3: **missed**\n"), (0.3, "at least 0.3: met\n"),
                            (94.0, "at least 0.3: met\n")):
            self.assertEqual(filled("{mark open.ratio}", open_ratio=value), mark)

    def test_the_table_of_goals_has_a_row_for_each(self):
        table = filled("{goals}", start_ratio=1.284, open_ratio=15.0, **RUN).splitlines()
        self.assertEqual(table, ["| goal | figure | | command | date | commit |", "|---|---|---|---|---|---|",
                                 f"| Start, times the bare window | 1.28 | at most 1.3: met | {TOLD} |",
                                 f"| Opening, times a plain read | 15.0 | at least 0.3: met | {TOLD} |"])

    def test_what_is_missed_stands_on_top(self):
        table = filled("{goals}", start_ratio=1.0, open_ratio=0.2, **RUN).splitlines()
        self.assertEqual(table[2:], [f"| Opening, times a plain read | 0.2 | at least 0.3: **missed** | {TOLD} |",
                                     f"| Start, times the bare window | 1.00 | at most 1.3: met | {TOLD} |"])


class Template(unittest.TestCase):
    def test_reasons_for_a_miss_are_given_only_when_it_is_one(self):
        template = "before\n%when start.ratio missed\nwhy\n%end\nafter"
        self.assertEqual(filled(template, start_ratio=2.0), "before\nwhy\nafter\n")
        self.assertEqual(filled(template, start_ratio=1.0), "before\nafter\n")

    def test_numbers_and_proportions_are_written_as_asked(self):
        self.assertEqual(filled("{a.kb:,.0f} KB, {a.kb/b.kb:.2f} times", a_kb=6024.0, b_kb=3828.0),
                         "6,024 KB, 1.57 times\n")

    def test_a_figure_that_was_not_measured_is_an_error(self):
        with self.assertRaises(KeyError):
            filled("{no.such.figure}")

    def test_texts_and_numbers_are_read(self):
        self.assertEqual(report.read_figures("run.commit abc1234 with changes\nrun.cores 2\n"),
                         {"run.commit": "abc1234 with changes", "run.cores": 2.0})

    def test_a_commit_of_digits_alone_is_no_number(self):
        self.assertEqual(report.read_figures("run.commit 0012345\n"), {"run.commit": "0012345"})


class FiguresThatFollow(unittest.TestCase):
    def test_the_program_is_compared_with_the_stock_window(self):
        measured = {"idle.huevox.kb": 6300.0, "idle.stock.kb": 6000.0, "requests.huevox": 4900.0, "requests.stock": 4700.0}
        figures = report.complete_figures(measured)
        self.assertAlmostEqual(figures["idle.huevox.ratio"], 1.05)
        self.assertEqual(figures["idle.own.kb"], 300.0)
        self.assertEqual(figures["start.own.requests"], 200.0)


class TheProjectsOwn(unittest.TestCase):
    def test_begins_with_the_table_of_goals(self):
        for page in ("PERFORMANCE.md.in", "GROWTH.md.in"):
            lines = (project / "bench" / page).read_text(encoding="utf-8").splitlines()
            self.assertEqual([line for line in lines[1:4] if line], ["{goals}"], page)

    def test_what_the_program_withstands_begins_with_its_goals_too(self):
        lines = (project / "docs/RELIABILITY.md").read_text(encoding="utf-8").splitlines()
        self.assertEqual(lines[1:4], ["", "| goal | figure | | command | date | commit |", "|---|---|---|---|---|---|"])
        marks = [row.split(" | ")[2] for row in lines[4:lines.index("", 4)]]
        self.assertEqual(marks, sorted(marks, key=lambda mark: not mark.startswith("**missed**")))
        self.assertEqual({mark.split("**")[1] if "**" in mark else mark for mark in marks} - {"missed", "met"}, set())

    def test_every_goal_stands_in_the_template_too(self):
        template = (project / "bench/PERFORMANCE.md.in").read_text(encoding="utf-8")
        marked = set(re.findall(r"\{mark ([^}]*)\}", template))
        self.assertEqual(marked, set(report.read_goals((project / "bench/goals").read_text(encoding="utf-8"))))


if __name__ == "__main__":
    unittest.main()
