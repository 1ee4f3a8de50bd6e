"""Texts of a million bytes in every field: shown, edited, saved, exported, and nothing of them lost."""

import subprocess
import unittest

import reference
from desktop import box_of
from stories import PERMALINK, Story

MEGABYTE = 1_000_000


def filled(text):
    """A megabyte of a text, over and over again."""
    return text * (MEGABYTE // len(text.encode()))


PROSE = filled("Some words, as people write them. ")
WORD = filled("word")
LARGE = {"id": "6F9619FF-8B86-4D01-B42D-00CF4FC964FF", "title": PROSE, "content": filled("unseen "), "date": 788918400,
         "description": filled("\u65e5\u672c\u8a9e\u306e\u6587\u3002"), "permalink": WORD}
SMALL = {"id": "0B2E4C1A-3F5D-4E7A-9C8B-1D2E3F4A5B6C", "title": "Small", "content": " ", "date": 788918401,
         "description": "d", "permalink": "p"}
SETTINGS = {"title": PROSE, "link": WORD, "description": filled("Beschreibung, gr\u00f6\u00dfer. ")}


class LargeTexts(Story):

    # What differs is told by its beginning.
    maxDiff = 1000

    def setUp(self):
        super().setUp()
        self.program.file("posts.json").write_bytes(reference.posts_file([SMALL, LARGE]))
        self.program.file("rss_settings.json").write_bytes(reference.settings_file(**SETTINGS))

    def test_a_megabyte_in_every_field(self):
        program = self.program
        program.start()
        self.wait_for_titles("Small", PROSE)
        self.change_the_large_post()
        self.change_the_settings()
        settings = SETTINGS | {"title": "T" + PROSE}
        self.assertEqual(self.export_to(program.file("feed.xml")), reference.feed(**settings, posts=self.list))
        self.assertEqual(program.close_window(), ("", ""))

    def change_the_large_post(self):
        program = self.program
        self.open_menu_of_the_large_post()
        program.click(program.wait_for("menu item", "Edit Post"))
        self.wait_for_editor("Edit Post")
        program.wait_for_text("Description", LARGE["description"])
        program.wait_for_text(PERMALINK, WORD)
        program.keys("Home")
        program.type("T")
        program.wait_for_text("Title", "T" + PROSE)
        self.save_post()
        self.list = [SMALL, LARGE | {"title": "T" + PROSE}]
        self.wait_for_bytes("posts.json", reference.posts_file(self.list))

    def open_menu_of_the_large_post(self):
        """By the mouse near the card's top: its middle is far below the window."""
        box = box_of(self.wait_for_card(PROSE))
        subprocess.run(["xdotool", "mousemove", str(box.x + 40), str(box.y + 40), "click", "3"], check=True)

    def change_the_settings(self):
        program = self.program
        self.open_settings()
        program.keys("Home")
        program.type("T")
        program.wait_for_text("Blog Title", "T" + PROSE)
        program.press("Save")
        self.wait_until_settings_closed()
        self.wait_for_bytes("rss_settings.json", reference.settings_file(**SETTINGS | {"title": "T" + PROSE}))


if __name__ == "__main__":
    unittest.main()
