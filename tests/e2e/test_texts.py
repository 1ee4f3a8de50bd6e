"""Texts from all over, pasted into every field: what is stored is what the field shows, to the byte."""

import select
import socket
import unittest

import reference
from desktop import wait_for
from panels import PanelStory
from stories import PERMALINK

# {} stands for an address on this machine where nobody is to call.
TEXTS = {
    "emoji with modifiers": "👩🏽‍🚀 👨‍👩‍👧‍👦 🏳️‍🌈 🇩🇪 1️⃣ ❤︎",
    "Arabic": "مرحبًا بالعالم، ١٢٣ ﷺ",
    "Devanagari": "नमस्ते क्षत्रिय र्‍य श्री",
    "combining marks": "Å a\u030a \u212b Z\u0351\u036b\u0343 e\u0301 \u0315",
    "right-to-left override": "gpj.\u202egnp\u202c \u2067abc\u2069 \u200b\u00a0\u00ad\ufeff.",
    "tabs and line breaks": "\tone\t\ttwo\nthree\n\nfour ",
    "markup and an image": '<b>b</b> &amp; "q" <img src="{}/t.png"> ![t]({}/m.png) <a href="{}">l</a>',
}


# Line ends of other systems, and what becomes of them in the field of several lines.
LINE_ENDS = "one\r\ntwo\rthree\u2028four\u2029five\x0bsix"
LINE_ENDS_IN_AREA = "one\ntwo\nthree\u2028four\nfive\x0bsix"


class Listener:
    """A server on this machine that notices who calls."""

    def __init__(self):
        self.socket = socket.create_server(("127.0.0.1", 0))
        self.address = "http://127.0.0.1:{}".format(self.socket.getsockname()[1])

    def was_called(self, seconds=0):
        return bool(select.select([self.socket], [], [], seconds)[0])

    def call(self):
        socket.create_connection(self.socket.getsockname()).close()


class Texts(PanelStory):

    def setUp(self):
        super().setUp()
        self.listener = Listener()
        self.addCleanup(self.listener.socket.close)
        self.texts = [text.replace("{}", self.listener.address) for text in TEXTS.values()]

    def paste_fields(self, *fields):
        """Goes through the fields by Tab, pastes into each in place of its text, and sees what it shows."""
        for name, pasted, shown in fields:
            self.program.wait_for_state("focused", "text", name)
            self.program.keys("ctrl+a")
            self.program.paste(pasted)
            self.program.wait_for_text(name, shown)
            self.program.keys("Tab")

    def paste_post(self, title, description, permalink):
        self.open_editor()
        self.paste_fields(("Title", title, title), ("Description", description, description),
                          (PERMALINK, permalink, permalink))
        self.program.keys("ctrl+Return")
        self.wait_until_editor_closed()

    def paste_settings(self, title, link, description):
        self.open_settings()
        self.paste_fields(("Blog Title", title, title), ("Blog Link", link, link),
                          ("Blog Description", description, description))
        self.program.keys("Return")
        self.wait_until_settings_closed()

    def written(self):
        """Each text as a title, as a description and as a permalink, the newest post first."""
        texts = self.texts
        return [(texts[i], texts[i - 1], texts[i - 2]) for i in range(len(texts))][::-1]

    def check_files(self, settings):
        posts = self.posts()
        self.assertEqual([(post["title"], post["description"], post["permalink"]) for post in posts], self.written())
        self.assertEqual(self.posts_bytes(), reference.posts_file(posts))
        self.assertEqual(self.program.file("rss_settings.json").read_bytes(), reference.settings_file(*settings))
        return posts

    def test_every_field_keeps_every_character(self):
        program = self.program
        program.start()
        for post in reversed(self.written()):
            self.paste_post(*post)
        settings = [self.texts[i] for i in (6, 4, 5)]
        self.paste_settings(*settings)
        posts = self.check_files(settings)

        folder = program.file("Żółć 100% #1? ünï & “q”")
        folder.mkdir()
        feed = reference.feed(*settings, posts)
        self.assertEqual(self.export_to(folder / "छाया ☕ %41.xml"), feed)

        before = self.stamp("posts.json"), self.stamp("rss_settings.json")
        self.assertEqual(program.close_window(), ("", ""))
        program.start()
        # The cards further down are out of sight.
        in_sight = [title for title, _, _ in self.written()][:3]
        wait_for(lambda: self.titles()[:3] == in_sight, f"the cards {in_sight}")
        self.assertEqual(self.export_to(folder / "again.xml"), feed)
        self.assertEqual((self.stamp("posts.json"), self.stamp("rss_settings.json")), before)

        self.import_file(folder / "छाया ☕ %41.xml")
        escaped = [(title, description.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;"), permalink)
                   for title, description, permalink in self.written()]
        wait_for(lambda: self.stamp("posts.json") != before[0], "the import")
        self.assertEqual([(post["title"], post["description"], post["permalink"]) for post in self.posts()], escaped)

        self.assertFalse(self.listener.was_called(), "a text made the program call an address")
        self.listener.call()
        self.assertTrue(self.listener.was_called(seconds=5), "the listener hears who calls")

    def test_a_field_of_one_line_keeps_all_line_ends_and_the_one_of_several_has_line_feeds(self):
        self.program.start()
        self.open_editor()
        self.paste_fields(("Title", LINE_ENDS, LINE_ENDS), ("Description", LINE_ENDS, LINE_ENDS_IN_AREA),
                          (PERMALINK, LINE_ENDS, LINE_ENDS))
        self.program.keys("ctrl+Return")
        self.wait_until_editor_closed()
        post = self.posts()[0]
        self.assertEqual((post["title"], post["description"], post["permalink"]),
                         (LINE_ENDS, LINE_ENDS_IN_AREA, LINE_ENDS))


if __name__ == "__main__":
    unittest.main()
