"""Steps that several stories have in common: what a person does to a blog, and what to look at."""

import json
import os
import pathlib
import subprocess

from desktop import ProgramTest, box_of, has_state, showing, wait_for

DATA = pathlib.Path(os.environ["TAVLO_TEST_DATA"])
PERMALINK = "Permalink (https://...)"
PATH_FIELD = "File path"

# Title, link and description of a blog whose settings were never saved.
DEFAULT_SETTINGS = (
    "My Tavlo", "https://example.com",
    "Lorem ipsum dolor sit amet consectetur adipiscing elit. Consectetur adipiscing elit quisque faucibus ex "
    "sapien vitae. Ex sapien vitae pellentesque sem placerat in id. Placerat in id cursus mi pretium tellus duis. "
    "Pretium tellus duis convallis tempus leo eu aenean.")


class Story(ProgramTest):

    def use(self, program):
        """Gives the keys to one of several programs on the screen."""
        self.program = program
        subprocess.run(["xdotool", "windowactivate", "--sync", program.window], check=True)

    # The files

    def posts_bytes(self):
        return self.program.file("posts.json").read_bytes()

    def posts(self):
        return json.loads(self.posts_bytes())

    def settings(self):
        return json.loads(self.program.file("rss_settings.json").read_bytes())

    def stamp(self, name):
        """A file's bytes and the time of its last change, to see whether it was left alone."""
        file = self.program.file(name)
        return file.read_bytes(), file.stat().st_mtime_ns

    def wait_for_bytes(self, name, expected):
        """Waits until a file holds exactly these bytes, and fails with the difference."""
        file = self.program.file(name)
        try:
            wait_for(lambda: file.exists() and file.read_bytes() == expected, f"the bytes of {name}", seconds=10)
        except AssertionError:
            self.assertEqual(file.read_bytes() if file.exists() else None, expected)

    # The list

    def cards(self):
        """The cards on the screen, from the top down."""
        posts = self.program.find("list", "Posts")
        try:
            found = [node for node in posts or () if showing(node) and node.getRoleName() != "scroll bar"]
            # The tree has them in the order in which they came.
            return sorted(found, key=lambda card: box_of(card).y)
        except Exception:  # a card went while it was read
            return []

    def titles(self):
        return [card.name for card in self.cards()]

    def wait_for_titles(self, *titles):
        try:
            wait_for(lambda: self.titles() == list(titles), f"the cards {titles}", seconds=20)
        except AssertionError:
            self.assertEqual(self.titles(), list(titles))

    def wait_for_card(self, title):
        return wait_for(lambda: next((card for card in self.cards() if card.name == title), None), f"the card {title!r}")

    def card_menu_by_mouse(self, title, command):
        self.program.click(self.wait_for_card(title), button=3)
        self.program.click(self.program.wait_for("menu item", command))

    def focused_title(self):
        return next((card.name for card in self.cards() if has_state(card, "focused")), None)

    def focus_card(self, title):
        """Goes to a card by Tab and the arrow keys."""
        for _ in range(10):
            focused = self.focused_title()
            if focused == title:
                return
            below = focused is not None and self.titles().index(focused) < self.titles().index(title)
            self.program.keys("Tab" if focused is None else "Down" if below else "Up")
        raise AssertionError(f"the keys did not lead to the card {title!r}")

    def card_menu_by_keys(self, title, command, key="Menu"):
        """Opens a card's menu by a key, goes to a command and gives it."""
        self.focus_card(title)
        self.program.keys(key)
        self.program.wait_for("menu item", command)
        if command == "Delete Post":
            self.program.keys("Down")
        self.program.wait_for_state("focused", "menu item", command)
        self.program.keys("Return")

    # The editor

    def open_editor(self):
        self.program.keys("ctrl+n")
        self.wait_for_editor("New Post")

    def wait_for_editor(self, heading):
        self.program.wait_for("heading", heading)
        self.program.wait_for_state("focused", "text", "Title")

    def wait_until_editor_closed(self):
        self.program.wait_until_gone("text", "Title")
        self.program.wait_for_state("enabled", "push button", "New Post")

    def save_is_enabled(self):
        return has_state(self.program.wait_for("push button", "Save"), "enabled")

    def write_post(self, title, description="", permalink=""):
        self.open_editor()
        for name, text in (("Title", title), ("Description", description), (PERMALINK, permalink)):
            if text:
                self.program.fill(name, text)
        self.save_post()

    def save_post(self):
        self.program.wait_for_state("enabled", "push button", "Save")
        self.program.press("Save")
        self.wait_until_editor_closed()

    # Settings and export

    def open_settings(self):
        self.program.press("Blog Settings")
        self.program.wait_for_state("focused", "text", "Blog Title")

    def wait_until_settings_closed(self):
        self.program.wait_until_gone("text", "Blog Title")
        self.program.wait_for_state("enabled", "push button", "New Post")

    def change_settings(self, **fields):
        """Changes settings, given as blog_title="…" and so on, and saves them."""
        self.open_settings()
        for field, text in fields.items():
            self.program.fill(field.replace("_", " ").title(), text)
        self.program.press("Save")
        self.wait_until_settings_closed()

    def open_export(self):
        self.program.keys("ctrl+e")
        self.program.wait_for_state("focused", "text", PATH_FIELD)

    def wait_until_export_closed(self):
        self.program.wait_until_gone("text", PATH_FIELD)
        self.program.wait_for_state("enabled", "push button", "New Post")

    def export_to(self, path):
        """Exports the feed to a typed path; the file's bytes if there is one then."""
        self.open_export()
        self.program.fill(PATH_FIELD, str(path))
        self.program.press("Export")
        self.wait_until_export_closed()
        return path.read_bytes() if path.exists() else None
