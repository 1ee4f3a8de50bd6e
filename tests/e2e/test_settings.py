"""The blog's title, link and description are changed, or left as they were."""

import unittest

import reference
from stories import DEFAULT_SETTINGS, Story

FIELDS = ("Blog Title", "Blog Link", "Blog Description")
FILE = "rss_settings.json"


class Settings(Story):

    def shown(self):
        return tuple(self.program.text_of(field) for field in FIELDS)

    def fill(self, *texts):
        for field, text in zip(FIELDS, texts):
            self.program.fill(field, text)

    def expect(self, *texts):
        """Waits for the file with these texts, and sees that the next sheet shows them."""
        self.wait_until_settings_closed()
        self.wait_for_bytes(FILE, reference.settings_file(*texts))
        self.open_settings()
        self.assertEqual(self.shown(), texts)

    def test_settings_are_stored_by_save_alone_and_as_typed(self):
        program = self.program
        program.start()
        self.cancel()
        self.save_what_was_not_changed()
        self.save_by_return()
        self.save_nothing_at_all()
        self.start_again()

    def cancel(self):
        program = self.program
        self.open_settings()
        program.wait_for("heading", "RSS Feed Settings")
        self.assertEqual(self.shown(), DEFAULT_SETTINGS)
        self.fill("Abandoned", "abandoned", "Left")
        program.press("Cancel")
        self.wait_until_settings_closed()
        self.open_settings()
        self.assertEqual(self.shown(), DEFAULT_SETTINGS)
        self.fill("Abandoned", "abandoned", "Left")
        program.keys("Escape")
        self.wait_until_settings_closed()
        self.assertFalse(program.file(FILE).exists())

    def save_what_was_not_changed(self):
        program = self.program
        self.open_settings()
        self.assertEqual(self.shown(), DEFAULT_SETTINGS)
        program.press("Save")
        self.expect(*DEFAULT_SETTINGS)
        before, time_before = self.stamp(FILE)
        program.press("Save")
        self.wait_until_settings_closed()
        after, time_after = self.stamp(FILE)
        self.assertEqual(after, before)
        self.assertGreater(time_after, time_before)
        self.open_settings()

    def save_by_return(self):
        """Each way to press the default button: Return in a field, on "Cancel", and the keypad's."""
        program = self.program
        self.fill("Field Notes", "word", " Short \"notes\" \\ <b>small</b> things ")
        program.keys("Return")
        self.expect("Field Notes", "word", " Short \"notes\" \\ <b>small</b> things ")
        self.fill("Caf\u00e9 \U0001f44b\U0001f3fd", "word")
        program.keys("KP_Enter")
        self.expect("Caf\u00e9 \U0001f44b\U0001f3fd", "word", " Short \"notes\" \\ <b>small</b> things ")
        before = self.stamp(FILE)
        self.fill("Abandoned")
        program.keys("Escape")
        self.wait_until_settings_closed()
        self.assertEqual(self.stamp(FILE), before)

    def save_nothing_at_all(self):
        program = self.program
        self.open_settings()
        self.fill("", "", "")
        program.keys("Return")
        self.expect("", "", "")
        program.keys("Escape")
        self.wait_until_settings_closed()
        self.assertEqual(self.export_to(program.file("empty.xml")), reference.feed("", "", "", []))

    def start_again(self):
        program = self.program
        before = self.stamp(FILE)
        self.assertEqual(program.close_window(), ("", ""))
        program.start()
        self.open_settings()
        self.assertEqual(self.shown(), ("", "", ""))
        self.fill("Again")
        program.press("Cancel")
        self.wait_until_settings_closed()
        self.assertEqual(self.stamp(FILE), before)
        self.assertFalse(program.file("posts.json").exists())


if __name__ == "__main__":
    unittest.main()
