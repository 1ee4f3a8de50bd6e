"""The program on Wayland: a compositor without a screen, keys or a mouse, so that everything is done
by the actions that the program offers to assistive tools."""

import os
import pathlib
import subprocess
import tempfile
import unittest

import reference
from desktop import Program, has_state, wait_for
from stories import DATA, PATH_FIELD, Story

KEPT = {"id": "6F9619FF-8B86-4D01-B42D-00CF4FC964FF", "title": "Kept", "content": "body", "date": 788918400.5,
        "description": "a < b", "permalink": "https://kept.example/1"}
ALSO_KEPT = KEPT | {"id": "0B2E4C1A-3F5D-4E7A-9C8B-1D2E3F4A5B6C", "title": "Also kept"}
# The header's buttons, in red, green, blue.
ACCENT = b"\x1f\x62\xc4"
SETTINGS = ("Own", "https://own.example", "Mine")


class Compositor:
    """A Wayland compositor that draws into memory."""

    def __init__(self):
        self.folder = tempfile.TemporaryDirectory(prefix="tavlo-e2e-wayland-")
        self.socket = pathlib.Path(self.folder.name) / "wayland-tavlo"
        # Only with its debugging protocol does it let others take pictures.
        self.server = subprocess.Popen(
            ["weston", "--no-config", "--backend=headless-backend.so", "--use-pixman", "--debug", "--idle-time=0",
             "--width=1200", "--height=960", f"--socket={self.socket.name}"],
            env=os.environ | {"XDG_RUNTIME_DIR": self.folder.name},
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_for(self.socket.exists, "the compositor")

    def picture(self):
        """A picture of the whole screen, or None and a word about why there is none."""
        with tempfile.TemporaryDirectory() as folder:
            shot = subprocess.run(["weston-screenshooter"], cwd=folder, capture_output=True, text=True,
                                  env=os.environ | {"XDG_RUNTIME_DIR": self.folder.name, "XDG_PICTURES_DIR": folder,
                                                    "WAYLAND_DISPLAY": self.socket.name})
            pictures = list(pathlib.Path(folder).glob("*.png"))
            if pictures:
                return pictures[0].read_bytes()
            print(f"No picture was taken: {shot.stderr.strip() or 'the compositor gave none'}")
            return None

    def close(self):
        self.server.terminate()
        self.server.wait()
        self.folder.cleanup()


class WaylandProgram(Program):
    """The program on a compositor, worked by the actions of its tree."""

    def __init__(self, path, compositor):
        super().__init__(path)
        self.compositor = compositor
        self.environment |= {
            "QT_QPA_PLATFORM": "wayland",
            "WAYLAND_DISPLAY": str(compositor.socket),
            # Qt's own way to a compositor's input methods expects it to have a keyboard.
            "QT_IM_MODULE": "compose",
        }

    def begin(self):
        os.environ.pop("DISPLAY", None)
        super().begin()

    def find_window(self):
        return self.find("frame", "Tavlo")

    def act(self, node, action="Press"):
        actions = node.queryAction()
        actions.doAction([actions.getName(i) for i in range(actions.nActions)].index(action))

    def press(self, name):
        """Presses the button of that name, as soon as it can be pressed."""
        self.act(self.wait_for_state("enabled", "push button", name))

    def screenshot(self, path):
        if picture := self.compositor.picture():
            path.write_bytes(picture)


class Wayland(Story):

    @classmethod
    def setUpClass(cls):
        cls.display = Compositor()

    def setUp(self):
        self.program = WaylandProgram(self.program_path, self.display)
        self.addCleanup(self.program.end)
        self.program.file("posts.json").write_bytes(reference.posts_file([KEPT, ALSO_KEPT]))
        self.program.file("rss_settings.json").write_bytes(reference.settings_file(*SETTINGS))
        self.program.start()
        self.wait_for_titles("Kept", "Also kept")

    def give_command(self, title, command):
        self.program.act(self.wait_for_card(title))
        self.program.act(self.program.wait_for("menu item", command))
        self.program.wait_until_gone("menu item", command)

    def test_posts_are_shown_changed_and_deleted(self):
        self.check_picture()
        self.give_command("Kept", "Edit Post")
        self.program.wait_for("heading", "Edit Post")
        for name, text in (("Title", "Kept"), ("Description", "a < b")):
            self.program.wait_for_text(name, text)
        self.set_minute(30)
        self.program.press("Save")
        self.wait_until_editor_closed()
        changed = KEPT | {"date": KEPT["date"] + 30 * 60}
        self.wait_for_bytes("posts.json", reference.posts_file([changed, ALSO_KEPT]))

        self.give_command("Also kept", "Delete Post")
        self.wait_for_titles("Kept")
        self.wait_for_bytes("posts.json", reference.posts_file([changed]))
        self.give_command("Kept", "Delete Post")
        self.program.wait_for(name="No blog posts yet.")
        self.wait_for_bytes("posts.json", b"[]")

    def set_minute(self, minute):
        self.program.wait_for("spin button", "Minute").queryValue().currentValue = minute
        wait_for(lambda: self.program.wait_for("spin button", "Minute").queryValue().currentValue == minute,
                 "the new minute")

    def check_picture(self):
        """The picture shows the window: some of it has the colour of the header's buttons."""
        picture = self.display.picture()
        if picture is None:
            return
        pixels = subprocess.run(["convert", "png:-", "-depth", "8", "rgb:-"], input=picture,
                                capture_output=True, check=True).stdout
        self.assertEqual(len(pixels), 3 * 1200 * 960)
        self.assertGreater(pixels.count(ACCENT), 8000)
        file = self.remains / f"{self.id()}.png"
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(picture)
        print(f"The picture is in {file}")

    def test_settings_are_saved_and_the_feed_goes_out_and_comes_in(self):
        program = self.program
        program.file("rss_settings.json").write_bytes(b"")
        program.press("Blog Settings")
        for name, text in zip(("Blog Title", "Blog Link", "Blog Description"), SETTINGS):
            program.wait_for_text(name, text)
        program.press("Save")
        self.wait_until_settings_closed()
        self.wait_for_bytes("rss_settings.json", reference.settings_file(*SETTINGS))

        program.press("Export RSS")
        program.wait_for_text(PATH_FIELD, str(program.file("feed.xml")))
        program.press("Export")
        self.wait_until_export_closed()
        self.wait_for_bytes("feed.xml", reference.feed(*SETTINGS, [KEPT, ALSO_KEPT]))

        self.import_by_actions(DATA / "feeds/guid-first-zh.xml")
        self.wait_for_titles("怎样折一只信封")
        self.import_by_actions(program.file("feed.xml"))
        self.wait_for_titles("Kept", "Also kept")
        posts = self.posts()
        self.assertEqual([post["description"] for post in posts], ["a &lt; b", "a &lt; b"])
        self.assertEqual(self.posts_bytes(), reference.posts_file(posts))

    def import_by_actions(self, path):
        self.program.press("Import RSS")
        field = self.program.wait_for("text", "File name:")
        field.queryEditableText().setTextContents(str(path))
        self.program.press("Open")
        self.program.wait_until_gone("text", "File name:")

    def test_a_new_post_is_begun_and_left(self):
        before = self.stamp("posts.json")
        self.program.press("New Post")
        title = self.program.wait_for("text", "Title")
        self.assertFalse(has_state(self.program.wait_for("push button", "Save"), "enabled"))
        if "EditableText" in title.get_interfaces():
            title.queryEditableText().setTextContents("By its action")
            self.program.press("Save")
            self.wait_until_editor_closed()
            self.wait_for_titles("By its action", "Kept", "Also kept")
            self.assertEqual(self.posts()[1:], [KEPT, ALSO_KEPT])
        else:
            print("No post is typed here: this toolkit lets assistive tools read its fields, but not fill them.")
            self.program.press("Cancel")
            self.wait_until_editor_closed()
            self.assertEqual(self.stamp("posts.json"), before)


if __name__ == "__main__":
    unittest.main()
