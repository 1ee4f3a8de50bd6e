"""The whole of the work by keys alone: the mouse is not touched."""

import unittest

import reference
from desktop import has_state, wait_for
from panels import PanelStory
from stories import PATH_FIELD, PERMALINK

HEADER = ["New Post", "Export RSS", "Import RSS", "Blog Settings"]


def post(number):
    return {"id": f"00000000-0000-4000-8000-{number:012}", "title": f"Post {number}", "content": " ",
            "date": 788918400.25 + number, "description": "A line.", "permalink": f"https://kept.example/{number}"}


class Keyboard(PanelStory):

    def focused(self):
        """The name of what has the focus within the window."""
        nodes = [node for node in self.program.nodes() if has_state(node, "focused")]
        # A sheet or a menu is itself marked beside what it holds.
        return nodes[-1].name if nodes else None

    def wait_for_focus(self, name):
        wait_for(lambda: self.focused() == name, f"the focus on {name!r}")

    def walk(self, key, *names):
        """Presses a key again and again, and sees where each press leads."""
        for name in names:
            self.program.keys(key)
            self.wait_for_focus(name)

    def type_into(self, *fields):
        for name, text in fields:
            self.program.wait_for_state("focused", "text", name)
            self.program.keys("ctrl+a")
            self.program.type(text)
            self.program.wait_for_text(name, text)
            self.program.keys("Tab")

    def go_to(self, button):
        """Goes to a button of the header by Tab."""
        for _ in range(2 * len(HEADER)):
            if self.focused() == button:
                return
            before = self.focused()
            self.program.keys("Tab")
            wait_for(lambda: self.focused() != before, f"Tab to lead on from {before!r}")
        self.fail(f"Tab did not lead to {button!r}")

    def test_a_blog_is_kept_without_the_mouse(self):
        program = self.program
        program.start()
        self.write_two_posts()
        self.change_one_by_its_menu()
        self.change_the_settings()
        self.export_and_import()
        self.delete_all()
        self.assertEqual(program.close_window(), ("", ""))

    def write_two_posts(self):
        # By its key, and by its button.
        self.open_editor()
        self.type_into(("Title", "First"), ("Description", "a < b"), (PERMALINK, "https://own.example/1"))
        self.program.keys("ctrl+Return")
        self.wait_for_titles("First")
        self.wait_until_editor_closed()
        self.go_to("New Post")
        self.program.keys("space")
        self.wait_for_editor("New Post")
        self.type_into(("Title", "Second"))
        self.program.keys("ctrl+KP_Enter")
        self.wait_for_titles("Second", "First")
        self.wait_until_editor_closed()

    def change_one_by_its_menu(self):
        before = self.posts()
        self.card_menu_by_keys("First", "Edit Post", key="Menu")
        self.wait_for_editor("Edit Post")
        self.type_into(("Title", "First, changed"))
        self.program.keys("Escape")
        self.wait_until_editor_closed()
        self.assertEqual(self.posts(), before)

        self.card_menu_by_keys("First", "Edit Post", key="shift+F10")
        self.wait_for_editor("Edit Post")
        self.type_into(("Title", "First, changed"))
        self.program.keys("ctrl+Return")
        self.wait_until_editor_closed()
        self.wait_for_titles("Second", "First, changed")
        before[1]["title"] = "First, changed"
        self.assertEqual(self.posts_bytes(), reference.posts_file(before))

    def change_the_settings(self):
        self.go_to("Blog Settings")
        self.program.keys("space")
        self.type_into(("Blog Title", "Own"), ("Blog Link", "own"), ("Blog Description", "Mine"))
        self.program.keys("Return")
        self.wait_until_settings_closed()
        self.assertEqual(self.program.file("rss_settings.json").read_bytes(),
                         reference.settings_file("Own", "own", "Mine"))

    def export_and_import(self):
        file = self.program.file("own.xml")
        self.open_export()
        self.type_into((PATH_FIELD, str(file)))
        self.program.keys("Return")
        self.wait_until_export_closed()
        self.assertEqual(file.read_bytes(), reference.feed("Own", "own", "Mine", self.posts()))

        self.card_menu_by_keys("Second", "Delete Post")
        self.wait_for_titles("First, changed")
        windows = self.windows()
        self.go_to("Import RSS")
        self.program.keys("space")
        self.choose(self.wait_for_panel(windows), file)
        self.wait_for_titles("Second", "First, changed")
        self.assertEqual([item["description"] for item in self.posts()], ["", "a &lt; b"])

    def delete_all(self):
        self.card_menu_by_keys("Second", "Delete Post", key="shift+F10")
        self.wait_for_titles("First, changed")
        # The focus goes to the card that is left, and from the last one to the header.
        self.wait_for_focus("First, changed")
        self.program.keys("Menu")
        self.program.wait_for_state("focused", "menu item", "Edit Post")
        self.program.keys("Escape")
        self.program.wait_until_gone("menu item", "Edit Post")
        self.wait_for_focus("First, changed")
        self.card_menu_by_keys("First, changed", "Delete Post")
        self.program.wait_for(name="No blog posts yet.")
        self.wait_for_focus("New Post")
        self.wait_for_bytes("posts.json", b"[]")

    def test_tab_leads_through_the_header_to_the_list_and_back(self):
        self.program.file("posts.json").write_bytes(reference.posts_file([post(1), post(2)]))
        self.program.start()
        self.wait_for_titles("Post 1", "Post 2")
        self.go_to("New Post")
        self.walk("Tab", "Export RSS", "Import RSS", "Blog Settings", "Post 1")
        self.walk("Down", "Post 2")
        self.walk("Tab", "New Post")
        self.walk("shift+Tab", "Post 2", "Blog Settings", "Import RSS", "Export RSS", "New Post")

    def test_tab_leads_through_the_editor_and_stays_in_it(self):
        self.program.start()
        self.open_editor()
        self.program.type("x")
        # The first part of the date in the neutral locale is the month, that of the time the hour.
        stops = ["Title", "Description", PERMALINK, "Month", "Choose Day", "Hour", "Cancel", "Save"]
        self.walk("Tab", *stops[1:], stops[0])
        self.walk("shift+Tab", *reversed(stops[1:]), stops[0])

    def test_the_list_is_scrolled_by_keys(self):
        count = 30
        self.program.file("posts.json").write_bytes(reference.posts_file([post(i) for i in range(1, count + 1)]))
        self.program.start()
        wait_for(lambda: self.titles()[:1] == ["Post 1"], "the list")
        self.assertNotIn(f"Post {count}", self.titles())
        self.go_to("Blog Settings")
        self.walk("Tab", "Post 1")
        self.walk("Down", "Post 2", "Post 3")
        self.walk("Up", "Post 2")
        self.program.keys("Next")
        wait_for(lambda: self.number_in_focus() > 4, "a page further")
        page = self.number_in_focus()
        self.assertLess(page, count)
        self.program.keys("Prior")
        wait_for(lambda: self.number_in_focus() < page, "a page back")
        self.walk("End", f"Post {count}")
        wait_for(lambda: self.titles()[-1:] == [f"Post {count}"], "the last card in sight")
        self.walk("Up", f"Post {count - 1}")
        self.walk("Home", "Post 1")
        wait_for(lambda: self.titles()[:1] == ["Post 1"], "the first card in sight")

    def number_in_focus(self):
        title = self.focused_title()
        return int(title.removeprefix("Post ")) if title else 0


if __name__ == "__main__":
    unittest.main()
