"""A post is changed, or left as it was, from its card's menu."""

import unittest

import reference
from stories import PERMALINK, Story

# Texts and dates that a form could damage: separators, no-break spaces, fractions of a second, a
# date before the reference date and one beyond any calendar.
POSTS = [
    {"id": "0A1B2C3D-0000-4000-8000-00000000000A", "title": "Newest", "content": "Body\r\nof\u2028two lines",
     "date": 789456123.123456789, "description": "One\r\ntwo\u00a0three\tfour", "permalink": "https://example.com/n"},
    {"id": "0A1B2C3D-0000-4000-8000-00000000000B", "title": "Middle", "content": " ",
     "date": -63072000.000000123, "description": "", "permalink": "plain/words"},
    {"id": "0A1B2C3D-0000-4000-8000-00000000000C", "title": "Oldest", "content": "<p>\u00e9e\u0301</p>",
     "date": 1e300, "description": "\ufeffLast \u2029", "permalink": ""},
]


class Editing(Story):

    def write_posts_file(self):
        """A posts.json as another program may have written it: keys in another order, plain slashes."""
        import json
        text = json.dumps([dict(reversed(post.items())) for post in POSTS], indent=1)
        self.program.file("posts.json").write_text(text)

    def expect(self, index, **changes):
        """Waits for the file with one more change."""
        self.expected[index] = self.expected[index] | changes
        self.wait_for_bytes("posts.json", reference.posts_file(self.expected))
        self.assertEqual(self.titles(), [post["title"] for post in self.expected])

    def test_an_edit_changes_what_was_edited_and_nothing_else(self):
        program = self.program
        self.write_posts_file()
        self.expected = list(POSTS)
        before = self.stamp("posts.json")
        program.start()
        self.wait_for_titles("Newest", "Middle", "Oldest")
        self.leave_it_as_it_was()
        self.assertEqual(self.stamp("posts.json"), before)
        self.edit_by_mouse()
        self.edit_by_keys()
        self.edit_the_date()
        self.edit_to_a_title_of_one_space()

        before = self.stamp("posts.json")
        program.close_window()
        program.start()
        self.wait_for_titles(*(post["title"] for post in self.expected))
        self.assertEqual(self.stamp("posts.json"), before)

    def leave_it_as_it_was(self):
        """Opens the menu, and the editor, and goes away again by each way there is."""
        program = self.program
        program.click(self.wait_for_card("Newest"), button=3)
        program.wait_for("menu item", "Edit Post")
        self.assertEqual([item.name for item in program.find_all("menu item")], ["Edit Post", "Delete Post"])
        program.keys("Escape")
        program.wait_until_gone("menu item", "Edit Post")

        self.card_menu_by_mouse("Newest", "Edit Post")
        self.wait_for_editor("Edit Post")
        self.assertEqual([program.text_of(name) for name in ("Title", PERMALINK)],
                         [POSTS[0]["title"], POSTS[0]["permalink"]])
        self.change_every_field()
        program.press("Cancel")
        self.wait_until_editor_closed()

        self.card_menu_by_keys("Middle", "Edit Post", key="shift+F10")
        self.wait_for_editor("Edit Post")
        self.change_every_field()
        program.keys("Escape")
        self.wait_until_editor_closed()
        self.wait_for_titles("Newest", "Middle", "Oldest")

        # The post that was left is forgotten: the next editor is empty.
        self.open_editor()
        self.assertEqual(program.text_of("Title"), "")
        program.keys("Escape")
        self.wait_until_editor_closed()

    def change_every_field(self):
        self.program.fill("Title", "Abandoned")
        self.program.fill("Description", "Abandoned")
        self.program.fill(PERMALINK, "Abandoned")
        self.step_date("Year")

    def step_date(self, part, key="Up"):
        program = self.program
        program.click(program.wait_for("spin button", part))
        program.wait_for_state("focused", "spin button", part)
        program.keys(key)

    def edit_by_mouse(self):
        program = self.program
        self.card_menu_by_mouse("Middle", "Edit Post")
        self.wait_for_editor("Edit Post")
        program.fill("Title", "Middle & more")
        program.press("Save")
        self.wait_until_editor_closed()
        self.expect(1, title="Middle & more")

    def edit_by_keys(self):
        """An edit of every text, the keyboard alone; the fields that are not touched keep theirs."""
        program = self.program
        self.card_menu_by_keys("Newest", "Edit Post")
        self.wait_for_editor("Edit Post")
        program.keys("End")
        program.type(" of all")
        program.wait_for_text("Title", "Newest of all")
        program.keys("ctrl+Return")
        self.wait_until_editor_closed()
        self.expect(0, title="Newest of all")

        self.card_menu_by_keys("Oldest", "Edit Post", key="shift+F10")
        self.wait_for_editor("Edit Post")
        program.keys("Tab", "Tab")
        program.type("not an address")
        program.wait_for_text(PERMALINK, "not an address")
        program.keys("ctrl+Return")
        self.wait_until_editor_closed()
        self.expect(2, permalink="not an address")

        self.card_menu_by_keys("Middle & more", "Edit Post")
        self.wait_for_editor("Edit Post")
        program.keys("Tab")
        program.type("Now\nwith words")
        program.wait_for_text("Description", "Now\nwith words")
        program.keys("ctrl+Return")
        self.wait_until_editor_closed()
        self.expect(1, description="Now\nwith words")

    def edit_the_date(self):
        program = self.program
        self.card_menu_by_mouse("Newest of all", "Edit Post")
        self.wait_for_editor("Edit Post")
        self.step_date("Minute")
        program.press("Save")
        self.wait_until_editor_closed()
        self.expect(0, date=self.posts()[0]["date"])

        # There and back again is no change.
        self.card_menu_by_mouse("Middle & more", "Edit Post")
        self.wait_for_editor("Edit Post")
        self.step_date("Day", "Up")
        self.step_date("Day", "Down")
        program.press("Save")
        self.wait_until_editor_closed()
        self.expect(1)

    def edit_to_a_title_of_one_space(self):
        program = self.program
        self.card_menu_by_mouse("Middle & more", "Edit Post")
        self.wait_for_editor("Edit Post")
        program.fill("Title", "")
        program.wait_for_state("enabled", "push button", "Save", holds=False)
        program.keys("ctrl+Return")
        program.fill("Title", " ")
        program.wait_for_state("enabled", "push button", "Save")
        program.keys("ctrl+KP_Enter")
        self.wait_until_editor_closed()
        self.expect(1, title=" ")


if __name__ == "__main__":
    unittest.main()
