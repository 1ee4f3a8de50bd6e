#!/usr/bin/python3
"""Exports the feeds of a few blogs, whose texts need no escaping, and has xmllint and feedparser
read them: without a complaint, and with the texts that the blog has.

usage: exported_feed_is_read_by_other_programs.py <exporter> <xmllint>

The home directory is the test's own, and ends with it.
"""

import calendar
import json
import math
import os
import subprocess
import sys
import time

import feedparser

REFERENCE_DATE = 978307200  # 2001-01-01 00:00:00 UTC in Unix time

EXPORTER, XMLLINT = sys.argv[1:]
HOME = os.environ["HOME"]
FEED = os.path.join(HOME, "feed.xml")


def post(number, title, description, permalink, unix_time):
    return {
        "id": f"00000000-0000-4000-8000-{number:012}",
        "title": title,
        "content": "not in the feed: <&>",
        "date": unix_time - REFERENCE_DATE,
        "description": description,
        "permalink": permalink,
    }


def instant(text):
    return calendar.timegm(time.strptime(text, "%Y-%m-%d %H:%M:%S"))


BLOGS = {
    "an empty blog": (("Nothing yet", "https://example.com", "Soon"), []),
    "a blog": (
        ("Field Notes", "https://example.com/notes", "Short posts about small things"),
        [
            post(1, "Hello", "A first post.", "https://example.com/notes/hello",
                 instant("2026-01-05 09:03:07")),
            post(2, "Zwölf Boxkämpfer, 漢字 and 😀", "Ça va? « Oui », 'it' \"is\".",
                 "https://example.com/notes/zw%C3%B6lf?a=1", instant("1969-12-31 23:59:59") + 0.75),
            post(3, "Without a link", "", "", instant("2026-07-05 12:00:00")),
        ],
    ),
    "a blog whose descriptions are escaped": (
        ("Escapes", "https://example.com", "Descriptions with markup"),
        [
            post(4, "Markup", "First <b>post</b> & <i>more</i>", "https://example.com/1",
                 instant("2026-03-29 00:59:59")),
            post(5, "Signs", "1 < 2 && 3 > 2, \"quoted\" &amp; entity", "https://example.com/2",
                 instant("2026-03-29 01:00:00")),
        ],
    ),
}


def expect(name, found, expected):
    if found != expected:
        sys.exit(f"{name}: {found!r} instead of {expected!r}")


def export(channel, posts, zone):
    with open(os.path.join(HOME, "rss_settings.json"), "w", encoding="utf-8") as file:
        json.dump(dict(zip(("title", "link", "description"), channel)), file)
    with open(os.path.join(HOME, "posts.json"), "w", encoding="utf-8") as file:
        json.dump(posts, file)
    subprocess.run([EXPORTER, FEED], check=True, env=dict(os.environ, TZ=zone))


def check(blog, channel, posts):
    lint = subprocess.run([XMLLINT, "--noout", FEED], capture_output=True, text=True)
    expect(f"{blog}: xmllint", (lint.returncode, lint.stdout, lint.stderr), (0, "", ""))

    feed = feedparser.parse(FEED, sanitize_html=False, resolve_relative_uris=False)
    expect(f"{blog}: complaint", (feed.bozo, feed.get("bozo_exception")), (False, None))
    expect(f"{blog}: version", feed.version, "rss20")
    expect(f"{blog}: encoding", feed.encoding.lower(), "utf-8")
    expect(f"{blog}: channel",
           tuple(feed.feed.get(key) for key in ("title", "link", "subtitle")), channel)
    expect(f"{blog}: posts", len(feed.entries), len(posts))
    for entry, expected in zip(feed.entries, posts):
        name = f"{blog}: {expected['title']}"
        expect(f"{name}: title", entry.title, expected["title"])
        expect(f"{name}: link", entry.link, expected["permalink"])
        expect(f"{name}: description", entry.summary, expected["description"])
        expect(f"{name}: date", calendar.timegm(entry.published_parsed),
               math.floor(expected["date"]) + REFERENCE_DATE)


for blog_name, (blog_channel, blog_posts) in BLOGS.items():
    for time_zone in ("UTC", "Europe/Berlin", "America/St_Johns", "Asia/Kathmandu"):
        if os.path.exists(FEED):
            os.remove(FEED)
        export(blog_channel, blog_posts, time_zone)
        check(f"{blog_name} in {time_zone}", blog_channel, blog_posts)
