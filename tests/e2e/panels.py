"""Steps with the open panel, a window of its own beside the program's."""

import subprocess

from desktop import has_state, wait_for
from stories import Story


class PanelStory(Story):

    def windows(self):
        """The program's windows on the screen, as the window manager has them."""
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(self.program.process.pid)],
                               capture_output=True, text=True)
        return set(found.stdout.split())

    def activate(self, window):
        subprocess.run(["xdotool", "windowactivate", "--sync", window], check=True)

    def open_panel(self):
        """Presses "Import RSS"; the new panel's window."""
        self.activate(self.program.window)
        before = self.windows()
        self.program.press("Import RSS")
        return self.wait_for_panel(before)

    def wait_for_panel(self, before):
        """The window that has come since, once it takes keys."""
        panel, = wait_for(lambda: self.windows() - before, "the open panel")
        self.activate(panel)
        wait_for(self.path_field, "the panel's field to take keys")
        return panel

    def path_field(self):
        """The focused field for a path, in whichever panel has the keys."""
        fields = self.program.find_all("text", "File name:")
        return next((field for field in fields if has_state(field, "focused")), None)

    def choose(self, panel, path):
        """Chooses a file by its path."""
        self.activate(panel)
        wait_for(self.path_field, "the panel's field to take keys")
        self.program.keys("ctrl+a")
        self.program.paste(str(path))
        wait_for(lambda: self.chosen_path() == str(path), f"the panel's field to hold {path}")
        self.program.keys("Return")
        self.wait_until_closed(panel)

    def chosen_path(self):
        field = self.path_field()
        return field.queryText().getText(0, -1) if field else None

    def wait_until_closed(self, panel):
        wait_for(lambda: panel not in self.windows(), "the open panel to close")

    def import_file(self, path):
        self.choose(self.open_panel(), path)
        # The next keys are the window's, which the window manager may not have seen yet.
        self.activate(self.program.window)
