"""A desktop of the tests' own, and the program at work on it: started in a home of its own, read
through the accessibility tree, worked with real keys and a real mouse."""

import os
import pathlib
import signal
import subprocess
import tempfile
import time
import unittest

# How long anything may take that the program is to do.
SECONDS = 60

# The longest text in a message, in characters: what is waited for may hold a whole field.
MOST_OF_A_MESSAGE = 500

# Roles whose nodes are not searched for children: each question to the tree costs time.
CHILDLESS = {"push button", "heading", "label", "text", "spin button", "scroll bar", "menu item", "tool tip"}

# Settings of the user's own desktop, which the program is not to see.
FOREIGN_SETTINGS = ("XDG_", "QT_", "QML", "QSG_", "LC_", "LANG")


def wait_for(condition, what, seconds=SECONDS):
    """The condition's first true result; fails with a sentence when there is none in time."""
    end = time.monotonic() + seconds
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise AssertionError(f"waited {seconds} seconds in vain: {what[:MOST_OF_A_MESSAGE]}")
        time.sleep(0.02)


class Display:
    """A virtual screen with a window manager."""

    # The next number to try. Far from other processes' numbers: a server that ends takes the socket
    # of one that has just begun under the same number with it.
    number = 100 + os.getpid() % 50000

    def __init__(self, width=1200, height=960):
        self.server = self.manager = None
        try:
            wait_for(lambda: self.start_server(width, height), "a virtual screen")
            os.environ["DISPLAY"] = self.name
            self.start_manager()
        except BaseException:
            self.close()
            raise

    def start_server(self, width, height):
        """Whether a server runs under the next number. It does not start anew when the last program
        leaves it: one that comes at that moment would be sent away."""
        self.name = f":{Display.number}"
        Display.number += 1
        reading, writing = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", self.name, "-displayfd", str(writing), "-screen", "0", f"{width}x{height}x24",
             "-nolisten", "tcp", "-noreset"],
            pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as ready:
            if ready.readline():
                return True
        self.server.wait()
        return False

    def start_manager(self):
        """Without a window manager no window is given the keys."""
        self.manager = subprocess.Popen(["openbox", "--sm-disable"])
        wait_for(self.manager_is_there, "the window manager")

    def manager_is_there(self):
        if self.manager.poll() is not None:
            raise AssertionError(f"the window manager ended with {self.manager.returncode}")
        found = subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], capture_output=True, text=True)
        return "window id" in found.stdout

    def close(self):
        for process in (self.manager, self.server):
            if process:
                process.terminate()
                process.wait()


