"""A screen with small points: the same window, drawn twice as large."""

import subprocess
import unittest

import pyatspi

import reference
from desktop import Display
from stories import Story


class Scaling(Story):

    @classmethod
    def setUpClass(cls):
        cls.display = Display(2400, 1900)

    def start_at(self, scale):
        self.program.environment["QT_SCALE_FACTOR"] = str(scale)
        self.program.scale = scale
        self.program.start()

    def window_size(self):
        words = subprocess.run(["xdotool", "getwindowgeometry", "--shell", self.program.window],
                               capture_output=True, text=True, check=True).stdout
        values = dict(line.split("=") for line in words.split())
        return int(values["WIDTH"]), int(values["HEIGHT"])

    def button(self):
        return self.program.wait_for("push button", "New Post").queryComponent()

    def button_points(self):
        """How many points of the window have the colour of the header's buttons."""
        pixels = subprocess.run(["import", "-window", self.program.window, "-depth", "8", "rgba:-"],
                                capture_output=True, check=True).stdout
        points = memoryview(pixels).cast("I").tolist()
        x, y = self.button().getPosition(pyatspi.WINDOW_COORDS)
        width, _ = self.window_size()
        inside = 6
        return points.count(points[(y + inside) * self.program.scale * width + (x + inside) * self.program.scale])

    def look(self):
        button = self.button()
        return (self.window_size(), button.getPosition(pyatspi.WINDOW_COORDS) + button.getSize(),
                self.button_points())

    def test_twice_as_large(self):
        self.start_at(1)
        (width, height), button, points = self.look()
        self.assertEqual(self.program.close_window(), ("", ""))
        self.start_at(2)
        double_size, same_button, more_points = self.look()
        self.assertEqual(double_size, (2 * width, 2 * height))
        self.assertEqual(same_button, button)
        # Four points for each one, and some more: the letters' soft edges stay as narrow.
        self.assertAlmostEqual(more_points / points, 4, delta=0.5)

    def test_the_same_work_at_twice_the_size(self):
        self.start_at(2)
        self.write_post("First", "a < b & c", "https://example.com/1")
        self.write_post("Second")
        self.wait_for_titles("Second", "First")
        self.card_menu_by_mouse("Second", "Delete Post")
        self.wait_for_titles("First")
        self.change_settings(blog_title="Own", blog_link="own", blog_description="Mine")
        posts = self.posts()
        self.assertEqual([(post["title"], post["content"], post["description"], post["permalink"]) for post in posts],
                         [("First", " ", "a < b & c", "https://example.com/1")])
        self.assertEqual(self.posts_bytes(), reference.posts_file(posts))
        self.assertEqual(self.export_to(self.program.file("feed.xml")), reference.feed("Own", "own", "Mine", posts))


if __name__ == "__main__":
    unittest.main()
