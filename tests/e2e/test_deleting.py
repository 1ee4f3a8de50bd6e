"""Posts are deleted by their cards' menus, down to the last."""

import unittest

import reference
from stories import Story

TWICE = "0A1B2C3D-0000-4000-8000-0000000000AA"


def post(title, id_):
    return {"id": id_, "title": title, "content": " ", "date": 789456123.5,
            "description": f"About {title}", "permalink": ""}


FIRST = post("First", "0A1B2C3D-0000-4000-8000-000000000001")
TWIN = post("Twin", TWICE)
BETWEEN = post("Between", "0A1B2C3D-0000-4000-8000-000000000002")
OTHER_TWIN = post("Other twin", TWICE)
LAST = post("Last", "0A1B2C3D-0000-4000-8000-000000000003")


class Deleting(Story):

    def expect(self, *posts):
        self.wait_for_bytes("posts.json", reference.posts_file(posts))
        self.wait_for_titles(*(post["title"] for post in posts))

    def test_cards_go_one_by_one_until_the_window_is_empty(self):
        program = self.program
        program.file("posts.json").write_bytes(
            reference.posts_file([FIRST, TWIN, BETWEEN, OTHER_TWIN, LAST]))
        program.start()
        self.wait_for_titles("First", "Twin", "Between", "Other twin", "Last")

        # Of two posts with one id the first goes, whichever card asks for it.
        self.card_menu_by_mouse("Other twin", "Delete Post")
        self.expect(FIRST, BETWEEN, OTHER_TWIN, LAST)
        self.card_menu_by_keys("First", "Delete Post")
        self.expect(BETWEEN, OTHER_TWIN, LAST)
        self.card_menu_by_mouse("Last", "Delete Post")
        self.expect(BETWEEN, OTHER_TWIN)
        self.card_menu_by_mouse("Other twin", "Delete Post")
        self.expect(BETWEEN)
        self.assertIsNone(program.find(name="No blog posts yet."))
        self.card_menu_by_keys("Between", "Delete Post", key="shift+F10")
        self.expect()
        program.wait_for(name="No blog posts yet.")
        self.assertEqual(self.posts_bytes(), b"[]")

        before = self.stamp("posts.json")
        self.assertEqual(program.close_window(), ("", ""))
        program.start()
        program.wait_for(name="No blog posts yet.")
        self.assertEqual(self.stamp("posts.json"), before)
        self.write_post("New")
        self.wait_for_titles("New")
        program.wait_until_gone(name="No blog posts yet.")
        self.assertEqual(len(self.posts()), 1)


if __name__ == "__main__":
    unittest.main()
