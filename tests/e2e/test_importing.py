"""Feeds brought in by the open panel, and what becomes of the posts that were there."""

import time
import unittest

import reference
from desktop import wait_for
from panels import PanelStory
from stories import DATA

# The items of by-hand-es.xml: title, description, permalink.
BY_HAND = [
    ("Borrador",
     '<![CDATA[<p>Al anochecer, <b>nunca</b> al mediodía. <a href="mojado.html">Más aquí</a>&hellip;</p>]]>',
     "https://azotea.example/geranios.html"),
    ("Una maceta rota",
     "Se cayó con el viento; «ya era vieja», dijo mi abuela.",
     "https://azotea.example/maceta.png"),
    ("\r\n\r\n\t\t\t\tUn año de lluvia\r\n\r\n\t\t\t",
     "\r\n\t\t\t\tDoscientos litros en un cubo.\r\n\t\t\t",
     ""),
    ("", "", ""),
]

KEPT = {"id": "6F9619FF-8B86-4D01-B42D-00CF4FC964FF", "title": "Kept", "content": "body", "date": 788918400.5,
        "description": "as it was", "permalink": "https://kept.example/1"}
SETTINGS = reference.settings_file("Own", "https://own.example", "Mine")


def feed_of(*titles):
    return "".join(f"<item><title>{title}</title></item>" for title in titles).encode()


