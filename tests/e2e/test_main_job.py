"""The program's main job, from a fresh start to the files on disk."""

import unittest

import reference
from desktop import wait_for
from stories import DATA, Story


class MainJob(Story):

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
        settings = self.settings()
        self.assertEqual(settings["title"], "Field Notes")

        program.keys("ctrl+e")
        program.wait_for("push button", "Export")
        program.keys("Return")
        exported = program.file("Desktop/feed.xml")
        wait_for(exported.exists, "the exported feed")
        self.assertEqual(exported.read_bytes(),
                         reference.feed("Field Notes", settings["link"], settings["description"], self.posts()))

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
