#!/usr/bin/python3
"""Do the curves show what was measured, readably on any page? CurvesTest.py PROJECT_FOLDER"""
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as xml

project = pathlib.Path(sys.argv.pop(1))
sys.dont_write_bytecode = True
sys.path.insert(0, str(project / "bench"))

import curves  # noqa: E402

SVG = "{http://www.w3.org/2000/svg}"
SIMPLE = curves.Picture("simple", "Work & more work", "pieces of work",
                        [curves.Panel("Cost of one", "ms", {"work.ms": "the <program>", "bare.ms": "nothing"})])
MEASURED = {"work.ms": [(100, 0.0), (200, 4.0), (400, 8.0)], "bare.ms": [(100, 2.0), (400, 2.0)]}


def made_up_figures():
    """Every curve of every picture: constant, but for a rise of one from the first point to the last."""
    names = [name for picture in curves.PICTURES for panel in picture.panels for name in panel.curves]
    points = [f"point {name} {across} {10 + (across == 1000000)}" for name in names
              for across in (1000, 10000, 100000, 1000000)]
    about = ["run.extent whole", "run.command bench/growth", "run.date 2026-01-02", "run.commit 1234567", "run.cores 2",
             "run.load 0.50", "run.wine 8.0"]
    return "\n".join(about + points) + "\n"


def light_of(color):
    """Relative luminance by the Web's guidelines."""
    parts = [int(color[at:at + 2], 16) / 255 for at in (1, 3, 5)]
    parts = [part / 12.92 if part <= 0.04045 else ((part + 0.055) / 1.055) ** 2.4 for part in parts]
    return 0.2126 * parts[0] + 0.7152 * parts[1] + 0.0722 * parts[2]


def contrast(one, other):
    dark, light = sorted((light_of(one), light_of(other)))
    return (light + 0.05) / (dark + 0.05)


class Drawing(unittest.TestCase):
    def setUp(self):
        self.root = xml.fromstring(curves.drawn(SIMPLE, MEASURED))
        self.texts = [element.text for element in self.root.iter(f"{SVG}text")]

    def polyline(self, number):
        places = list(self.root.iter(f"{SVG}polyline"))[number].get("points").split()
        return [tuple(float(value) for value in place.split(",")) for place in places]

    def place_of(self, text, axis):
        return next(float(element.get(axis)) for element in self.root.iter(f"{SVG}text") if element.text == text)

    def test_title_axes_units_and_curves_are_named(self):
        for text in ("Work & more work", "Cost of one (ms)", "pieces of work", "the <program>", "nothing"):
            self.assertIn(text, self.texts)
        self.assertEqual(self.root.find(f"{SVG}title").text, "Work & more work")

    def test_points_lie_in_proportion_between_the_marks(self):
        (x1, y1), (x2, y2), (x3, y3) = self.polyline(0)
        self.assertAlmostEqual((x3 - x2) / (x2 - x1), 2, places=2)
        self.assertAlmostEqual((y2 - y3) / (y1 - y2), 1, places=2)
        self.assertEqual(len({y for _, y in self.polyline(1)}), 1)

    def test_points_lie_at_the_marks_of_their_values(self):
        (_, low), _, (right, high) = self.polyline(0)
        self.assertAlmostEqual(self.place_of("8", "y") - 4, high, places=1)
        self.assertAlmostEqual(self.place_of("400", "x"), right, places=1)
        self.assertGreater(low, high)

    def test_nothing_lies_outside_of_the_picture(self):
        for picture in curves.PICTURES:
            made_up, _ = curves.read_points(made_up_figures())
            root = xml.fromstring(curves.drawn(picture, made_up))
            width, height = float(root.get("width")), float(root.get("height"))
            for element in root.iter(f"{SVG}polyline"):
                for x, y in (map(float, place.split(",")) for place in element.get("points").split()):
                    self.assertTrue(0 <= x <= width and 0 <= y <= height)

    def test_powers_of_ten_are_equally_far_apart(self):
        axis = curves.Axis([1000, 10**9], 0, 600, is_log=True)
        self.assertEqual([round(axis.place(mark)) for mark in axis.marks], [0, 100, 200, 300, 400, 500, 600])
        self.assertEqual([curves.Axis.text(mark) for mark in axis.marks],
                         ["1,000", "10,000", "100,000", "1 M", "10 M", "100 M", "1 G"])

    def test_marks_are_few_and_round(self):
        for most, marks in ((8, [0, 2, 4, 6, 8]), (281, [0, 50, 100, 150, 200, 250, 300])):
            self.assertEqual(curves.Axis([most], 0, 1, is_log=False).marks, marks)

    def test_there_is_a_place_for_nothing_but_zeros(self):
        self.assertEqual(curves.Axis([0], 0, 1, is_log=False).place(0), 0)

    def test_a_curve_that_was_not_measured_is_an_error(self):
        with self.assertRaises(KeyError):
            curves.drawn(SIMPLE, {"work.ms": MEASURED["work.ms"]})


