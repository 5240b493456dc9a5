"""The real program on a screen of its own, under keys and mouse.

    with drive.Screen() as screen, drive.Program(screen, build) as program:
        program.start("LANGUAGE=Tv\\Czech")
        program.wait_window("frmmain")
        program.click("frmmain", "cmdvytvor")

All that is done is done by xdotool. Where to click, and what came of it, tells the watcher, a plugin in the program
that only looks (watcher.h). A step waits until what it needs is there; it never sleeps for a fixed time.
"""

import contextlib
import ctypes
import json
import os
import pathlib
import shutil
import signal
import socket
import struct
import subprocess
import tempfile
import time
import zlib

DATA = pathlib.Path(__file__).resolve().parent.parent.parent / "Bfdata"

STEP = 30  # seconds that one step may take on a slow machine
PAUSE = 0.03  # seconds between two looks


class Failed(Exception):
    """A step that did not come true."""


def _end_with_parent():
    ctypes.CDLL(None).prctl(1, signal.SIGTERM)  # PR_SET_PDEATHSIG: nothing is left behind, whatever ends this process


def _spawn(command, **options):
    return subprocess.Popen(command, stdin=subprocess.DEVNULL, preexec_fn=_end_with_parent, **options)


def _stop(process):
    if process is None or process.poll() is not None:
        return
    process.terminate()
    try:
        process.wait(5)
    except subprocess.TimeoutExpired:
        process.kill()
        process.wait()


def wait_until(predicate, what, timeout=STEP):
    """Waits until predicate() is true and returns what it gave."""
    end = time.monotonic() + timeout
    while True:
        found = predicate()
        if found:
            return found
        if time.monotonic() > end:
            raise Failed(f"{what}: not within {timeout} s")
        time.sleep(PAUSE)


class Screen:
    """A screen without a monitor, with a small window manager, and the keyboard of an author who writes Czech."""

    def __init__(self, width=1280, height=1024):
        self._folder = tempfile.TemporaryDirectory(prefix="tarvelin-screen-")
        self._size = (width, height)
        self._processes = []
        self.display = None

    def __enter__(self):
        try:
            self._open()
        except BaseException:
            self.__exit__()
            raise
        return self

    def _open(self):
        for tool in ("Xvfb", "openbox", "xdotool", "setxkbmap"):
            if not shutil.which(tool):
                raise Failed(f"{tool} is not installed")
        reader, writer = os.pipe()
        self._processes.append(
            _spawn(["Xvfb", "-displayfd", str(writer), "-screen", "0", "%dx%dx24" % self._size, "-dpi", "96",
                    "-fbdir", self._folder.name, "-nolisten", "tcp", "-noreset"],
                   pass_fds=[writer], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
        os.close(writer)
        with os.fdopen(reader) as answer:
            number = answer.readline().strip()
        if not number:
            raise Failed("Xvfb did not start")
        self.display = ":" + number
        subprocess.run(["setxkbmap", "-layout", "us,cz", "-variant", ",ucw"], env=self.environment(), check=True)
        self._processes.append(_spawn(["openbox", "--sm-disable"], env=self.environment(),
                                      stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
        wait_until(lambda: self._tool("get_num_desktops").returncode == 0, "the window manager")

    def __exit__(self, *_):
        for process in reversed(self._processes):
            _stop(process)
        self._folder.cleanup()

    def environment(self):
        """What a program on this screen gets: nothing of the one who calls, but for the way to the tools."""
        home = self._folder.name
        return {"PATH": os.environ["PATH"], "HOME": home, "DISPLAY": self.display, "LC_ALL": "C.UTF-8",
                "XDG_RUNTIME_DIR": home, "XDG_CACHE_HOME": home + "/cache", "XDG_CONFIG_HOME": home + "/config"}

    def _tool(self, *arguments):
        return subprocess.run(["xdotool", *map(str, arguments)], env=self.environment(), capture_output=True, text=True,
                              timeout=STEP)

    def do(self, *arguments):
        """One command of xdotool."""
        done = self._tool(*arguments)
        if done.returncode != 0:
            raise Failed(f"xdotool {' '.join(map(str, arguments))}: {done.stderr.strip()}")

    def focused(self):
        """The window that the screen sends the keys to."""
        told = self._tool("getwindowfocus", "-f").stdout.strip()
        return int(told) if told.isdigit() else 0

    def screenshot(self, path):
        """The whole screen as a PNG, from the memory of the screen itself."""
        data = (pathlib.Path(self._folder.name) / "Xvfb_screen0").read_bytes()
        header = struct.unpack(">25I", data[:100])
        start, width, height, line, colours = header[0], header[4], header[5], header[12], header[19]
        start += 12 * colours
        rows = bytearray()
        for y in range(height):
            pixels = data[start + y * line:start + y * line + 4 * width]  # blue, green, red, nothing
            row = bytearray(3 * width)
            row[0::3], row[1::3], row[2::3] = pixels[2::4], pixels[1::4], pixels[0::4]
            rows += b"\0" + row

        def chunk(kind, body):
            return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))

        path = pathlib.Path(path)
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">2I5B", width, height, 8, 2, 0, 0, 0)) +
                         chunk(b"IDAT", zlib.compress(bytes(rows), 6)) + chunk(b"IEND", b""))


