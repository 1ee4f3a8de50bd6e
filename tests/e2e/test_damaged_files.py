"""Data files that cannot be read: the program starts as if they were not there, leaves them alone,
and overwrites each with its next save. And files that cannot be written."""

import json
import os
import re
import time
import unittest

import reference
from desktop import Program, wait_for
from stories import Story

ID = "6F9619FF-8B86-4D01-B42D-00CF4FC964FF"
OTHER_ID = "0B2E4C1A-3F5D-4E7A-9C8B-1D2E3F4A5B6C"
POST = {"id": ID, "title": "Kept", "content": " ", "date": 788918400.5, "description": "d", "permalink": "p"}
SETTINGS = {"title": "Own", "link": "https://own.example", "description": "Mine"}
DEFAULTS = {
    "title": "My Tavlo",
    "description": "Lorem ipsum dolor sit amet consectetur adipiscing elit. Consectetur adipiscing elit quisque "
                   "faucibus ex sapien vitae. Ex sapien vitae pellentesque sem placerat in id. Placerat in id "
                   "cursus mi pretium tellus duis. Pretium tellus duis convallis tempus leo eu aenean.",
}
FOLDER = None


def posts_with(**changes):
    """A good post, and one that differs from it by these members; ... stands for none."""
    members = {key: value for key, value in (POST | {"id": OTHER_ID} | changes).items() if value is not ...}
    return json.dumps([POST, members]).encode()


def settings_with(**changes):
    return json.dumps({key: value for key, value in (SETTINGS | changes).items() if value is not ...}).encode()


# Each row is one start: what posts.json holds, what rss_settings.json holds, and what is wrong.
DAMAGED = [
    ("nothing in them", b"", b""),
    ("no JSON", b"Kept, but by hand", b"title: Own"),
    ("cut short", posts_with()[:-9], settings_with()[:-2]),
    ("another kind of value at the top", settings_with(), posts_with()),
    ("an object without members", b"{}", b"{}"),
    ("null at the top", b"null", b"null"),
    ("an id missing, a title missing", posts_with(id=...), settings_with(title=...)),
    ("a title missing, a link missing", posts_with(title=...), settings_with(link=...)),
    ("a content missing, two keys only", posts_with(content=...), settings_with(description=...)),
    ("a date missing, a title that is a number", posts_with(date=...), settings_with(title=7)),
    ("a description missing, a link that is null", posts_with(description=...), settings_with(link=None)),
    ("a permalink missing, a description that is a list", posts_with(permalink=...), settings_with(description=[])),
    ("an id that is no UUID, a title that is an object", posts_with(id=ID[:-1] + "G"), settings_with(title={})),
    ("an id in braces, a link that is true", posts_with(id="{" + OTHER_ID + "}"), settings_with(link=True)),
    ("a date that is a text, text after the end", posts_with(date="788918400"), settings_with() + b"x"),
    ("a title that is a number, a second object", posts_with(title=5), settings_with() + settings_with()),
    ("a permalink that is null, a comma too many", posts_with(permalink=None), settings_with()[:-1] + b",}"),
    ("an element that is null, a byte that is not UTF-8", json.dumps([POST, None]).encode(),
     settings_with(title="?").replace(b"?", b"\xe9")),
    ("text after the end, UTF-16", posts_with() + b"]", settings_with().decode().encode("utf-16")),
    ("a byte that is not UTF-8, single quotes", posts_with(title="?").replace(b"?", b"\xe9"),
     settings_with().replace(b'"', b"'")),
    ("a folder in their place", FOLDER, FOLDER),
]

# The starts after which a post is added and the settings are saved.
OVERWRITTEN = ("nothing in them", "cut short", "a description missing, a link that is null",
               "an element that is null, a byte that is not UTF-8", "a folder in their place")

# So many programs start at once: one for each of two processors.
AT_ONCE = 2


def put(file, content):
    if content is FOLDER:
        file.mkdir()
    else:
        file.write_bytes(content)


def without_privileges(command):
    """A command that respects a file's permissions, for whoever may do anything."""
    return ["setpriv", "--inh-caps=-all", "--bounding-set=-all", *command] if os.geteuid() == 0 else command


def look(file):
    """What there is to see whether a file, or the folder in its place, was touched."""
    status = file.stat()
    return status.st_ino, status.st_mtime_ns, sorted(file.iterdir()) if file.is_dir() else file.read_bytes()


