#!/usr/bin/python3
"""Does every room of the program know only the rooms that it may? RoomsTest.py PROJECT_FOLDER [TEST...]

docs/DESIGN.md shows the allowed ones: a line for each room, the room itself and the rooms that it may know.
"""
import pathlib
import re
import sys
import tempfile
import unittest

project = pathlib.Path(sys.argv[1])
# The entry of the program knows the main window, and nobody but it.
entry = "support/Main.cpp: mainwindow"


def allowed_arrows(text):
    """Of each room the rooms that it may know, as the block below the heading shows them."""
    block = re.search(r"^## Who knows whom$.*?^```\n(.*?)^```$", text, re.MULTILINE | re.DOTALL).group(1)
    return {room: set(known.split()) for room, known in (line.split(":") for line in block.splitlines())}


def arrows_that_are_not_allowed(folder, arrows):
    """Every #include that reaches another room than those, as "file:line: room"."""
    found = []
    for source in sorted(source for room in arrows for source in (folder / room).glob("*.[ch]*")):
        path = source.relative_to(folder)
        room = str(path.parent)
        for number, line in enumerate(source.read_text(encoding="utf-8").splitlines(), 1):
            include = re.match(r'#include "(.+)/[^/]+"', line)
            if not include or include[1] in arrows[room] | {room}:
                continue
            if f"{path}: {include[1]}" != entry:
                found.append(f"{path}:{number}: {include[1]}")
    return found


class Rooms(unittest.TestCase):
    def setUp(self):
        self.arrows = allowed_arrows((project / "docs/DESIGN.md").read_text(encoding="utf-8"))

    def test_know_only_those_that_they_may(self):
        self.assertEqual(arrows_that_are_not_allowed(project, self.arrows), [])

    def test_are_all_in_the_list(self):
        # Not by way of the build folder, where other tests' files come and go.
        others = {"bench", "build", "fuzz", "randomuser", "tests"}
        folders = [folder for folder in project.iterdir() if folder.is_dir() and folder.name not in others]
        sources = {str(path.parent.relative_to(project)) for folder in folders for path in folder.rglob("*.cpp")}
        self.assertEqual(sources - self.arrows.keys(), set())

    def test_stand_above_each_other(self):
        above = []
        for room, known in self.arrows.items():
            self.assertEqual(known & set(above), set(), f"{room} knows a room that stands above it")
            above.append(room)

    def test_that_reach_up_or_sideways_are_told_with_file_and_line(self):
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            (folder / "core").mkdir()
            (folder / "help").mkdir()
            (folder / "support").mkdir()
            (folder / "core/Color.h").write_text('#include <array>\n#include "help/Links.h"\n')
            (folder / "help/Links.cpp").write_text('#include "help/Links.h"\n#include "core/Color.h"\n')
            (folder / "support/Main.cpp").write_text('#include "mainwindow/frmMain.h"\n')
            (folder / "support/Marks.h").write_text('#include "mainwindow/frmMain.h"\n')
            arrows = {"help": {"core"}, "support": {"core"}, "core": set()}
            self.assertEqual(arrows_that_are_not_allowed(folder, arrows),
                             ["core/Color.h:2: help", "support/Marks.h:1: mainwindow"])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[2:])
