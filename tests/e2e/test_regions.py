"""Dates as other languages write them, a zone that changes its clocks, and a window that is read from
the right."""

import unittest

import pyatspi

import reference
from stories import Story

DATES = [
    # 2026-01-05 09:03:07 UTC, with a fraction of a second that no date shows.
    789296587.75,
    # 2026-05-09 18:30:00 UTC
    800044200.0,
    # 2024-02-29 00:00:00 UTC
    730857600.0,
]

# The dates in a feed, and on a card.
REGIONS = {
    "de_DE.UTF-8": (
        ["Mo., 5 Jan. 2026 09:03:07 +0000", "Sa., 9 Mai 2026 18:30:00 +0000", "Do., 29 Feb. 2024 00:00:00 +0000"],
        ["5. Januar 2026", "9. Mai 2026", "29. Februar 2024"]),
    "ja_JP.UTF-8": (
        ["月, 5 1月 2026 09:03:07 +0000", "土, 9 5月 2026 18:30:00 +0000", "木, 29 2月 2024 00:00:00 +0000"],
        ["2026年1月5日", "2026年5月9日", "2024年2月29日"]),
    "ar_EG.UTF-8": (
        ["الاثنين, ٥ يناير ٢٠٢٦ ٠٩:٠٣:٠٧ +0000", "السبت, ٩ مايو ٢٠٢٦ ١٨:٣٠:٠٠ +0000",
         "الخميس, ٢٩ فبراير ٢٠٢٤ ٠٠:٠٠:٠٠ +0000"],
        ["٥ يناير ٢٠٢٦", "٩ مايو ٢٠٢٦", "٢٩ فبراير ٢٠٢٤"]),
}

# Either side of the two changes of the clocks in Berlin in 2026, as seconds since 2001.
BERLIN = {
    796438799.0: "Sun, 29 Mar 2026 01:59:59 +0100",
    796438800.0: "Sun, 29 Mar 2026 03:00:00 +0200",
    814582799.0: "Sun, 25 Oct 2026 02:59:59 +0200",
    814582800.0: "Sun, 25 Oct 2026 02:00:00 +0100",
}

HEADER = ["New Post", "Export RSS", "Import RSS", "Blog Settings"]
SETTINGS = ("Own", "https://own.example", "Mine")


def post(number, date):
    return {"id": f"00000000-0000-4000-8000-{number:012}", "title": f"Post {number}", "content": " ", "date": date,
            "description": "", "permalink": ""}


def feed(posts, dates):
    """The feed of posts whose dates are given as they are to be written."""
    plain = reference.feed(*SETTINGS, posts).decode().split("<pubDate>")
    return "<pubDate>".join(plain[:1] + [date + "</pubDate>" + part.split("</pubDate>", 1)[1]
                                         for date, part in zip(dates, plain[1:], strict=True)]).encode()


class Regions(Story):

    def start_with(self, posts, **environment):
        self.program.file("posts.json").write_bytes(reference.posts_file(posts))
        self.program.file("rss_settings.json").write_bytes(reference.settings_file(*SETTINGS))
        self.program.environment |= environment
        self.program.start()
        self.wait_for_titles(*[item["title"] for item in posts])

    def check_card_dates(self, dates):
        self.assertEqual([card.description for card in self.cards()], dates)

    def check_region(self, locale):
        feed_dates, card_dates = REGIONS[locale]
        posts = [post(i + 1, date) for i, date in enumerate(DATES)]
        self.start_with(posts, LC_ALL=locale)
        self.check_card_dates(card_dates)
        self.assertEqual(self.export_to(self.program.file("feed.xml")), feed(posts, feed_dates))

    def test_german(self):
        self.check_region("de_DE.UTF-8")

    def test_japanese(self):
        self.check_region("ja_JP.UTF-8")

    def test_arabic_from_the_right(self):
        self.check_region("ar_EG.UTF-8")
        places = {name: self.place(role, name)
                  for role, name in [("heading", "Tavlo")] + [("push button", name) for name in HEADER]}
        from_the_right = sorted(places, key=places.get, reverse=True)
        self.assertEqual(from_the_right, ["Tavlo"] + HEADER)
        # All four stand at the left, as far from the edge as elsewhere at the right.
        self.assertEqual(places["Blog Settings"], 16)
        self.assertLess(places["New Post"], 480)
        self.assertGreater(places["Tavlo"], 800)

    def place(self, role, name):
        """How far to the right a node begins in the window."""
        return self.program.wait_for(role, name).queryComponent().getPosition(pyatspi.WINDOW_COORDS)[0]

    def test_the_locale_of_dates_alone_leaves_the_window_as_it_is(self):
        """LC_TIME decides on the dates, not on the direction of the window; LC_ALL goes before it."""
        feed_dates, card_dates = REGIONS["ar_EG.UTF-8"]
        posts = [post(1, DATES[0])]
        self.start_with(posts, LC_ALL="", LC_TIME="ar_EG.UTF-8", LANG="en_GB.UTF-8")
        self.check_card_dates(card_dates[:1])
        self.assertEqual(self.export_to(self.program.file("feed.xml")), feed(posts, feed_dates[:1]))
        places = [self.place("push button", name) for name in HEADER]
        self.assertEqual(places, sorted(places))

    def test_a_zone_that_changes_its_clocks(self):
        posts = [post(i + 1, date) for i, date in enumerate(BERLIN)]
        self.start_with(posts, TZ="Europe/Berlin")
        self.assertEqual(self.export_to(self.program.file("feed.xml")), feed(posts, BERLIN.values()))


if __name__ == "__main__":
    unittest.main()