class Importing(PanelStory):

    def setUp(self):
        super().setUp()
        self.program.file("posts.json").write_bytes(reference.posts_file([KEPT]))
        self.program.file("rss_settings.json").write_bytes(SETTINGS)
        self.program.start()
        self.wait_for_titles("Kept")

    def put(self, name, content):
        file = self.program.file(name)
        file.write_bytes(content)
        return file

    def wait_for_posts(self, *titles):
        """Waits until the file holds posts of these titles, in the program's own layout."""
        wait_for(lambda: [post["title"] for post in self.posts()] == list(titles), f"the posts {titles}")
        self.assertEqual(self.posts_bytes(), reference.posts_file(self.posts()))

    def check_imported(self, expected, since):
        """Compares the posts, given as title, description and permalink, and what each import makes anew."""
        posts = self.posts()
        self.assertEqual([(post["title"], post["description"], post["permalink"]) for post in posts], expected)
        for post in posts:
            self.assertEqual(post["content"], post["description"])
            self.assertRegex(post["id"], r"^[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}$")
        dates = [post["date"] + reference.REFERENCE_DATE for post in posts]
        self.assertEqual(dates, sorted(dates))
        self.assertGreaterEqual(dates[0], since)
        self.assertLessEqual(dates[-1], time.time())
        self.assertEqual(len({post["id"] for post in posts} | {KEPT["id"]}), len(posts) + 1)

    def test_the_items_of_a_feed_replace_the_posts(self):
        since = time.time()
        self.import_file(DATA / "feeds/by-hand-es.xml")
        self.wait_for_titles(*[title for title, _, _ in BY_HAND])
        self.wait_for_posts(*[title for title, _, _ in BY_HAND])
        self.check_imported(BY_HAND, since)

        # The channel's settings are not the feed's.
        self.open_settings()
        self.assertEqual([self.program.text_of(field) for field in ("Blog Title", "Blog Link", "Blog Description")],
                         ["Own", "https://own.example", "Mine"])
        self.program.press("Cancel")
        self.wait_until_settings_closed()
        self.assertEqual(self.program.close_window(), ("", ""))
        after = self.stamp("posts.json")
        self.program.start()
        self.wait_for_titles(*[title for title, _, _ in BY_HAND])
        self.assertEqual(self.stamp("posts.json"), after)
        self.assertEqual(self.program.file("rss_settings.json").read_bytes(), SETTINGS)

    def test_an_export_of_our_own_comes_back_with_its_description_escaped_once_more(self):
        self.write_post("Tom & Jerry", "a < b & c &amp; d", "https://example.com/?a=1&b=2")
        exported = self.program.file("own export.xml")
        self.assertEqual(self.export_to(exported),
                         reference.feed("Own", "https://own.example", "Mine", self.posts()))
        self.write_post("Not exported")

        since = time.time()
        self.import_file(exported)
        self.wait_for_titles("Tom & Jerry", "Kept")
        self.wait_for_posts("Tom & Jerry", "Kept")
        self.check_imported([("Tom & Jerry", "a &lt; b &amp; c &amp;amp; d", "https://example.com/?a=1&b=2"),
                             ("Kept", "as it was", "https://kept.example/1")], since)

    def test_a_file_without_items_empties_the_list(self):
        self.import_file(self.put("empty.rss", b""))
        self.program.wait_for(name="No blog posts yet.")
        self.wait_for_bytes("posts.json", b"[]")
        self.wait_for_titles()

        self.import_file(self.put("one.rss", feed_of("One")))
        self.wait_for_titles("One")
        self.import_file(self.put("channel.rss", b"<rss><channel><title>A channel</title></channel></rss>"))
        self.program.wait_for(name="No blog posts yet.")
        self.wait_for_bytes("posts.json", b"[]")

    def test_an_item_stands_between_plain_tags_wherever_they_are(self):
        self.import_file(self.put("odd.rss", b"""<item id="1"><title>With an attribute</title></item>
            <ITEM><title>In capitals</title></ITEM>
            <item><title>Outer<item><title>Inner</title></item></item>
            <item><TITLE>No title</TITLE><description>Only a description</description></item>
            <item><title>Left open</title>"""))
        self.wait_for_posts("Outer<item><title>Inner", "")
        self.wait_for_titles("Outer<item><title>Inner", "")

    def test_a_file_that_is_not_utf8_changes_nothing_and_says_so_on_standard_output(self):
        before = self.stamp("posts.json")
        self.import_file(self.put("latin1.xml", feed_of("Caf?").replace(b"?", b"\xe9")))
        # A choice that changes nothing shows nothing: the export after it tells that it is over.
        self.assertIn(b"<title>Kept</title>", self.export_to(self.program.file("after.xml")))
        self.wait_for_titles("Kept")
        self.assertEqual(self.program.close_window(), ("Failed to read RSS file\n", ""))
        self.assertEqual(self.stamp("posts.json"), before)
        self.assertEqual(self.program.file("rss_settings.json").read_bytes(), SETTINGS)

    def test_a_file_chosen_while_a_sheet_is_up_replaces_the_posts_behind_it(self):
        panel = self.open_panel()
        self.activate(self.program.window)
        self.open_editor()
        self.program.fill("Title", "Begun before")
        self.choose(panel, self.put("two.rss", feed_of("One", "Two")))
        self.wait_for_posts("One", "Two")

        self.activate(self.program.window)
        self.assertEqual(self.program.text_of("Title"), "Begun before")
        self.save_post()
        self.wait_for_titles("Begun before", "One", "Two")
        self.wait_for_posts("Begun before", "One", "Two")

    def test_of_two_panels_the_one_that_chooses_later_wins(self):
        earlier = self.open_panel()
        later = self.open_panel()
        self.assertEqual(len(self.windows()), 3)
        self.choose(later, self.put("later.rss", feed_of("From the later panel")))
        self.wait_for_posts("From the later panel")
        self.assertIn(earlier, self.windows())
        self.choose(earlier, self.put("earlier.xml", feed_of("From the earlier panel")))
        self.wait_for_posts("From the earlier panel")
        self.wait_for_titles("From the earlier panel")

    def test_a_cancelled_panel_changes_nothing_and_another_goes_with_the_window(self):
        before = self.stamp("posts.json")
        self.put("feed.rss", feed_of("Not chosen"))
        panel = self.open_panel()
        self.program.click(self.program.wait_for("table cell", "feed.rss"))
        self.program.wait_for_text("File name:", "feed.rss")
        self.program.press("Cancel")
        self.wait_until_closed(panel)

        self.open_panel()
        self.activate(self.program.window)
        self.assertEqual(self.program.close_window(), ("", ""))
        self.assertEqual(self.stamp("posts.json"), before)

    def test_the_panel_offers_feeds_and_folders_only(self):
        for name in ("feed.rss", "FEED.XML", "feed.rss.txt", "xml", "picture.png"):
            self.put(name, feed_of(name))
        self.open_panel()
        self.program.wait_for("combo box", "RSS feeds (*.rss *.xml)")
        self.program.wait_for("table cell", "feed.rss")
        names = {cell.name for cell in self.program.find_all("table cell")}
        files = {file.name for file in self.program.home.iterdir() if not file.name.startswith(".")}
        self.assertEqual(names & files, {"feed.rss", "FEED.XML", "runtime"})
        # No second filter: the list that opens has this one alone.
        filters = self.program.find("combo box", "RSS feeds (*.rss *.xml)")
        self.assertEqual([item.name for item in filters[0]], ["RSS feeds (*.rss *.xml)"])


if __name__ == "__main__":
    unittest.main()
