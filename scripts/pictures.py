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

ARABIC_POSTS = [
    ("أسبوع هادئ في الحديقة", "زرعنا الطماطم، وطلعت الفاصولياء، ووصلت أول السنونوات يوم الثلاثاء. وضعت المقعد القديم "
     "تحت شجرة الكمثرى ولم أفعل شيئًا يذكر.", "https://example.com/notes/garden", 801306187),
    ("ملاحظات عن الخبز", "ثلاثة أرغفة ووصفة واحدة. الذي تغيّر هو الوقت: ثماني ساعات، ثم ست عشرة، ثم يوم كامل في البرد.",
     "https://example.com/notes/bread", 799491600),
    ("The last train", "A short story in one paragraph: its title and its words run from the left, its card from the right.",
     "https://example.com/notes/train", 797072400),
    ("قطار المساء (RSS 2.0)", "قصة قصيرة في فقرة واحدة، فيها كلمة feed.xml وأرقام 2026.", "https://example.com/notes/evening",
     794653200),
]

ARABIC_SETTINGS = {
    "title": "دفتر الحديقة",
    "link": "https://example.com/garden",
    "description": "ملاحظات قصيرة عن الحديقة والخبز والقطارات",
}

# What the desktop portal's colour scheme asks for.
DARK, LIGHT = 1, 2

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
    """A display with a window manager, and a session bus whose settings ask for light or dark. The size of text is
    in pixels; `environment` has further variables of the user's."""

    def __init__(self, scheme, scale=1, text_size=None, **environment):
        self.scale = scale
        self.text_size = text_size
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
        self.environment = {
            "PATH": os.environ["PATH"],
            "DBUS_SESSION_BUS_ADDRESS": self.bus.get_bus_address(),
            "QT_QPA_PLATFORM": "xcb",
            "QT_SCALE_FACTOR": str(scale),
            "QSG_RENDER_LOOP": "basic",
            "LANG": "C.UTF-8",
            "LC_TIME": "en_GB.UTF-8",
            "TZ": "Europe/London",
        } | environment
        if text_size:
            # The desktop whose settings Qt reads from a file.
            self.environment |= {"XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5"}
        self.processes = []
        self.start_display()
        self.processes.append(self.start("openbox"))

    def start_display(self):
        """Starts an X server, which takes a number that is free and tells it."""
        size = f"{1200 * self.scale}x{960 * self.scale}x24"
        reading, writing = os.pipe()
        self.processes.append(self.start("Xvfb", "-displayfd", str(writing), "-screen", "0", size, "-nolisten", "tcp",
                                         "-noreset", pass_fds=[writing]))
        os.close(writing)
        with os.fdopen(reading) as answer:
            number = answer.readline().strip()
        if not number:
            raise SystemExit("The display did not start")
        self.environment["DISPLAY"] = f":{number}"

    def start(self, *command, pass_fds=(), **environment):
        return subprocess.Popen(command, env=self.environment | environment, pass_fds=pass_fds,
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def end(self):
        for process in reversed(self.processes):
            process.terminate()
            process.wait()
        self.connection.close_sync(None)
        self.bus.stop()


class Window:
    """The program at work in a home of its own."""

    def __init__(self, desktop, program, posts, settings=None):
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
        if desktop.text_size:
            (home / ".config").mkdir()
            # A font in points, of which there are 72 to an inch; a screen has 96 pixels.
            (home / ".config" / "kdeglobals").write_text(
                f"[General]\nfont=Noto Sans,{desktop.text_size * 72 / 96},-1,5,50,0,0,0,0,0\n")
        if settings:
            (home / "rss_settings.json").write_text(json.dumps(settings))
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
        """Takes a picture once nothing moves any more."""
        before, now = None, self.grab()
        while now != before:
            pause(0.2)
            before, now = now, self.grab()
        path.write_bytes(now)
        print(path.name, flush=True)

    def grab(self):
        return subprocess.run(["import", "-window", self.id, "-strip", "png:-"], env=self.desktop.environment,
                              check=True, capture_output=True).stdout

    def end(self):
        self.process.terminate()
        self.process.wait()
        shutil.rmtree(self.home)


def take_every_screen(desktop, program, path):
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


def take_main_screens(desktop, program, path, posts, settings=None):
    """The list, the forms and the month, by keys alone: where things stand depends on the desktop."""
    window = Window(desktop, program, posts, settings)
    window.picture(path("list"))
    window.press("Tab", "Tab", "Tab", "Tab")
    window.press("space")
    window.picture(path("settings"))
    window.press("Escape")
    window.press("ctrl+e")
    window.picture(path("export"))
    window.press("Tab", "space")
    window.press("Tab", "Menu")
    window.picture(path("card-menu"))
    window.press("Return")
    window.picture(path("edit-post"))
    window.press("Tab", "Tab", "Tab", "alt+Down")
    window.picture(path("month"))
    window.end()


def main():
    program, folder = sys.argv[1], pathlib.Path(sys.argv[2])
    folder.mkdir(parents=True, exist_ok=True)

    def on_a_desktop(take, suffix, *arguments, **desktop_options):
        desktop = Desktop(**desktop_options)
        try:
            take(desktop, program, lambda name: folder / f"{name}-{suffix}.png", *arguments)
        finally:
            desktop.end()

    for scheme, suffix in ((LIGHT, "light"), (DARK, "dark")):
        on_a_desktop(take_every_screen, suffix, scheme=scheme)
        on_a_desktop(take_every_screen, f"{suffix}-2x", scheme=scheme, scale=2)

    arabic = {"LC_MESSAGES": "ar_EG.UTF-8", "LC_TIME": "ar_EG.UTF-8", "TZ": "Africa/Cairo"}
    on_a_desktop(take_main_screens, "arabic-light", ARABIC_POSTS, ARABIC_SETTINGS, scheme=LIGHT, **arabic)
    on_a_desktop(take_main_screens, "large-text-light", POSTS, scheme=LIGHT, text_size=26)
    on_a_desktop(take_main_screens, "arabic-large-text-dark", ARABIC_POSTS, ARABIC_SETTINGS, scheme=DARK,
                 text_size=26, **arabic)


main()
