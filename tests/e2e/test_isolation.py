"""What the program touches of the user's, and whom it speaks to: a whole session, seen in its system calls."""

import os
import pathlib
import tempfile
import unittest

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio  # noqa: E402

import reference  # noqa: E402
from desktop import wait_for  # noqa: E402
from panels import PanelStory  # noqa: E402
from traces import calls, traced  # noqa: E402

# What the system has for every program. Nothing there is the user's.
SYSTEM = ("/usr/", "/lib/", "/lib64/", "/etc/", "/proc/", "/sys/", "/dev/", "/run/", "/var/cache/fontconfig/",
          "/var/lib/dbus/machine-id")

# The toolkit's own, below the home folder: settings that several programs share, and what is made
# anew when it is gone.
TOOLKIT = (".config/QtProject.conf", ".cache/")

# What is no file of anybody's.
DEVICES = ("/dev/", "/proc/self/")

# Calls that make, take away or change a name.
MAKING = {"creat", "link", "linkat", "mkdir", "mkdirat", "mknod", "mknodat", "rename", "renameat", "renameat2",
          "rmdir", "symlink", "symlinkat", "truncate", "unlink", "unlinkat", "chmod", "fchmodat", "chown",
          "fchownat", "lchown", "utimensat", "setxattr"}


def without(places, paths):
    return {path for path in paths if not path.startswith(places)}


def bus_path(address):
    """The socket of a bus, from its address."""
    return next(part.removeprefix("unix:path=") for part in address.split(",") if part.startswith("unix:path="))


def accessibility_bus():
    session = Gio.bus_get_sync(Gio.BusType.SESSION)
    answer = session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None,
                               Gio.DBusCallFlags.NONE, -1, None)
    return bus_path(answer.unpack()[0])


class Isolation(PanelStory):

    def setUp(self):
        super().setUp()
        folder = tempfile.TemporaryDirectory(prefix="tavlo-trace-")
        self.addCleanup(folder.cleanup)
        self.trace = pathlib.Path(folder.name)
        self.program.command = traced(self.program.command, self.trace)
        self.put(".config/user-dirs.dirs", b'XDG_DOCUMENTS_DIR="$HOME/Documents"\nXDG_DESKTOP_DIR="$HOME/Desktop"\n')
        for name in (".bash_history", ".ssh/id_rsa", "Documents/diary.txt", "Documents/other.json", "Desktop/old.xml",
                     "Downloads/other.rss", "Pictures/holiday.jpg", "notes.xml"):
            self.put(name, b"private")
        self.put("Downloads/feed.rss", b"<item><title>Imported</title></item>")

    def put(self, name, content):
        file = self.program.file(name)
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(content)

    def work(self):
        """All that the program is for."""
        program = self.program
        program.start()
        self.write_post("Hello", "A description", "https://example.com/1")
        self.change_settings(blog_title="Title", blog_link="https://example.com")
        self.assertIn(b"<title>Hello</title>", self.export_to(program.file("Desktop/feed.xml")))
        self.assertIn(b"<title>Hello</title>", self.export_to(program.file("Desktop/feed.xml")))
        self.import_file(program.file("Downloads/feed.rss"))
        self.wait_for_titles("Imported")
        self.assertEqual(program.close_window(), ("", ""))
        program.start()
        self.wait_for_titles("Imported")
        self.assertEqual(program.close_window(), ("", ""))

    def test_a_session_touches_what_it_is_for_and_nothing_else(self):
        self.work()
        trace = wait_for(lambda: list(calls(self.trace)), "the trace")
        self.check_programs(trace)
        self.check_sockets(trace)
        self.check_changes(trace)
        self.check_opened_files(trace)

    def check_programs(self, trace):
        started = [call.paths()[0] for call in trace if call.name.startswith("execve")]
        self.assertEqual(started, 2 * [self.program_path])

    def check_sockets(self, trace):
        self.assertEqual({call.arguments.split(",")[0] for call in trace if call.name in ("socket", "socketpair")},
                         {"AF_UNIX"})
        self.assertEqual([call for call in trace if call.name in ("bind", "listen", "accept", "accept4")], [])
        display = f"/tmp/.X11-unix/X{os.environ['DISPLAY'].removeprefix(':')}"
        peers = {path for call in trace if call.name == "connect" for path in call.paths()}
        self.assertEqual(peers, {display, bus_path(os.environ["DBUS_SESSION_BUS_ADDRESS"]), accessibility_bus()})

    def check_changes(self, trace):
        """Names that come and go: those of the export with its auxiliary file, and the toolkit's."""
        for call in trace:
            if call.name not in MAKING:
                continue
            for path in call.paths():
                self.assertTrue(self.is_export(path) or self.is_toolkits(path) or path.startswith("/proc/self/fd/"),
                                str(call))

    def check_opened_files(self, trace):
        read, written, listed = set(), set(), set()
        for call in trace:
            if not call.name.startswith("open") or self.is_toolkits(call.opened):
                continue
            if call.has("O_TMPFILE"):
                # It has no name before it gets one, which is a change of names.
                written.add(f"a nameless file in {pathlib.Path(call.opened).parent}")
            elif call.has("O_WRONLY", "O_RDWR"):
                written.add(call.opened)
            elif call.has("O_DIRECTORY"):
                listed.add(call.opened)
            else:
                read.add(call.opened)
        own = self.paths("Documents/posts.json", "Documents/rss_settings.json")
        self.assertEqual(without(SYSTEM, read), own | self.paths(".config/user-dirs.dirs", "Downloads/feed.rss"))
        # The toolkit saves its settings as the export is saved.
        self.assertEqual(without(DEVICES, written),
                         own | {f"a nameless file in {self.program.file(name)}" for name in ("Desktop", ".config")})
        self.assertLessEqual(without(SYSTEM, listed), self.paths("", "Documents", "Downloads"))

    def paths(self, *names):
        return {str(self.program.file(name)) for name in names}

    def is_export(self, path):
        return path.startswith(str(self.program.file("Desktop/feed.xml")))

    def is_toolkits(self, path):
        return path.startswith(tuple(str(self.program.file(name)) for name in TOOLKIT))


if __name__ == "__main__":
    unittest.main()
