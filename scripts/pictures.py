"""Starts the program given first on displays of its own, and takes pictures of its screens into the
folder given second."""

import json
import os
import pathlib
import shutil
import subprocess
import sys
import time

from gi.repository import Gio, GLib

POSTS = [
    ("A quiet week in the garden", "The tomatoes are in, the beans are up, and the first swallows came back on Tuesday. "
     "I put the old bench under the pear tree and did very little on it.", "https://example.com/notes/garden", 801306187),
    ("Notes on making bread", "Three loaves, one recipe. What changed was the time: eight hours, sixteen, and a whole day "
     "in the cold. The longest rest won by a crust.", "https://example.com/notes/bread", 799491600),
    ("日本語で書く", "短い記事をいくつか書いて、フィードとして公開する。それだけの道具です。", "https://example.com/notes/nihongo", 797072400),
    ("كتابة من اليمين إلى اليسار", "كل عنوان ووصف يتبع اتجاه نصه.", "https://example.com/notes/arabic", 794653200),
    ("Tom & Jerry <b>at home</b>", "Markup shows as it was typed, and loads nothing.", "https://example.com/notes/markup", 792234000),
    ("The last train", "A short story in one paragraph.", "https://example.com/notes/train", 789814800),
]

PORTAL = """<node><interface name='org.freedesktop.portal.Settings'>
<method name='Read'><arg type='s' direction='in'/><arg type='s' direction='in'/><arg type='v' direction='out'/></method>
<signal name='SettingChanged'><arg type='s'/><arg type='s'/><arg type='v'/></signal>
</interface></node>"""


def wait_for(condition, what, seconds=60):
    """Turns GLib's loop, which answers for the desktop's settings, until the condition holds."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        result = condition()
        if result:
            return result
        pause(0.05)
    raise SystemExit(f"{what} did not happen within {seconds} seconds")


def pause(seconds):
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        GLib.MainContext.default().iteration(False)
        time.sleep(0.005)


class Desktop:
    """A display with a window manager, and a session bus whose settings ask for light or dark."""

    def __init__(self, number, scheme, scale):
        self.scale = scale
        self.bus = Gio.TestDBus.new(Gio.TestDBusFlags.NONE)
        self.bus.up()
        self.connection = Gio.DBusConnection.new_for_address_sync(
            self.bus.get_bus_address(),
            Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None)
        self.connection.register_object(
            "/org/freedesktop/portal/desktop", Gio.DBusNodeInfo.new_for_xml(PORTAL).interfaces[0],
            lambda *call: call[-1].return_value(GLib.Variant("(v)", (GLib.Variant("v", GLib.Variant("u", scheme)),))),
            None, None)
        Gio.bus_own_name_on_connection(
            self.connection, "org.freedesktop.portal.Desktop", Gio.BusNameOwnerFlags.NONE, None, None)
        self.display = f":{number}"
        self.environment = {
            "PATH": os.environ["PATH"],
            "DISPLAY": self.display,
            "DBUS_SESSION_BUS_ADDRESS": self.bus.get_bus_address(),
            "QT_QPA_PLATFORM": "xcb",
            "QT_SCALE_FACTOR": str(scale),
            "QSG_RENDER_LOOP": "basic",
            "LANG": "C.UTF-8",
            "LC_TIME": "en_GB.UTF-8",
            "TZ": "Europe/London",
        }
        size = f"{1200 * scale}x{960 * scale}x24"
        self.processes = [self.start("Xvfb", self.display, "-screen", "0", size, "-nolisten", "tcp")]
        wait_for(lambda: subprocess.run(["xdotool", "getdisplaygeometry"], env=self.environment,
                                        capture_output=True).returncode == 0, "The display's start")
        self.processes.append(self.start("openbox"))

    def start(self, *command, **environment):
        return subprocess.Popen(command, env=self.environment | environment, stderr=subprocess.DEVNULL)

    def end(self):
        for process in reversed(self.processes):
            process.terminate()
            process.wait()
        self.connection.close_sync(None)
        self.bus.stop()


class Window:
    """The program at work in a home of its own."""

    def __init__(self, desktop, program, posts):
        self.desktop = desktop
        # The folder's name is in the picture of the export prompt.
        self.home = home = pathlib.Path("/tmp/tavlo-home")
        shutil.rmtree(home, ignore_errors=True)
        home.mkdir(mode=0o700)
        (home / "run").mkdir(mode=0o700)
        (home / "Desktop").mkdir()
        (home / "posts.json").write_text(json.dumps([
            {"id": f"00000000-0000-4000-8000-{number:012}", "title": title, "content": " ", "date": date,
             "description": description, "permalink": permalink}
            for number, (title, description, permalink, date) in enumerate(posts)]))
        self.process = desktop.start(program, HOME=str(home), XDG_RUNTIME_DIR=str(home / "run"))
        self.id = wait_for(self.find, "The window's appearance")
        pause(1)

    def find(self):
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--class", "^tavlo$"],
                               env=self.desktop.environment, capture_output=True, text=True)
        return found.stdout.split()[-1] if found.stdout.split() else None

    def act(self, *command):
        subprocess.run(["xdotool", *map(str, command)], env=self.desktop.environment, check=True)
        pause(0.6)

    def press(self, *keys):
        self.act("key", *keys)

    def click(self, x, y, button=1):
        self.act("mousemove", "--window", self.id, x * self.desktop.scale, y * self.desktop.scale, "click", button)

    def picture(self, path):
        subprocess.run(["import", "-window", self.id, "-strip", str(path)], env=self.desktop.environment, check=True)
        print(path.name, flush=True)

    def end(self):
        self.process.terminate()
        self.process.wait()
        shutil.rmtree(self.home)


def take_pictures(desktop, program, folder, suffix):
    def path(name):
        return folder / f"{name}-{suffix}.png"

    window = Window(desktop, program, [])
    window.picture(path("empty"))
    window.press("ctrl+n")
    window.picture(path("new-post"))
    window.end()

    window = Window(desktop, program, POSTS)
    window.picture(path("list"))
    window.click(400, 150, button=3)
    window.picture(path("card-menu"))
    window.press("Down", "Return")
    window.picture(path("edit-post"))
    window.press("Tab", "Tab", "Tab", "alt+Down")
    window.picture(path("month"))
    window.press("Escape")
    window.press("Escape")
    window.press("ctrl+e")
    window.picture(path("export"))
    window.press("Tab", "space")
    window.press("Tab", "Tab", "Tab", "Tab")
    window.picture(path("focus"))
    window.press("space")
    window.picture(path("settings"))
    window.end()


def main():
    program, folder = sys.argv[1], pathlib.Path(sys.argv[2])
    folder.mkdir(parents=True, exist_ok=True)
    number = 90
    for scheme, scheme_name in ((2, "light"), (1, "dark")):
        for scale in (1, 2):
            number += 1
            desktop = Desktop(number, scheme, scale)
            try:
                take_pictures(desktop, program, folder, scheme_name + ("" if scale == 1 else "-2x"))
            finally:
                desktop.end()


main()