class Colors(unittest.TestCase):
    def test_stand_out_from_white_and_from_black(self):
        for color in (curves.INK, *curves.LINES):
            for ground in ("#ffffff", "#000000"):
                self.assertGreaterEqual(contrast(color, ground), 4.5, f"{color} on {ground}")

    def test_stand_out_from_the_grounds_that_viewers_are_told(self):
        for scheme in ("light", "dark"):
            rule = re.search(rf"prefers-color-scheme: {scheme}\) (.*)", curves.STYLE).group(1)
            ground, text = re.findall(r"#[0-9a-f]{6}", rule)
            self.assertGreaterEqual(contrast(ground, text), 7)
            for color in curves.LINES:
                self.assertGreaterEqual(contrast(ground, color), 3, f"{color} on {ground}")

    def test_every_curve_of_a_panel_has_its_own_color_and_dashes(self):
        most = max(len(panel.curves) for picture in curves.PICTURES for panel in picture.panels)
        for looks in (curves.LINES, curves.DASHES):
            self.assertEqual(len(set(looks[:most])), most)


class Figures(unittest.TestCase):
    def test_are_the_ends_of_a_curve_and_what_has_come_to_it(self):
        figures = curves.figures_of({"work.ms": [(at, 2.0 if at <= 2 else 3.0) for at in range(1, 11)]})
        self.assertEqual([figures[f"work.ms.{name}"] for name in ("first", "last", "more", "reached", "growth")],
                         [2.0, 3.0, 1.0, 10, 1.5])

    def test_one_odd_point_does_not_count_as_growth(self):
        values = [5] * 20 + [5, 5, 5, 90, 5]
        self.assertEqual(curves.figures_of({"a": list(enumerate(values))})["a.growth"], 1)


class Page(unittest.TestCase):
    def test_the_projects_own_shows_every_picture_and_tells_the_run(self):
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            (folder / "figures").write_text(made_up_figures(), encoding="utf-8")
            subprocess.run([project / "bench/curves.py", project / "bench/growth-goals", project / "bench/GROWTH.md.in",
                            folder / "figures", folder], check=True)
            page = (folder / "GROWTH.md").read_text(encoding="utf-8")
            shown = re.findall(r"\]\((growth/[^)]*)\)", page)
            self.assertEqual(sorted(shown), sorted(f"growth/{path.name}" for path in (folder / "growth").iterdir()))
            self.assertEqual(len(shown), len(curves.PICTURES))
            self.assertIn("This run: 2026-01-02, commit 1234567, a machine of 2 cores", page)
            first = page.split("\n")[2:6]
            self.assertEqual(first[0], "| goal | figure | | command | date | commit |")
            # One object more is a miss, and stands on top.
            self.assertRegex(first[2], r"objects more .* \| 1 \| at most 0: \*\*missed\*\* \|")
            self.assertTrue(first[2].endswith(" | `bench/growth` | 2026-01-02 | 1234567 |"))


if __name__ == "__main__":
    unittest.main()
