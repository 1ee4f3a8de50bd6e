"""The bytes that the program is to write, made without the program."""

import json
from datetime import datetime, timezone

# Unix time of 2001-01-01, from which dates count their seconds.
REFERENCE_DATE = 978307200


def number(value):
    """The shortest digits that read back to a number: of a whole one, no fraction."""
    return repr(value).removesuffix(".0")


def text(value):
    return json.dumps(value, ensure_ascii=False).replace("/", "\\/")


def record(members):
    return "{" + ",".join(f'"{key}":{value}' for key, value in members) + "}"


def post(values):
    return record([
        ("id", text(values["id"].upper())),
        ("title", text(values["title"])),
        ("content", text(values["content"])),
        ("date", number(values["date"])),
        ("description", text(values["description"])),
        ("permalink", text(values["permalink"])),
    ])


def posts_file(posts):
    """posts.json of these posts."""
    return ("[" + ",".join(map(post, posts)) + "]").encode()


def settings_file(title, link, description):
    """rss_settings.json of these settings."""
    return record([("title", text(title)), ("link", text(link)), ("description", text(description))]).encode()


def feed(title, link, description, posts):
    """The exported feed, in the neutral locale and in UTC."""
    def item(values):
        date = datetime.fromtimestamp(values["date"] // 1 + REFERENCE_DATE, timezone.utc)
        escaped = values["description"].replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;")
        return (f"<item>\n  <title>{values['title']}</title>\n  <link>{values['permalink']}</link>\n"
                f"  <pubDate>{date:%a}, {date.day} {date:%b} {date.year:04} {date:%H:%M:%S} +0000</pubDate>\n"
                f"  <description>{escaped}</description>\n</item>")
    return ('<?xml version="1.0" encoding="UTF-8" ?>\n<rss version="2.0">\n  <channel>\n'
            f"    <title>{title}</title>\n    <link>{link}</link>\n    <description>{description}</description>\n    "
            + "\n".join(map(item, posts)) + "\n  </channel>\n</rss>").encode()
