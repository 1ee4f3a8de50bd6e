"""The typical run: two posts are written, the blog gets its name, and the feed is exported."""

import calendar
import unittest
from datetime import datetime, timezone

import reference
from stories import DEFAULT_SETTINGS, PATH_FIELD, PERMALINK, Story

# 2026-01-05 09:03 in UTC, as seconds since 2001.
FIFTH_OF_JANUARY = 789296580


class TypicalRun(Story):

    def test_from_the_first_post_to_the_feed(self):
        program = self.program
        program.file("Desktop").mkdir()
        program.start()
        self.write_the_first_post()
        self.write_the_second_post()
        self.export_the_feed()
        self.name_the_blog_and_export_again()
        self.start_again()

    def write_the_first_post(self):
        """With the keyboard alone, from field to field by Tab."""
        program = self.program
        program.keys("ctrl+n")
        self.wait_for_editor("New Post")
        program.type("Hello")
        program.keys("Tab")
        program.type('First <b>post</b> & more\n"quoted"')
        program.keys("Tab")
        program.type("/notes/hello")
        program.keys("Tab")
        program.type("010520260903a")  # each part of the date, once full, leads to the next
        program.wait_for_text("Title", "Hello")
        program.wait_for_text("Description", 'First <b>post</b> & more\n"quoted"')
        program.wait_for_text(PERMALINK, "/notes/hello")
        program.wait_for("panel", "Date")
        self.assertEqual(program.find("panel", "Date").description, "Monday, January 5, 2026")
        program.press("Save")
        self.wait_until_editor_closed()
        self.wait_for_titles("Hello")
        self.first = self.stored("Hello", 'First <b>post</b> & more\n"quoted"', "/notes/hello")
        self.assertEqual(self.first["date"] // 60 * 60, FIFTH_OF_JANUARY)
        self.assertEqual(self.posts_bytes(), reference.posts_file([self.first]))

    def stored(self, title, description, permalink):
        """The newest post as it is to be, with the id and the seconds that it has."""
        post = self.posts()[0]
        return {"id": post["id"], "title": title, "content": " ", "date": post["date"],
                "description": description, "permalink": permalink}

    def write_the_second_post(self):
        """With the mouse from field to field, and a day picked from the month."""
        program = self.program
        program.press("New Post")
        self.wait_for_editor("New Post")
        program.fill("Title", "Second")
        program.fill(PERMALINK, "no address")
        program.fill("Description", "Gr\u00fc\u00dfe \U0001f44b")
        day = self.pick_the_last_day_of_the_month()
        self.save_post()
        self.wait_for_titles("Second", "Hello")
        self.assertGreaterEqual(self.posts()[0]["date"], day)
        self.assertLess(self.posts()[0]["date"], day + 24 * 60 * 60)
        self.second = self.stored("Second", "Gr\u00fc\u00dfe \U0001f44b", "no address")
        self.assertEqual(self.posts_bytes(), reference.posts_file([self.second, self.first]))

    def pick_the_last_day_of_the_month(self):
        """Picks it in the grid of days; its beginning, in UTC."""
        program = self.program
        program.press("Choose Day")
        program.wait_for("push button", "Next Month")
        month = datetime.strptime(program.find_all("heading")[-1].name, "%B %Y").replace(tzinfo=timezone.utc)
        day = month.replace(day=calendar.monthrange(month.year, month.month)[1])
        name = f"{day:%A, %B} {day.day}, {day.year}"
        program.press(name)
        program.wait_until_gone("push button", "Next Month")
        self.assertEqual(program.wait_for("panel", "Date").description, name)
        return day.timestamp() - reference.REFERENCE_DATE

    def export_the_feed(self):
        program = self.program
        program.keys("ctrl+e")
        program.wait_for_state("focused", "text", PATH_FIELD)
        self.assertEqual(program.text_of(PATH_FIELD), str(program.file("Desktop/feed.xml")))
        program.press("Export")
        self.wait_until_export_closed()
        self.assertEqual(program.file("Desktop/feed.xml").read_bytes(),
                         reference.feed(*DEFAULT_SETTINGS, [self.second, self.first]))

    def name_the_blog_and_export_again(self):
        self.change_settings(blog_title="Field Notes", blog_link="/notes",
                             blog_description="Short posts about small things")
        settings = ("Field Notes", "/notes", "Short posts about small things")
        self.assertEqual(self.program.file("rss_settings.json").read_bytes(), reference.settings_file(*settings))
        self.assertEqual(self.export_to(self.program.file("Desktop/feed.xml")),
                         reference.feed(*settings, [self.second, self.first]))

    def start_again(self):
        program = self.program
        before = self.stamp("posts.json"), self.stamp("rss_settings.json")
        self.assertEqual(program.close_window(), ("", ""))
        program.start()
        self.wait_for_titles("Second", "Hello")
        self.assertEqual((self.stamp("posts.json"), self.stamp("rss_settings.json")), before)


if __name__ == "__main__":
    unittest.main()
