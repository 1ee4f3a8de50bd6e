"""The program's main job, from a fresh start to the files on disk."""

import json
import os
import pathlib
import unittest
from datetime import datetime, timezone

from desktop import ProgramTest, wait_for

REFERENCE_DATE = 978307200
DATA = pathlib.Path(os.environ["TAVLO_TEST_DATA"])


def feed(title, link, description, posts):
    """The feed's bytes, written without the program."""
    def item(post):
        date = datetime.fromtimestamp(post["date"] // 1 + REFERENCE_DATE, timezone.utc)
        escaped = post["description"].replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;")
        return (f"<item>\n  <title>{post['title']}</title>\n  <link>{post['permalink']}</link>\n"
                f"  <pubDate>{date:%a}, {date.day} {date:%b} {date.year:04} {date:%H:%M:%S} +0000</pubDate>\n"
                f"  <description>{escaped}</description>\n</item>")
    return ('<?xml version="1.0" encoding="UTF-8" ?>\n<rss version="2.0">\n  <channel>\n'
            f"    <title>{title}</title>\n    <link>{link}</link>\n    <description>{description}</description>\n    "
            + "\n".join(map(item, posts)) + "\n  </channel>\n</rss>").encode()


class MainJob(ProgramTest):

    def write_post(self, title, description, permalink):
        self.program.press("New Post")
        self.program.wait_for("text", "Title")
        self.program.type(title)
        self.program.keys("Tab")
        self.program.type(description)
        self.program.keys("Tab")
        self.program.type(permalink)
        self.program.press("Save")
        self.program.wait_until_gone("push button", "Save")

    def posts(self):
        return json.loads(self.program.file("posts.json").read_bytes())

    def test_two_posts_are_written_exported_and_there_after_a_restart(self):
        program = self.program
        program.file("Desktop").mkdir()
        program.start()
        program.wait_for(name="No blog posts yet.")
        self.assertFalse(program.file("posts.json").exists())

        self.write_post("First", "a < b & c", "https://example.com/1")
        self.write_post("Second", "Line", "plain words")
        self.assertEqual([(post["title"], post["content"], post["description"], post["permalink"])
                          for post in self.posts()],
                         [("Second", " ", "Line", "plain words"), ("First", " ", "a < b & c", "https://example.com/1")])

        program.press("Blog Settings")
        program.wait_for("text", "Blog Title")
        program.keys("ctrl+a")
        program.type("Field Notes")
        program.keys("Return")
        program.wait_until_gone("text", "Blog Title")
        settings = json.loads(program.file("rss_settings.json").read_bytes())
        self.assertEqual(settings["title"], "Field Notes")

        program.keys("ctrl+e")
        program.wait_for("push button", "Export")
        program.keys("Return")
        exported = program.file("Desktop/feed.xml")
        wait_for(exported.exists, "the exported feed")
        self.assertEqual(exported.read_bytes(),
                         feed("Field Notes", settings["link"], settings["description"], self.posts()))

        before = program.file("posts.json").read_bytes()
        program.wait_until_gone("push button", "Export")
        self.assertEqual(program.close_window(), ("", ""))
        program.start()
        program.wait_for(name="Second")
        program.wait_for(name="First")
        self.assertEqual(program.file("posts.json").read_bytes(), before)

    def test_the_items_of_a_feed_replace_the_posts(self):
        program = self.program
        program.start()
        self.write_post("Before", "", "")
        source = DATA / "feeds/entities-en.xml"

        program.press("Import RSS")
        program.wait_for("push button", "Cancel")
        program.keys("ctrl+a")
        program.type(str(source))
        program.keys("Return")
        program.wait_until_gone(name="Before")
        titles = [post["title"] for post in self.posts()]
        self.assertEqual(titles, [item.split("</title>")[0] for item in
                                  (part.split("<title>", 1)[1] if "<title>" in part else "</title>"
                                   for part in source.read_text().split("<item>")[1:])])


if __name__ == "__main__":
    unittest.main()
