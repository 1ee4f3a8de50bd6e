"""Dates as other languages write them, a zone that changes its clocks, and a window that is read from
the right."""

import subprocess
import unittest

import pyatspi

import reference
from desktop import box_at_rest, wait_for
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


def post(number, date, description):
    return {"id": f"00000000-0000-4000-8000-{number:012}", "title": f"Post {number}", "content": " ", "date": date,
            "description": description, "permalink": ""}


def feed(posts, dates):
    """The feed of posts whose dates are given as they are to be written."""
    plain = reference.feed(*SETTINGS, posts).decode().split("<pubDate>")
    return "<pubDate>".join(plain[:1] + [date + "</pubDate>" + part.split("</pubDate>", 1)[1]
                                         for date, part in zip(dates, plain[1:], strict=True)]).encode()


class Picture:
    """What is written in a part of the screen: for each place its share of the darkest ink."""

    def __init__(self, rows):
        ink = max(map(max, rows))
        columns = [x for x in range(len(rows[0])) if max(row[x] for row in rows) > ink / 3]
        written = [row for row in rows if max(row) > ink / 3]
        self.rows = [[value / ink for value in row[columns[0]:columns[-1] + 1]] for row in written]

    def size(self):
        return len(self.rows[0]), len(self.rows)

    def looks_like(self, other):
        """Whether the same is written in both, perhaps in other colours."""
        if self.size() != other.size():
            return False
        pairs = [(a, b) for row, others in zip(self.rows, other.rows) for a, b in zip(row, others)]
        return sum(abs(a - b) for a, b in pairs) < 0.02 * sum(a + b for a, b in pairs)


def lines_written_on(box):
    """The pictures of the lines of text in a part of the screen, from the top down."""
    pixels = subprocess.run(["import", "-window", "root", "-crop", f"{box.width}x{box.height}+{box.x}+{box.y}",
                             "-depth", "8", "gray:-"], capture_output=True, check=True).stdout
    ground = max(pixels)
    # Without the card's own edges.
    edge = 10
    rows = [[ground - pixel for pixel in pixels[y * box.width + edge:(y + 1) * box.width - edge]]
            for y in range(edge, box.height - edge)]
    lines = [[]]
    for row in rows:
        if max(row) > 40:
            lines[-1].append(row)
        elif lines[-1]:
            lines.append([])
    return [Picture(line) for line in lines if len(line) > 3]


class Regions(Story):

    def start_with(self, posts, **environment):
        self.program.file("posts.json").write_bytes(reference.posts_file(posts))
        self.program.file("rss_settings.json").write_bytes(reference.settings_file(*SETTINGS))
        self.program.environment |= environment
        self.program.start()
        self.wait_for_titles(*[item["title"] for item in posts])

    def check_card_dates(self):
        """Each card's last line shows what its second line, the description, says in words."""
        cards = [lines_written_on(wait_for(lambda: box_at_rest(card), "a card to rest")) for card in self.cards()]
        for title, description, date in cards:
            self.assertTrue(date.looks_like(description), "the date on the card")
        self.assertFalse(cards[0][2].looks_like(cards[1][2]), "two dates differ")

    def check_region(self, locale):
        feed_dates, card_dates = REGIONS[locale]
        posts = [post(i + 1, *pair) for i, pair in enumerate(zip(DATES, card_dates, strict=True))]
        self.start_with(posts, LC_ALL=locale)
        self.check_card_dates()
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
        posts = [post(1, DATES[0], card_dates[0])]
        self.start_with(posts, LC_ALL="", LC_TIME="ar_EG.UTF-8", LANG="en_GB.UTF-8")
        self.assertEqual(self.export_to(self.program.file("feed.xml")), feed(posts, feed_dates[:1]))
        places = [self.place("push button", name) for name in HEADER]
        self.assertEqual(places, sorted(places))

    def test_a_zone_that_changes_its_clocks(self):
        posts = [post(i + 1, date, "") for i, date in enumerate(BERLIN)]
        self.start_with(posts, TZ="Europe/Berlin")
        self.assertEqual(self.export_to(self.program.file("feed.xml")), feed(posts, BERLIN.values()))


if __name__ == "__main__":
    unittest.main()