class DamagedFiles(Story):

    def program_with(self, posts, settings):
        """A program that starts with these files."""
        program = Program(self.program_path)
        self.addCleanup(program.end)
        put(program.file("posts.json"), posts)
        put(program.file("rss_settings.json"), settings)
        return program

    def exported(self):
        """The feed of what the program has taken in."""
        self.open_export()
        self.program.keys("Return")
        file = self.program.file("feed.xml")
        wait_for(file.exists, "the feed")
        return file.read_bytes()

    def check_defaults(self):
        """What was not read counts as not there: no posts, and the settings of a first start."""
        feed = self.exported()
        link = re.search(rb"<link>(https://[^/<]+)</link>", feed)
        self.assertIsNotNone(link, feed)
        self.assertEqual(feed, reference.feed(DEFAULTS["title"], link[1].decode(), DEFAULTS["description"], []))
        self.program.wait_for(name="No blog posts yet.")
        return link[1].decode()

    def save_both(self):
        """Adds a post and saves the settings as they are."""
        self.open_editor()
        self.program.type("Added")
        self.program.wait_for_text("Title", "Added")
        self.program.keys("ctrl+Return")
        self.wait_until_editor_closed()
        self.wait_for_titles("Added")
        self.open_settings()
        self.program.keys("Return")
        self.wait_until_settings_closed()

    def check_added_post(self, since):
        """posts.json holds the one post that was added, to the byte."""
        post = self.posts()[0]
        self.assertEqual(self.posts_bytes(), reference.posts_file([
            {"id": post["id"], "title": "Added", "content": " ", "date": post["date"], "description": "",
             "permalink": ""}]))
        self.assertNotIn(post["id"], (ID, OTHER_ID))
        self.assertTrue(since <= post["date"] + reference.REFERENCE_DATE <= time.time(), post["date"])

    def check_start(self, program, overwrite):
        """A start with damaged files, and on demand the saves that overwrite them."""
        files = [program.file(name) for name in ("posts.json", "rss_settings.json")]
        self.use(program)
        link = self.check_defaults()
        self.assertEqual([look(file) for file in files], program.damaged, "left alone until the next save")
        if not overwrite:
            return
        self.wait_until_export_closed()
        since = time.time()
        self.save_both()
        if files[0].is_dir():
            self.assertEqual([look(file) for file in files], program.damaged, "a folder stays a folder")
        else:
            self.check_added_post(since)
            self.assertEqual(files[1].read_bytes(),
                             reference.settings_file(DEFAULTS["title"], link, DEFAULTS["description"]))
        self.assertEqual(program.close_window(), ("", ""))

    def test_what_cannot_be_read_counts_as_not_there_until_a_save_overwrites_it(self):
        for first in range(0, len(DAMAGED), AT_ONCE):
            rows = DAMAGED[first:first + AT_ONCE]
            programs = [self.program_with(posts, settings) for _, posts, settings in rows]
            for program in programs:
                program.damaged = [look(program.file(name)) for name in ("posts.json", "rss_settings.json")]
                program.begin()
            for (words, _, _), program in zip(rows, programs):
                program.wait_for_start()
                with self.subTest(words):
                    self.check_start(program, words in OVERWRITTEN)
                program.end()

    def test_what_may_not_be_written_is_left_alone_and_the_change_is_lost(self):
        program = self.program_with(reference.posts_file([POST]), settings_with())
        program.command = without_privileges(program.command)
        for name in ("posts.json", "rss_settings.json"):
            program.file(name).chmod(0o444)
        before = look(program.file("posts.json")), look(program.file("rss_settings.json"))
        program.start()
        self.use(program)
        self.write_post("Lost")
        self.wait_for_titles("Lost", "Kept")
        self.change_settings(blog_title="Lost")
        self.assertIn(b"<title>Lost</title>", self.exported())
        self.wait_until_export_closed()
        self.assertEqual(program.close_window(), ("", ""))
        self.assertEqual((look(program.file("posts.json")), look(program.file("rss_settings.json"))), before)

        program.start()
        self.wait_for_titles("Kept")

    def test_each_file_is_read_whatever_the_other_holds(self):
        feed = reference.feed("Own", "https://own.example", "Mine", [])
        good_settings = self.program_with(DAMAGED[2][1], settings_with())
        good_settings.start()
        self.use(good_settings)
        self.assertEqual(self.exported(), feed)
        good_settings.end()

        # Members in any order, one that is not known, a plain slash, an id in small letters.
        post = {"permalink": "https://kept.example/1", "extra": [None], "date": -1} | POST | {"id": ID.lower()}
        good_posts = self.program_with(json.dumps([post]).encode(), DAMAGED[2][2])
        good_posts.start()
        self.use(good_posts)
        self.wait_for_titles("Kept")
        self.assertIn(b"<title>My Tavlo</title>", self.exported())
        self.wait_until_export_closed()
        self.card_menu_by_keys("Kept", "Edit Post")
        self.wait_for_editor("Edit Post")
        self.program.keys("ctrl+Return")
        self.wait_until_editor_closed()
        self.assertEqual(self.posts_bytes(), reference.posts_file([POST]))


if __name__ == "__main__":
    unittest.main()
