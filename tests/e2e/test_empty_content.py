"""An imported item without a description cannot be edited: it has no content."""

import unittest

from panels import PanelStory
from stories import PERMALINK

FEED = """<rss version="2.0"><channel><title>Other</title>
<item><title>Bare</title><link>https://example.com/bare</link><description></description></item>
<item><title>Full</title><link>https://example.com/full</link><description>Words</description></item>
</channel></rss>"""


class EmptyContent(PanelStory):

    def test_save_stays_disabled_whatever_is_typed(self):
        program = self.program
        program.file("other.xml").write_text(FEED)
        program.start()
        self.import_file(program.file("other.xml"))
        self.wait_for_titles("Bare", "Full")
        self.assertEqual([post["content"] for post in self.posts()], ["", "Words"])
        before = self.stamp("posts.json")

        self.card_menu_by_mouse("Bare", "Edit Post")
        self.wait_for_editor("Edit Post")
        self.assert_save_does_nothing()
        for field in ("Title", "Description", PERMALINK):
            program.fill(field, "typed")
            self.assert_save_does_nothing()
        program.click(program.wait_for("spin button", "Year"))
        program.wait_for_state("focused", "spin button", "Year")
        program.keys("Up")
        self.assert_save_does_nothing()
        program.press("Cancel")
        self.wait_until_editor_closed()
        self.assertEqual(self.stamp("posts.json"), before)
        self.wait_for_titles("Bare", "Full")

        # One that had a description can be edited, also to one without: its content stays.
        self.card_menu_by_mouse("Full", "Edit Post")
        self.wait_for_editor("Edit Post")
        program.fill("Description", "")
        self.save_post()
        full = self.posts()[1]
        self.assertEqual((full["title"], full["content"], full["description"]), ("Full", "Words", ""))
        self.card_menu_by_mouse("Full", "Edit Post")
        self.wait_for_editor("Edit Post")
        program.fill("Title", "Full again")
        self.save_post()
        self.wait_for_titles("Bare", "Full again")

    def assert_save_does_nothing(self):
        program = self.program
        self.assertFalse(self.save_is_enabled())
        program.keys("ctrl+Return", "ctrl+KP_Enter")
        program.press("Save")
        program.wait_for("heading", "Edit Post")


if __name__ == "__main__":
    unittest.main()
