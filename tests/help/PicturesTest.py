#!/usr/bin/python3
"""Do the pictures of the help tell nothing about the machine that took them? PicturesTest.py PROJECT_FOLDER [TEST...]"""
import pathlib
import shlex
import struct
import subprocess
import sys
import tempfile
import unittest

project = pathlib.Path(sys.argv[1])


def chunks(path):
    """The names of the parts that a PNG file consists of."""
    data = path.read_bytes()
    at = 8
    while at < len(data):
        length, name = struct.unpack_from(">I4s", data, at)
        yield name.decode()
        at += 12 + length


def options_of(user_desktop, folder):
    """The picture of the options, taken for a user whose desktop is that folder of drive C."""
    taken = folder / user_desktop
    taken.mkdir()
    key = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Explorer\User Shell Folders"
    commands = [
        f'mkdir -p "$WINEPREFIX/drive_c/{user_desktop}"',
        f"wine reg add '{key}' /v Desktop /d 'C:\\{user_desktop}' /f >/dev/null 2>&1 </dev/null",
        f"{shlex.quote(str(project / 'help/pictures'))} --into {shlex.quote(str(taken))} --only options",
    ]
    subprocess.run([project / "scripts/desktop", "bash", "-ec", "\n".join(commands)], check=True,
                   stdin=subprocess.DEVNULL)
    return taken / "options.png"


class Pictures(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.taken = [options_of(user, pathlib.Path(folder.name)) for user in ("Anna", "Somebody else")]

    def test_hold_nothing_but_the_picture(self):
        # Not by way of the build folder, where other tests' files come and go.
        folders = [folder for folder in project.iterdir() if folder.is_dir() and folder.name != "build"]
        kept = [path for folder in folders for path in folder.rglob("*.png")]
        self.assertTrue(kept)
        for path in kept + self.taken:
            self.assertLessEqual(set(chunks(path)), {"IHDR", "PLTE", "tRNS", "IDAT", "IEND"}, path)

    def test_show_no_folder_of_the_user(self):
        first, second = (path.read_bytes() for path in self.taken)
        self.assertTrue(first == second, "the options look different for another user")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[2:])