class Program:
    """The program in a home of its own, which outlives it: start() may be called again."""

    def __init__(self, path):
        self.command = [path]
        self.folder = tempfile.TemporaryDirectory(prefix="tavlo-e2e-")
        self.home = pathlib.Path(self.folder.name)
        (self.home / "runtime").mkdir(mode=0o700)
        self.environment = {key: value for key, value in os.environ.items()
                            if not key.startswith(FOREIGN_SETTINGS)}
        self.environment |= {
            "HOME": str(self.home),
            "XDG_CONFIG_HOME": str(self.home / ".config"),
            "XDG_CACHE_HOME": str(self.home / ".cache"),
            "XDG_DATA_HOME": str(self.home / ".local/share"),
            "XDG_STATE_HOME": str(self.home / ".local/state"),
            "XDG_RUNTIME_DIR": str(self.home / "runtime"),
            "LC_ALL": "C.UTF-8",
            "TZ": "UTC",
            "QT_QPA_PLATFORM": "xcb",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "QSG_RENDER_LOOP": "basic",
            # For a build with sanitizers: the display's driver leaves some bytes behind, and is no
            # longer there to be named when leaks are looked for.
            "ASAN_OPTIONS": os.environ.get("ASAN_OPTIONS", "") + ":detect_leaks=0",
        }
        self.process = None
        # The screen's points to one of the window's; the tree counts the window's.
        self.scale = 1

    def file(self, name):
        return self.home / name

    def start(self):
        self.begin()
        self.wait_for_start()

    def begin(self):
        self.process = subprocess.Popen(
            self.command, env=self.environment | {"DISPLAY": os.environ.get("DISPLAY", "")}, cwd=self.home,
            stdout=subprocess.PIPE, stderr=subprocess.PIPE)

    def wait_for_start(self):
        self.window = wait_for(self.find_window, "the program's window")
        wait_for(lambda: self.find(role="push button", name="New Post"), "the window's accessibility tree")

    def find_window(self):
        if self.process.poll() is not None:
            raise AssertionError(f"the program ended: {self.process.stderr.read().decode()}")
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(self.process.pid)],
                               capture_output=True, text=True).stdout.split()
        return found[-1] if found else None

    def close_window(self):
        """Closes the window by the window manager's key; what the program printed."""
        self.keys("alt+F4")
        return self.wait_for_end()

    def wait_for_end(self):
        try:
            output, errors = self.process.communicate(timeout=SECONDS)
        except subprocess.TimeoutExpired:
            self.process.kill()
            raise AssertionError("the program did not end with its window")
        self.process = None
        return output.decode(), errors.decode()

    def end(self):
        if self.process:
            self.process.send_signal(signal.SIGKILL)
            self.process.communicate()
        self.folder.cleanup()

    # Reading the screen

    def application(self):
        import pyatspi
        for application in pyatspi.Registry.getDesktop(0):
            if application and self.process and application.get_process_id() == self.process.pid:
                return application
        return None

    def nodes(self):
        """The nodes of the accessibility tree that are showing, from the window down."""
        return (node for node, _ in self.nodes_and_roles())

    def nodes_and_roles(self):
        def walk(node):
            try:
                role = node.getRoleName()
                yield node, role
                children = [] if role in CHILDLESS else list(node)
            except Exception:  # the node went while it was read
                return
            for child in children:
                if child and showing(child):
                    yield from walk(child)
        application = self.application()
        return walk(application) if application else iter(())

    def matches(self, role=None, name=None):
        for node, node_role in self.nodes_and_roles():
            try:
                if (role is None or node_role == role) and (name is None or node.name == name):
                    yield node
            except Exception:  # the node went while it was read
                continue

    def find_all(self, role=None, name=None):
        """The showing nodes of that role and name, from the window down."""
        return list(self.matches(role, name))

    def find(self, role=None, name=None):
        """The first showing node of that role and name, or nothing."""
        return next(self.matches(role, name), None)

    def wait_for(self, role=None, name=None):
        return wait_for(lambda: self.find(role, name), f"{role or 'node'} {name!r} on the screen")

    def wait_for_state(self, state, role=None, name=None, holds=True):
        """Waits until the node of that role and name has a state ("focused"), or has it no more."""
        def node_in_state():
            node = self.find(role, name)
            return node if node and has_state(node, state) == holds else None
        return wait_for(node_in_state, f"{role or 'node'} {name!r} to be {'' if holds else 'not '}{state}")

    def wait_for_text(self, name, text):
        """Waits until the field of that name holds exactly a text."""
        wait_for(lambda: self.text_of(name) == text, f"the field {name!r} to hold {text!r}")

    def text_of(self, name):
        """What the field of that name holds, or None if there is no such field."""
        field = self.find("text", name)
        try:
            text = field.queryText().getText(0, -1) if field else None
        except Exception:  # the node went while it was read
            return None
        # A field of several lines tells its line breaks as paragraph separators.
        return text.replace("\u2029", "\n") if text and has_state(field, "multi_line") else text

    def wait_until_gone(self, role=None, name=None):
        wait_for(lambda: not self.find(role, name), f"{role or 'node'} {name!r} to go")

    def tree(self):
        lines = []

        def walk(node, depth):
            try:
                states = " ".join(str(state) for state in node.getState().getStates())
                name = node.name[:MOST_OF_A_MESSAGE]
                lines.append(f"{'  ' * depth}{node.getRoleName()} {name!r} {node.description!r} {states}")
                children = list(node)
            except Exception:  # the node went, or the program is too busy to say
                lines.append(f"{'  ' * depth}?")
                return
            for child in children:
                if child:
                    walk(child, depth + 1)
        application = self.application()
        if application:
            walk(application, 0)
        return "\n".join(lines)

    # Working the window

    def keys(self, *keys):
        """Presses keys, one after the other, on whatever has the focus."""
        subprocess.run(["xdotool", "key", "--delay", "15", *keys], check=True)

    def type(self, text):
        """Types a text that a keyboard has keys for; a line break by Return."""
        for number, line in enumerate(text.split("\n")):
            if number:
                self.keys("Return")
            if line:
                subprocess.run(["xdotool", "type", "--delay", "15", "--", line], check=True)

    def paste(self, text):
        """Puts a text that a keyboard cannot type into the focused field, in place of the selection."""
        subprocess.run(["xclip", "-selection", "clipboard"], input=text.encode(), check=True,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.keys("ctrl+v")

    def fill(self, name, text):
        """Puts a text into the field of that name, in place of what is there."""
        self.click(self.wait_for("text", name))
        self.wait_for_state("focused", "text", name)
        self.keys("ctrl+a")
        if not text:
            self.keys("Delete")
        elif text.isascii() and text.isprintable():
            self.type(text)
        else:
            self.paste(text)
        self.wait_for_text(name, text)

    def point_at(self, node):
        """Moves the mouse to a node's middle, once the node has come to rest."""
        box = wait_for(lambda: box_at_rest(node), "a node to come to rest")
        x, y = (box.x + box.width // 2) * self.scale, (box.y + box.height // 2) * self.scale
        subprocess.run(["xdotool", "mousemove", str(x), str(y)], check=True)

    def click(self, node, button=1, times=1):
        self.point_at(node)
        subprocess.run(["xdotool", "click", "--repeat", str(times), "--delay", "40", str(button)], check=True)

    def press(self, name):
        """Clicks the button of that name."""
        self.click(self.wait_for("push button", name))

    def screenshot(self, path):
        subprocess.run(["import", "-window", "root", str(path)], check=False)


def has_state(node, state):
    """Whether a node is in a state, "focused" say. One that went while it was read is in none."""
    import pyatspi
    try:
        return node.getState().contains(getattr(pyatspi, f"STATE_{state.upper()}"))
    except Exception:
        return False


def showing(node):
    return has_state(node, "showing")


def box_of(node):
    """Where a node is on the screen."""
    import pyatspi
    return node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)


def box_at_rest(node):
    """Where a node is on the screen, or nothing while it moves or the program is too busy to say."""
    try:
        before = box_of(node)
        time.sleep(0.04)
        after = box_of(node)
    except Exception:
        return None
    same = (before.x, before.y, before.height) == (after.x, after.y, after.height)
    return after if same and after.width > 0 else None


class ProgramTest(unittest.TestCase):
    """A story told with a program in a fresh home. A failure leaves a screenshot and the tree."""

    maxDiff = None
    program_path = os.environ["TAVLO_PROGRAM"]
    remains = pathlib.Path(os.environ["TAVLO_REMAINS"])

    @classmethod
    def setUpClass(cls):
        cls.display = Display()

    @classmethod
    def tearDownClass(cls):
        cls.display.close()

    def setUp(self):
        self.program = Program(self.program_path)
        self.addCleanup(self.program.end)

    def _callTestMethod(self, method):
        try:
            method()
        except unittest.SkipTest:
            raise
        except Exception:
            self.leave_remains()
            raise

    def leave_remains(self):
        self.remains.mkdir(parents=True, exist_ok=True)
        picture, tree = (self.remains / f"{self.id()}.{ending}" for ending in ("png", "txt"))
        self.program.screenshot(picture)
        tree.write_text(self.program.tree())
        print(f"The screen is in {picture}, the accessibility tree in {tree}")
