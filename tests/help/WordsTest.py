#!/usr/bin/python3
"""Are the words of the help the program's own? WordsTest.py PROJECT_FOLDER"""
import pathlib
import re
import sys
import unittest

from Pages import pages, string_literals

project = pathlib.Path(sys.argv[1])
main_script = (project / "mainwindow/frmMain.rc").read_text(encoding="ascii")

# Keys that Windows gives a meaning to, in every program.
common_keys = {"Tab", "Shift+Tab", "Enter", "Esc", "Space", "Home", "End", "Alt", "Alt+F4", "Alt+Space", "Ctrl+V", "Win+V"}


def shown(text):
    """A caption as it is seen: without access key, shortcut and dots that announce a dialog."""
    caption = text.split("\t")[0].replace("&&", "\0").replace("&", "").replace("\0", "&")
    return caption.strip().removesuffix("...")


def menu_items():
    """(caption, shortcut) of every command."""
    for text in re.findall(r'MENUITEM "([^"]*)"', main_script):
        caption, _, shortcut = text.partition("\\t")
        yield shown(caption), shortcut


def captions_and_sentences():
    sources = [*project.glob("*/*.rc"), project / "support/Messages.h", project / "mainwindow/panels/CommandBar.cpp",
               project / "core/ColorCode.cpp", project / "pickers/frmJavaScript.cpp"]
    texts = [text for source in sources for text in string_literals(source)]
    paragraphs = [" ".join(paragraph.split()) for text in texts for paragraph in text.split("\n\n")]
    return {shown(text) for text in texts} | set(paragraphs)


class Words(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.pages = pages(project / "help/topics")
        cls.own = captions_and_sentences()

    def test_what_is_marked_as_the_programs_text_is(self):
        quoted = [(page.name, text) for page in self.pages.values()
                  for text in page.texts("b", "ui") + page.texts("em", "message")]
        self.assertGreater(len(quoted), 100)
        unknown = {(name, text) for name, text in quoted if text.removesuffix("...") not in self.own}
        self.assertEqual(unknown, set())

    def test_all_bold_and_emphasised_text_is_marked_as_the_programs(self):
        for page in self.pages.values():
            self.assertEqual(page.texts("b") + page.texts("em"), [], page.name)

    def test_every_command_is_described_with_its_shortcut(self):
        described = {}
        for row in self.pages["huevox13.htm"].rows:
            for caption in [text for tag, name, text in row if name == "ui"][:1]:
                described[caption.removesuffix("...")] = row
        commands = list(menu_items())
        self.assertEqual(len(commands), 19)
        for caption, shortcut in commands:
            row = described[caption]
            keys = [text for tag, _, text in row if tag == "kbd"]
            self.assertEqual(keys, [shortcut] if shortcut else [], caption)
            self.assertTrue([text for tag, _, text in row if tag == "a"], f"{caption} leads to no page")

    def test_the_tool_bar_has_the_commands_with_a_shortcut_as_the_help_says(self):
        bar = (project / "mainwindow/panels/CommandBar.cpp").read_text(encoding="ascii")
        commands = re.findall(r'MENUITEM "([^"]*)", (\w+)', main_script)
        with_shortcut = {command for text, command in commands if "\\t" in text}
        in_menus_only = {"IDM_mnuEditUndo", "IDM_mnuEditRedo", "IDM_mnuToolsPick", "IDM_mnuToolsContrast"}
        self.assertEqual(with_shortcut - in_menus_only, set(re.findall(r"\{(IDM_\w+),", bar)))

    def test_dots_stand_where_the_menu_has_them(self):
        with_dots = {text.split("\\t")[0].replace("&", "") for text in re.findall(r'MENUITEM "([^"]*)"', main_script)}
        for page in self.pages.values():
            for text in page.texts("b", "ui"):
                if text.endswith("...") and text != "Change standard folder...":
                    self.assertIn(text, with_dots, page.name)

    def test_every_key_is_one_of_the_program_or_of_windows(self):
        shortcuts = {shortcut for _, shortcut in menu_items() if shortcut}
        letters = re.findall(r'^[^"]*"[^"]*&(\w)', main_script, re.MULTILINE)
        access_keys = {f"Alt+{letter.upper()}" for letter in letters}
        for page in self.pages.values():
            for key in page.texts("kbd"):
                self.assertIn(key, shortcuts | access_keys | common_keys, page.name)

    def test_every_caption_of_the_main_window_is_described(self):
        controls = main_script.split("frmMain MENU")[0]
        captions = re.findall(r'(?:GROUPBOX|LTEXT|PUSHBUTTON|AUTOCHECKBOX) "([^"]+)"', controls)
        captions += re.findall(r'CONTROL "([^"]+)", \w+, "Button"', controls)
        self.assertGreater(len(captions), 10)
        described = {text for page in self.pages.values() for text in page.texts("b", "ui")}
        for caption in captions:
            self.assertIn(shown(caption), described)

    def test_every_button_and_group_of_every_window_is_described(self):
        text = " ".join(page.text for page in self.pages.values())
        for script in project.glob("*/*.rc"):
            captions = re.findall(r'(?:GROUPBOX|PUSHBUTTON|AUTOCHECKBOX|TOKEN_BUTTON\(|ROW_HEADING\()\s*"([^"]+)"',
                                  script.read_text(encoding="ascii"))
            captions += re.findall(r'CONTROL "([^"]+)", \w+, "Button"', script.read_text(encoding="ascii"))
            for caption in captions:
                self.assertIn(shown(caption), text, script.name)


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[2:]])