class _Adopted:
    """A process that another one left behind, for which its subreaper waits."""

    def __init__(self, pid):
        self.pid = pid
        self.returncode = None

    def poll(self):
        if self.returncode is None:
            with contextlib.suppress(ChildProcessError):  # its parent is still there
                ended, status = os.waitpid(self.pid, os.WNOHANG)
                if ended:
                    self.returncode = os.waitstatus_to_exitcode(status)
        return self.returncode

    def wait(self, timeout=STEP):
        end = time.monotonic() + timeout
        while self.poll() is None:
            if time.monotonic() > end:
                raise subprocess.TimeoutExpired(str(self.pid), timeout)
            time.sleep(PAUSE)
        return self.returncode

    def terminate(self):
        os.kill(self.pid, signal.SIGTERM)

    def kill(self):
        os.kill(self.pid, signal.SIGKILL)


class Program:
    """The program in a folder of its own, as somebody has it who unpacked it there, with an empty home."""

    def __init__(self, screen, build, pictures=None):
        self.screen = screen
        self.build = pathlib.Path(build).resolve()
        self.pictures = pathlib.Path(pictures) if pictures else self.build / "drive"
        self._scratch = tempfile.TemporaryDirectory(prefix="tarvelin-drive-")
        self.scratch = pathlib.Path(self._scratch.name)
        self.home = self.scratch / "home"
        self.folder = self.scratch / "Tarvelin"
        self.process = None
        self._watcher = self.scratch / "watcher.socket"
        self._caller = None
        self._asked = None

    def __enter__(self):
        self.home.mkdir()
        self.folder.mkdir()
        shutil.copy2(self.build / "tarvelin", self.folder)
        shutil.copytree(DATA, self.folder / "Bfdata")  # that of the build may have been worked with
        (self.scratch / "run").mkdir(mode=0o700)
        return self

    def __exit__(self, kind, error, _):
        if isinstance(error, Exception):
            picture = self.pictures / "failed.png"
            with contextlib.suppress(Exception):
                self.screenshot(picture)
                print(f"the screen at the failure: {picture}", flush=True)
            with contextlib.suppress(Exception):
                print("windows: " + ", ".join(f"{w['name'] or w['class']} {w['title']!r}" for w in self.windows()))
            print("what the program said: " + self.said(), flush=True)
        self.close()
        self._scratch.cleanup()

    # Its life.

    def start(self, *arguments):
        """Starts the program; returns the steady clock's time of it, in milliseconds."""
        self.close()
        with open(self.scratch / "said", "ab") as said:
            started = time.monotonic() * 1000
            self.process = _spawn([str(self.folder / "tarvelin"), *map(str, arguments)], cwd=self.home,
                                  env=self.environment(), stdout=said, stderr=said)
        self._attend(self._alive)
        return started

    def start_through(self, *command):
        """Starts the program by another one, such as a file manager's opener. Whoever calls this must be a subreaper."""
        self.close()
        with open(self.scratch / "said", "ab") as said:
            _spawn([*map(str, command)], cwd=self.home, env=self.environment(), stdout=said, stderr=said).wait(STEP)
        self._attend(lambda: True)
        peer = self._caller.getsockopt(socket.SOL_SOCKET, socket.SO_PEERCRED, struct.calcsize("3i"))
        self.process = _Adopted(struct.unpack("3i", peer)[0])

    def environment(self):
        """What the program and those that start it get."""
        return self.screen.environment() | {
            "HOME": str(self.home), "XDG_RUNTIME_DIR": str(self.scratch / "run"),
            "XDG_CONFIG_HOME": str(self.home / ".config"), "XDG_DATA_HOME": str(self.home / ".local/share"),
            "XDG_CACHE_HOME": str(self.home / ".cache"), "QT_QPA_PLATFORM": "xcb",
            "QT_PLUGIN_PATH": str(self.build / "watcher"), "QT_QPA_GENERIC_PLUGINS": f"watcher:{self._watcher}"}

    def _attend(self, alive):
        wait_until(lambda: alive() and self._watcher.exists(), "the watcher's socket")
        self._caller = socket.socket(socket.AF_UNIX)
        self._caller.settimeout(STEP)
        wait_until(lambda: self._caller.connect_ex(str(self._watcher)) == 0, "the watcher")
        self._asked = self._caller.makefile("rwb")

    def first_start(self, language, answers):
        """Starts the program for the first time: chooses the language pack and gives each prompt its answer by its
        question; without one Enter alone."""
        self.start()
        self.wait_window("frmloadsite")
        self.select_row("frmloadsite", "List1", language)
        self.click("frmloadsite", "Command1")
        asked = []

        def question():
            label = self.widget("QInputDialog", "QLabel")
            return label["text"] if label and label["text"] not in asked else None

        for _ in range(2):  # the name and the address
            asked.append(wait_until(question, "a prompt"))
            self.wait_focus("QInputDialog", "QLineEdit")
            answer = answers.get(asked[-1], "")
            self.type_keys(answer)
            self.wait_text("QInputDialog", "QLineEdit", answer)
            self.key("Return")
        self.wait_gone("QInputDialog")
        return asked

    def wait_end(self):
        """Waits for the program to end by itself; returns its status."""
        try:
            return self.process.wait(STEP)
        except subprocess.TimeoutExpired:
            raise Failed("the program does not end") from None
        finally:
            self._hang_up()

    def close(self):
        self._hang_up()
        _stop(self.process)
        self.process = None
        self._watcher.unlink(missing_ok=True)

    def said(self):
        """What all runs wrote to their outputs."""
        said = self.scratch / "said"
        return said.read_text(errors="replace") if said.exists() else ""

    def _hang_up(self):
        for end in (self._asked, self._caller):
            if end:
                with contextlib.suppress(OSError):
                    end.close()
        self._asked = self._caller = None

    def _alive(self):
        if self.process.poll() is not None:
            raise Failed(f"the program ended with status {self.process.returncode}")
        return True

    # What is on the screen.

    def ask(self, **question):
        try:
            self._asked.write(json.dumps(question).encode() + b"\n")
            self._asked.flush()
            return json.loads(self._asked.readline())
        except (OSError, ValueError, AttributeError) as error:
            with contextlib.suppress(subprocess.TimeoutExpired, AttributeError):
                self.process.wait(1)
                raise Failed(f"the program ended with status {self.process.returncode}") from error
            raise Failed("the program does not answer") from error

    def windows(self):
        return self.ask(ask="windows")["windows"]

    def window(self, name):
        """The window of that name or class as the watcher tells it; None when it is not on the screen."""
        return self.ask(ask="window", name=name) or None

    def wait_window(self, name, active=True):
        """Waits until the window is painted and takes the keys."""
        def there():
            window = self.window(name)
            return window if window and window["painted"] and (not active or self._takes_keys(window)) else None
        return wait_until(there, f"window {name}")

    def _takes_keys(self, window):
        """The window has the keys, says the program and says the screen: they differ while windows come and go."""
        return window is not None and window["active"] and self.screen.focused() == window["id"]

    def wait_gone(self, name):
        wait_until(lambda: self.window(name) is None, f"window {name} to go")

    def widget(self, window, name):
        """A widget as the watcher tells it: by its name, or a button of a message box by the number of its kind, or the
        first of a class. None when it is not on the screen."""
        told = self.window(window)
        for widget in told["widgets"] if told else []:
            if name in (widget["name"], widget["class"]) or name == widget.get("standard"):
                return widget
        return None

    def wait_widget(self, window, name, is_so=lambda widget: True, what="to be there"):
        def so():
            widget = self.widget(window, name)
            return widget if widget and is_so(widget) else None
        try:
            return wait_until(so, f"{window}.{name} {what}")
        except Failed as error:
            raise Failed(f"{error}; it is {self.widget(window, name)}") from None

    def wait_text(self, window, name, text):
        self.wait_widget(window, name, lambda widget: widget.get("text") == text, f"to read {text!r}")

    def wait_checked(self, window, name, checked=True):
        self.wait_widget(window, name, lambda widget: widget.get("checked") == checked, f"to be {checked}")

    def wait_focus(self, window, name):
        self.wait_widget(window, name, lambda widget: widget["focus"] and self._takes_keys(self.window(window)),
                         "to have the keys")

    # What a person does.

    def screenshot(self, path):
        self.screen.screenshot(path)

    def key(self, *keys):
        self.screen.do("key", "--delay", 2, *keys)

    def key_held(self, held, key):
        """Presses a key while another is held until after it."""
        self.screen.do("keydown", held, "key", key, "keyup", held)

    def type_keys(self, text):
        """Types to whatever has the keys."""
        for number, line in enumerate(text.split("\n")):
            if number:
                self.key("Return")
            if line:
                self.screen.do("type", "--delay", 2, "--", line)

    def click_at(self, rect, times=1, button=1):
        left, top, width, height = rect
        if width <= 0 or height <= 0:
            raise Failed(f"nothing to click at in {rect}")
        self.screen.do("mousemove", left + width // 2, top + height // 2,
                       "click", "--repeat", times, "--delay", 20, button)

    def click(self, window, name, times=1):
        """Clicks once the widget can be used."""
        widget = self.wait_widget(window, name, lambda widget: widget["enabled"] and widget["rect"][2] > 0,
                                  "to be usable")
        left, top, width, height = widget["rect"]
        if widget["class"] in ("QCheckBox", "QRadioButton"):
            width = min(width, 24)  # beyond its words it takes no click
        self.click_at([left, top, width, height], times)

    def double_click(self, window, name):
        self.click(window, name, 2)

    def check(self, window, name, checked=True):
        """Sets a check or an option with a click."""
        if self.wait_widget(window, name)["checked"] != checked:
            self.click(window, name)
        self.wait_checked(window, name, checked)

    def type_text(self, window, name, text):
        """Replaces the text of a field: a click into it, its text chosen and deleted, the new one typed."""
        self.click(window, name)
        self.wait_focus(window, name)
        line = self.widget(window, name)["class"] == "QLineEdit"
        all_of_it = ("Home", "shift+End") if line else ("ctrl+Home", "ctrl+shift+End")
        self.key(*all_of_it, "Delete")  # no Ctrl+A: some fields have a use of their own for it
        self.wait_text(window, name, "")
        self.type_keys(text)
        self.wait_text(window, name, text)

    def choose_menu(self, window, menu, entry):
        bar = self.wait_widget(window, "QMenuBar")
        self.click_at(self._entry(bar, menu)["rect"])
        self.click_at(self._entry(self.wait_widget(menu, menu), entry)["rect"])
        self.wait_gone(menu)

    @staticmethod
    def _entry(menu, name):
        found = [entry for entry in menu["entries"] if entry["name"] == name]
        if not found:
            raise Failed(f"no {name} among {[entry['name'] for entry in menu['entries']]}")
        return found[0]

    def tab_bar(self, window, strip):
        for widget in (self.window(window) or {"widgets": []})["widgets"]:
            if widget["class"] == "QTabBar" and widget["parent"] == strip:
                return widget
        return None

    def select_tab(self, window, strip, tab):
        """Brings the page to the front, counted from 0."""
        bar = wait_until(lambda: self.tab_bar(window, strip), f"the tabs of {window}.{strip}")
        self.click_at(bar["tabs"][tab]["rect"])
        wait_until(lambda: self.tab_bar(window, strip)["tabs"][tab]["current"], f"page {tab} of {window}.{strip}")

    def row(self, window, name, text):
        """A row of a list, a tree or an open combo by its text, scrolled into sight with the wheel."""
        def seen():
            widget = self.widget(window, name) or {}
            rows = widget.get("rows", [])
            place = next((place for place, row in enumerate(rows) if row["text"] == text), None)
            if place is None or "rect" in rows[place]:
                return rows[place] if place is not None else None
            if widget["class"] != "QComboBox":
                above = any("rect" in row for row in rows[place + 1:])
                self.click_at(widget["rect"], button=4 if above else 5)
            return None
        return wait_until(seen, f"row {text!r} of {window}.{name}")

    def select_row(self, window, name, text, times=1):
        """Clicks a row; a combo is opened first."""
        if "open" in self.wait_widget(window, name):
            self.click(window, name)
            row = self.row(window, name, text)
            self.click_at(row["rect"])
            self.wait_text(window, name, text)
            return
        row = self.row(window, name, text)
        self.click_at(row["rect"], times)
