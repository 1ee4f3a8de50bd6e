"""The first start, the first post, and the second start."""

import time
import unittest
import uuid

import reference
from desktop import wait_for
from stories import Story

HELP = {
    "New Post": "Create a new blog post",
    "Export RSS": "Export RSS feed",
    "Import RSS": "Import existing RSS feeds",
    "Blog Settings": "Edit RSS feed settings",
}


class FirstStart(Story):

    def files(self):
        """The files in the home folder, caches aside."""
        home = self.program.home
        return [str(file.relative_to(home)) for file in home.rglob("*")
                if file.is_file() and home / ".cache" not in file.parents]

    def test_a_blog_begins_with_nothing_and_keeps_its_first_post(self):
        program = self.program
        program.start()
        self.look_at_the_empty_window()
        self.try_to_save_without_a_title()
        self.save_the_first_post()
        self.start_again()
        self.save_by_the_keypad()

    def look_at_the_empty_window(self):
        program = self.program
        program.wait_for("heading", "Tavlo")
        program.wait_for(name="No blog posts yet.")
        self.assertEqual(self.titles(), [])
        self.assertEqual({button.name: button.description for button in program.find_all("push button")}, HELP)
        self.assertEqual([button.name for button in program.find_all("push button")], list(HELP))
        self.assertEqual(self.files(), [])

        for name, text in HELP.items():
            program.point_at(program.wait_for("push button", name))
            program.wait_for("tool tip", text)

    def try_to_save_without_a_title(self):
        program = self.program
        program.press("New Post")
        self.wait_for_editor("New Post")
        self.assertEqual([program.text_of(name) for name in ("Title", "Description")], ["", ""])
        self.assertFalse(self.save_is_enabled())
        program.fill("Description", "A summary alone is no post.")
        self.assertFalse(self.save_is_enabled())
        program.keys("ctrl+Return", "ctrl+KP_Enter")
        program.press("Save")
        program.fill("Title", " ")
        program.wait_for_state("enabled", "push button", "Save")
        program.fill("Title", "")
        program.wait_for_state("enabled", "push button", "Save", holds=False)
        self.assertEqual(self.files(), [])
        program.keys("Escape")
        self.wait_until_editor_closed()
        self.assertEqual(self.files(), [])
        program.wait_for(name="No blog posts yet.")

    def save_the_first_post(self):
        """Saves a post whose title is one space, by a click made twice."""
        program = self.program
        earliest = time.time() - reference.REFERENCE_DATE
        self.open_editor()
        latest = time.time() - reference.REFERENCE_DATE
        program.fill("Title", " ")
        program.wait_for_state("enabled", "push button", "Save")
        program.click(program.wait_for("push button", "Save"), times=2)
        self.wait_until_editor_closed()
        program.wait_until_gone(name="No blog posts yet.")
        self.wait_for_titles(" ")

        [post] = self.posts()
        self.assertEqual(uuid.UUID(post["id"]).version, 4)
        self.assertTrue(earliest <= post["date"] <= latest, (earliest, post["date"], latest))
        expected = {"id": post["id"], "title": " ", "content": " ", "date": post["date"],
                    "description": "", "permalink": ""}
        self.assertEqual(self.posts_bytes(), reference.posts_file([expected]))
        self.assertEqual(self.files(), ["posts.json"])

    def start_again(self):
        program = self.program
        before = self.stamp("posts.json")
        self.assertEqual(program.close_window(), ("", ""))
        program.start()
        self.wait_for_titles(" ")
        self.assertIsNone(program.find(name="No blog posts yet."))
        self.assertEqual(self.stamp("posts.json"), before)

    def save_by_the_keypad(self):
        program = self.program
        self.open_editor()
        program.type("Second")
        program.wait_for_text("Title", "Second")
        program.keys("ctrl+KP_Enter")
        self.wait_until_editor_closed()
        self.wait_for_titles("Second", " ")
        self.assertEqual(self.posts_bytes(), reference.posts_file(self.posts()))
        self.assertEqual([post["title"] for post in self.posts()], ["Second", " "])

    def test_the_files_lie_in_the_documents_folder_that_the_desktop_names(self):
        program = self.program
        program.file(".config").mkdir()
        program.file(".config/user-dirs.dirs").write_text('XDG_DOCUMENTS_DIR="$HOME/Papers"\n')
        program.start()
        program.wait_for(name="No blog posts yet.")

        # Nothing makes the folder: a post written before it is there is not saved.
        self.write_post("Unsaved")
        self.assertEqual(self.files(), [".config/user-dirs.dirs"])

        program.file("Papers").mkdir()
        self.write_post("Saved")
        wait_for(program.file("Papers/posts.json").exists, "posts.json in the documents folder")
        self.assertIn(b'"Unsaved"', program.file("Papers/posts.json").read_bytes())
        self.change_settings()
        self.assertEqual(sorted(self.files()),
                         [".config/user-dirs.dirs", "Papers/posts.json", "Papers/rss_settings.json"])


if __name__ == "__main__":
    unittest.main()
