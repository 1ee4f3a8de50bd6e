"""Two programs at work in one home folder: each keeps its own list, and the file is that of the last save."""

import unittest

import reference
from desktop import Program
from stories import Story

KEPT = {"id": "6F9619FF-8B86-4D01-B42D-00CF4FC964FF", "title": "Kept", "content": " ", "date": 788918400,
        "description": "", "permalink": ""}


class TwoPrograms(Story):

    def setUp(self):
        super().setUp()
        self.first = self.program
        self.second = Program(self.program_path)
        self.addCleanup(self.second.end)
        self.second.home = self.first.home
        self.second.environment = self.first.environment
        self.first.file("posts.json").write_bytes(reference.posts_file([KEPT]))

    def both(self):
        return self.first, self.second

    def stored_titles(self):
        return [post["title"] for post in self.posts()]

    def test_each_keeps_its_own_list_and_the_last_save_is_what_the_next_start_takes(self):
        for program in self.both():
            program.begin()
        for program in self.both():
            program.wait_for_start()
        self.write_by_turns()
        self.change_settings_in_both()
        self.delete_in_the_first()
        for program in self.both():
            self.use(program)
            self.assertEqual(program.close_window(), ("", ""))
        self.second.start()
        self.use(self.second)
        self.wait_for_titles("From the first")
        self.assertEqual(self.stored_titles(), ["From the first"])
        self.assertEqual(self.second.close_window(), ("", ""))

    def write_by_turns(self):
        self.use(self.first)
        self.write_post("From the first")
        self.wait_for_titles("From the first", "Kept")
        self.assertEqual(self.stored_titles(), ["From the first", "Kept"])
        self.use(self.second)
        self.wait_for_titles("Kept")
        self.write_post("From the second")
        self.wait_for_titles("From the second", "Kept")
        self.assertEqual(self.stored_titles(), ["From the second", "Kept"])
        self.use(self.first)
        self.wait_for_titles("From the first", "Kept")

    def change_settings_in_both(self):
        self.use(self.second)
        self.change_settings(blog_title="Second's")
        self.use(self.first)
        self.change_settings(blog_link="first.example")
        settings = self.settings()
        self.assertEqual((settings["title"], settings["link"]), ("My Tavlo", "first.example"))
        # An export is of the program's own list, whatever the files hold.
        exported = self.export_to(self.first.file("feed.xml"))
        self.assertIn(b"<title>From the first</title>", exported)
        self.use(self.second)
        exported = self.export_to(self.second.file("feed.xml"))
        self.assertIn(b"<title>Second's</title>", exported)
        self.assertIn(b"<title>From the second</title>", exported)
        self.assertNotIn(b"<title>From the first</title>", exported)

    def delete_in_the_first(self):
        self.use(self.first)
        self.card_menu_by_keys("Kept", "Delete Post")
        self.wait_for_titles("From the first")
        self.assertEqual(self.stored_titles(), ["From the first"])


if __name__ == "__main__":
    unittest.main()
