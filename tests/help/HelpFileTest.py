#!/usr/bin/python3
"""Is the compiled help whole? HelpFileTest.py PROJECT_FOLDER huevox.chm [TEST...]"""
import pathlib
import shutil
import struct
import subprocess
import sys
import tempfile
import time
import unittest

from Pages import SiteMap, pages

project = pathlib.Path(sys.argv[1])
help_file = pathlib.Path(sys.argv[2]).resolve()
topics = project / "help/topics"


def page_of(address):
    return address.split("#")[0]


class HelpFile(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(tempfile.mkdtemp())
        subprocess.run(["extract_chmLib", help_file, cls.folder], check=True, stdout=subprocess.DEVNULL)
        cls.pages = pages(cls.folder)
        cls.contents = SiteMap(cls.folder / "huevox.hhc").entries
        cls.index = SiteMap(cls.folder / "huevox.hhk").entries

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.folder)

    def expect_live(self, address, where):
        name, _, anchor = address.partition("#")
        self.assertTrue((self.folder / (name or where)).is_file(), f"{where}: {address}")
        if anchor:
            self.assertIn(anchor, self.pages[name or where].anchors, f"{where}: {address}")

    def test_every_link_is_live(self):
        for page in self.pages.values():
            self.assertTrue(page.links, page.name)
            for link in page.links:
                self.expect_live(link, page.name)

    def test_every_entry_of_contents_and_index_leads_to_a_page(self):
        self.assertTrue(self.contents)
        self.assertTrue(self.index)
        for name, address in self.contents + self.index:
            self.assertTrue(name)
            if address:
                self.expect_live(address, name)
        self.assertTrue(all(address for _, address in self.index))

    def test_every_page_is_in_the_file_and_once_in_the_contents(self):
        sources = sorted(path.name for path in topics.glob("*.htm"))
        self.assertEqual(sorted(self.pages), sources)
        listed = [address for _, address in self.contents if address and "#" not in address]
        self.assertEqual(sorted(listed), sources)

    def test_contents_call_a_page_by_its_title(self):
        for name, address in self.contents:
            if address and "#" not in address:
                self.assertEqual(self.pages[address].titles, [name, name])

    def test_every_page_can_be_found_in_the_index(self):
        self.assertEqual({page_of(address) for _, address in self.index}, set(self.pages))

    def test_names_in_the_index_stand_in_order_and_once(self):
        names = [name.lower().lstrip(".") for name, _ in self.index]
        self.assertEqual(names, sorted(set(names)))

    def test_every_page_can_be_reached_from_the_first_by_links_alone(self):
        reached, waiting = set(), ["huevox1.htm"]
        while waiting:
            name = waiting.pop()
            if name in self.pages and name not in reached:
                reached.add(name)
                waiting += [page_of(link) for link in self.pages[name].links]
        self.assertEqual(reached, set(self.pages))

    def test_the_topics_that_the_program_shows_are_there(self):
        shown = (project / "help/HelpTopic.h").read_text(encoding="ascii")
        for name in ("huevox1.htm", "huevox10.htm"):
            self.assertIn(f'"{name}"', shown)
            self.assertIn(name, self.pages)

    def test_a_picture_has_its_size_and_a_text_in_its_place(self):
        pictures = [picture for page in self.pages.values() for picture in page.pictures]
        self.assertTrue(pictures)
        for picture in pictures:
            size = struct.unpack(">II", (self.folder / picture["src"]).read_bytes()[16:24])
            self.assertEqual((int(picture["width"]), int(picture["height"])), size, picture["src"])
            self.assertGreater(len(picture["alt"]), 20)

    def test_nothing_lies_in_the_file_that_no_page_needs(self):
        needed = {link for page in self.pages.values() for link in page.links}
        for path in topics.iterdir():
            if path.suffix in (".css", ".png"):
                self.assertIn(path.name, needed)

    def test_title_and_default_topic_are_set(self):
        system = (self.folder / "#SYSTEM").read_bytes()
        self.assertIn(b"\0huevox1.htm\0", system)
        self.assertIn(b"\0Huevox Help\0", system)

    def test_all_words_can_be_searched(self):
        index = (self.folder / "$FIftiMain").read_bytes()
        number_of_pages, = struct.unpack_from("<I", index, 4)
        self.assertGreaterEqual(number_of_pages, len(self.pages))

    def test_colours_are_left_to_the_system(self):
        for path in topics.glob("*.css"):
            self.assertNotRegex(path.read_text(encoding="ascii"), r"(color|background)[a-z-]*\s*:", path.name)
        for path in topics.glob("*.htm"):
            self.assertNotRegex(path.read_text(encoding="ascii"), r"<(style|font)|<[^>]* (style|bgcolor)=", path.name)


class Compiling(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp())

    def tearDown(self):
        shutil.rmtree(self.folder)

    def copy_topics(self, name):
        shutil.copytree(topics, self.folder / name)
        return self.folder / name

    def compile(self, copy):
        out = copy / "out.chm"
        run = subprocess.run([project / "help/compile", "chmcmd", copy / "huevox.hhp", out], check=False,
                             stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)
        return run, out

    def test_gives_the_same_bytes_in_any_folder_at_any_time(self):
        _, first = self.compile(self.copy_topics("one"))
        time.sleep(1.1)  # the times in the file are in seconds
        _, second = self.compile(self.copy_topics("another folder"))
        self.assertEqual(first.read_bytes(), second.read_bytes())
        self.assertEqual(first.read_bytes(), help_file.read_bytes())

    def expect_refused(self, copy, reason):
        run, out = self.compile(copy)
        self.assertNotEqual(run.returncode, 0)
        self.assertIn(reason, run.stderr)
        self.assertFalse(out.exists())

    def test_fails_without_a_page_that_is_listed(self):
        copy = self.copy_topics("topics")
        (copy / "huevox3.htm").unlink()
        self.expect_refused(copy, "huevox3.htm")

    def test_fails_without_a_picture(self):
        copy = self.copy_topics("topics")
        (copy / "main.png").unlink()
        self.expect_refused(copy, "main.png")

    def test_fails_without_the_project(self):
        copy = self.copy_topics("topics")
        (copy / "huevox.hhp").unlink()
        self.expect_refused(copy, "huevox.hhp")

    def test_fails_when_a_link_leads_nowhere(self):
        copy = self.copy_topics("topics")
        page = copy / "huevox2.htm"
        page.write_text(page.read_text().replace("huevox7.htm#find", "huevox7.htm#nothing"))
        self.expect_refused(copy, "huevox7.htm#nothing")


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
