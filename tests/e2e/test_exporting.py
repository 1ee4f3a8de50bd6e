"""The feed is exported to a path: the proposed one, or one that is typed."""

import unittest

import reference
from stories import PATH_FIELD, Story

POSTS = [
    {"id": "0A1B2C3D-0000-4000-8000-00000000000A", "title": "Tom & Jerry", "content": "unseen",
     "date": 789456123.999, "description": "a < b & c > d &lt; \"quoted\"\n'twice'", "permalink": ""},
    {"id": "0A1B2C3D-0000-4000-8000-00000000000B", "title": "Gr\u00fc\u00dfe \U0001f44b", "content": " ",
     "date": -0.25, "description": "", "permalink": "https://example.com/?a=b&c#d"},
]


LINK = "https://example.com/?a=1&b=<2>"
DESCRIPTION = "Notes & <b>small</b> things"


class Exporting(Story):

    def setUp(self):
        super().setUp()
        self.program.file("posts.json").write_bytes(reference.posts_file(POSTS))
        self.program.file("rss_settings.json").write_bytes(reference.settings_file("A long & proper title", LINK, DESCRIPTION))
        self.feed = reference.feed("A long & proper title", LINK, DESCRIPTION, POSTS)
        self.proposed = self.program.file("Desktop/feed.xml")

    def path(self):
        return self.program.text_of(PATH_FIELD)

    def test_the_feed_goes_where_the_path_says_or_nowhere(self):
        program = self.program
        program.start()
        self.wait_for_titles("Tom & Jerry", "Gr\u00fc\u00dfe \U0001f44b")
        files = self.stamp("posts.json"), self.stamp("rss_settings.json")
        self.look_at_the_prompt()
        self.export_to_folders_that_are_missing()
        self.export_to_the_proposed_path()
        self.export_to_typed_paths()
        self.assertEqual((self.stamp("posts.json"), self.stamp("rss_settings.json")), files)
        self.export_again()
        self.assertEqual(program.close_window(), ("", ""))

    def look_at_the_prompt(self):
        program = self.program
        program.press("Export RSS")
        program.wait_for_state("focused", "text", PATH_FIELD)
        program.wait_for("heading", "Export RSS Feed")
        # There is no desktop yet: the home folder stands in for it.
        self.assertEqual(self.path(), str(program.file("feed.xml")))
        self.assertEqual(program.find("text", PATH_FIELD).description,
                         "Enter full file path (e.g. /Users/you/Desktop/feed.xml)")
        self.assertEqual([node.name for node in program.find_all() if "\u274c" in node.name], [])

        # Escape does not close it; what was typed is forgotten.
        program.fill(PATH_FIELD, str(program.file("typed")))
        program.keys("Escape", "Escape")
        program.type(".xml")
        program.wait_for_text(PATH_FIELD, str(program.file("typed.xml")))
        program.press("Cancel")
        self.wait_until_export_closed()
        self.proposed.parent.mkdir()
        self.open_export()
        self.assertEqual(self.path(), str(self.proposed))
        program.press("Cancel")
        self.wait_until_export_closed()
        self.assertEqual(list(program.home.rglob("*.xml")), [])

    def export_to_folders_that_are_missing(self):
        program = self.program
        before = set(program.home.iterdir())
        self.assertIsNone(self.export_to(program.file("no folder/deep/feed.xml")))
        self.open_export()
        program.fill(PATH_FIELD, "")
        program.press("Export")
        self.wait_until_export_closed()
        self.assertEqual(set(program.home.iterdir()), before)
        self.assertEqual(list(program.home.rglob("*.xml")), [])

    def export_to_the_proposed_path(self):
        program = self.program
        self.open_export()
        self.assertEqual(self.path(), str(self.proposed))
        program.keys("Return")
        self.wait_until_export_closed()
        self.assertEqual(self.proposed.read_bytes(), self.feed)
        self.assertEqual([file.name for file in self.proposed.parent.iterdir()], ["feed.xml"])

    def export_to_typed_paths(self):
        """A path is taken as it stands: no address, no pattern and no home folder is read in it."""
        program = self.program
        for name in ("a #b?c%20d;*.xml", " spaces ", "file:x", "\u00e9t\u00e9.rss"):
            self.assertEqual(self.export_to(program.file(name)), self.feed, name)
        program.file("~").mkdir()
        self.open_export()
        program.fill(PATH_FIELD, "~/feed")
        program.keys("KP_Enter")
        self.wait_until_export_closed()
        self.assertEqual(program.file("~/feed").read_bytes(), self.feed)

    def export_again(self):
        """The second, shorter feed takes the first one's place."""
        program = self.program
        self.change_settings(blog_title="T")
        self.card_menu_by_mouse("Tom & Jerry", "Delete Post")
        self.wait_for_titles("Gr\u00fc\u00dfe \U0001f44b")
        program.keys("ctrl+e")
        program.wait_for_state("focused", "text", PATH_FIELD)
        program.click(program.wait_for("push button", "Export"), times=2)
        self.wait_until_export_closed()
        self.assertEqual(self.proposed.read_bytes(), reference.feed("T", LINK, DESCRIPTION, POSTS[1:]))

        self.card_menu_by_mouse("Gr\u00fc\u00dfe \U0001f44b", "Delete Post")
        program.wait_for(name="No blog posts yet.")
        self.assertEqual(self.export_to(self.proposed), reference.feed("T", LINK, DESCRIPTION, []))


if __name__ == "__main__":
    unittest.main()
