"""A deck in a real window: keys and mouse by xdotool, texts and looks through the accessibility bus, its processes
through /proc. Every deck has a home of its own, by which all processes of its family are found."""
import os
import re
import subprocess
import sys
import time

try:
    import gi

    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib
except (ImportError, ValueError):
    print("skipped: no accessibility bindings")
    sys.exit(77)

FACEPLATE = "Orvanta LX"
CD_DATA = "CD Data"
PLAYLIST = "PGM Playlist Editor"
CD_INFO = "CD Info"
BOX_ROLES = (Atspi.Role.ALERT, Atspi.Role.DIALOG, Atspi.Role.FILE_CHOOSER)


class Fault(Exception):
    """What a person at the deck would call broken."""


def on_a_screen(size="1600x1000x24"):
    """Starts this script anew on a screen and a session bus of its own."""
    if "ORVANTA_ON_A_SCREEN" in os.environ:
        until("the screen", lambda: xdotool("getdisplaygeometry"))
        return
    os.environ["ORVANTA_ON_A_SCREEN"] = "1"
    os.environ.pop("DBUS_SESSION_BUS_ADDRESS", None)
    # Without -noreset the server starts afresh when its last client goes, and refuses the next for a moment.
    screen = f"-screen 0 {size} -dpi 96 -noreset"
    os.execvp("xvfb-run", ["xvfb-run", "-a", "-s", screen, "dbus-run-session", "--", sys.executable, *sys.argv])


def until(what, condition, seconds=15.0, pause=0.05):
    end = time.monotonic() + seconds
    while True:
        found = condition()
        if found:
            return found
        if time.monotonic() > end:
            raise Fault(f"waited {seconds} s in vain for {what}")
        time.sleep(pause)


def xdotool(*words):
    """What it prints, "" when it failed."""
    done = subprocess.run(["xdotool", *map(str, words)], capture_output=True, text=True, timeout=30, check=False)
    return done.stdout if done.returncode == 0 else ""


def read(path):
    try:
        with open(path, "rb") as file:
            return file.read()
    except OSError:
        return b""


def waited_ms(pids):
    """How long their first threads stood in the queue for a processor."""
    return sum(int((read(f"/proc/{pid}/task/{pid}/schedstat").split() or [0, 0])[1]) for pid in pids) / 1e6


def buses():
    """The message buses of this session."""
    numbers = map(int, filter(str.isdigit, os.listdir("/proc")))
    return [pid for pid in numbers if read(f"/proc/{pid}/comm") == b"dbus-daemon\n" and f"DISPLAY={os.environ['DISPLAY']}".encode() in
            read(f"/proc/{pid}/environ").split(b"\0")]


class Deck:
    def __init__(self, build, home, drive, names=("orvanlx",)):
        self.build, self.home, self.drive, self.names = os.path.abspath(build), home, drive, names
        self.data = f"{home}/data/orvanta"
        self.log = f"{home}/log"
        self.wav = f"{home}/heard.wav"
        root = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
        self.env = dict(os.environ, XDG_CONFIG_HOME=home + "/config", XDG_DATA_HOME=home + "/data", XDG_RUNTIME_DIR=home, HOME=home,
                        ORVANTA_TEST_NAMES="1", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", ORVANTA_LOG="sound,device",
                        LSAN_OPTIONS=f"suppressions={root}/tests/lsan.supp")
        self.buses = []
        self.started = []
        self.cache = {}
        subprocess.check_call([self.build + "/bin/lxinit", self.data, drive], env=self.env, stdout=subprocess.DEVNULL)

    # ---- processes

    def start(self, *words):
        with open(self.log, "ab") as log:
            self.started.append(subprocess.Popen([self.build + "/bin/orvanlx", "--audio", "file:" + self.wav, *words], env=self.env,
                                                 stdout=log, stderr=log, cwd=self.home))
        return self.started[-1]

    def reap(self):
        for process in self.started:
            process.poll()

    def pids(self):
        """The living decks of this home."""
        self.reap()
        return [pid for pid in map(int, filter(str.isdigit, os.listdir("/proc"))) if self.is_ours(pid)]

    def is_ours(self, pid):
        try:
            program = os.path.basename(os.readlink(f"/proc/{pid}/exe"))
        except OSError:
            return False
        return program in self.names and f"XDG_RUNTIME_DIR={self.home}".encode() in read(f"/proc/{pid}/environ").split(b"\0")

    def pid(self):
        pids = self.pids()
        return pids[0] if len(pids) == 1 else 0

    def open_files(self, pid):
        folder = f"/proc/{pid}/fd"
        try:
            return [os.readlink(f"{folder}/{number}") for number in os.listdir(folder)]
        except OSError:
            return []

    def children(self, pid):
        found = []
        for other in filter(str.isdigit, os.listdir("/proc")):
            fields = read(f"/proc/{other}/stat").rpartition(b")")[2].split()
            if len(fields) > 1 and int(fields[1]) == pid:
                found.append((read(f"/proc/{other}/comm").decode().strip(), fields[0].decode()))
        return found

    def end(self):
        for process in self.started:
            if process.poll() is None:
                process.kill()
        for pid in self.pids():
            os.kill(pid, 9)

    # ---- what it shows

    def windows(self):
        """The windows that show, as (title, accessible)."""
        pid = self.pid()
        if not pid:
            return []
        try:
            desktop = Atspi.get_desktop(0)
            for i in range(desktop.get_child_count()):
                application = desktop.get_child_at_index(i)
                if application is None or application.get_process_id() != pid:
                    continue
                application.clear_cache()
                children = (application.get_child_at_index(n) for n in range(application.get_child_count()))
                return [(child.get_name(), child) for child in children if child is not None and self.shows(child)]
        except GLib.Error:
            pass
        return []

    @staticmethod
    def shows(node):
        node.clear_cache()
        return node.get_state_set().contains(Atspi.StateType.SHOWING)

    def window(self, title):
        return next((node for name, node in self.windows() if name.startswith(title)), None)

    def boxes(self):
        return [node for _, node in self.windows() if node.get_role() in BOX_ROLES]

    @staticmethod
    def walk(node):
        yield node
        for i in range(node.get_child_count()):
            child = node.get_child_at_index(i)
            if child is not None:
                yield from Deck.walk(child)

    def control(self, name, title=FACEPLATE):
        """A control of a window by its name; None while there is no such window."""
        key = (self.pid(), title)
        try:
            if key not in self.cache or not self.shows(self.cache[key][title]):
                top = self.window(title)
                if top is None:
                    return None
                self.cache[key] = {node.get_description(): node for node in self.walk(top)} | {title: top}
            return self.cache[key].get(name)
        except GLib.Error:
            self.cache.pop(key, None)
            return None

    def says(self, name, title=FACEPLATE):
        """The text of a label or a field; None when it is not there."""
        node = self.control(name, title)
        try:
            if node is None:
                return None
            node.clear_cache()
            if node.get_role() in (Atspi.Role.ENTRY, Atspi.Role.TEXT):
                return Atspi.Text.get_text(node, 0, Atspi.Text.get_character_count(node))
            return node.get_name()
        except GLib.Error:
            return None

    def lit(self, name, title=FACEPLATE):
        node = self.control(name, title)
        try:
            return node is not None and self.shows(node)
        except GLib.Error:
            return False

    def on(self, name, title=FACEPLATE):
        """A key that is lit."""
        node = self.control(name, title)
        try:
            return node is not None and self.shows(node) and node.get_state_set().contains(Atspi.StateType.CHECKED)
        except GLib.Error:
            return False

    def answer_ms(self):
        """How long the window takes to answer, without the time that it, the bus or this process waited for a processor:
        that is the machine's, where tests run side by side."""
        pid = self.pid()
        if not pid or self.control("Label10") is None:
            return 0.0
        self.buses = self.buses or buses()
        threads = [pid, os.getpid(), *self.buses]
        before, start = waited_ms(threads), time.monotonic()
        self.says("Label10")
        return (time.monotonic() - start) * 1000 - (waited_ms(threads) - before)

    # ---- what a person does

    def x_window(self, title=FACEPLATE):
        # CD Data's title names its file too.
        end = " " if title == CD_DATA else "$"
        found = xdotool("search", "--onlyvisible", "--name", f"^{re.escape(title)}{end}").split()
        return found[-1] if found else None

    def key(self, *keys, title=FACEPLATE, delay=12):
        window = self.x_window(title)
        if window:
            xdotool("windowfocus", "--sync", window)
            xdotool("key", "--delay", delay, *keys)

    def place(self, name, title=FACEPLATE, across=0.5, down=0.5):
        """On the screen; None for a control that does not show, or lies under another window."""
        if not self.lit(name, title):
            return None
        try:
            area = self.control(name, title).get_component_iface().get_extents(Atspi.CoordType.SCREEN)
        except GLib.Error:
            return None
        x, y = round(area.x + area.width * across), round(area.y + area.height * down)
        return None if self.covered(x, y, title) else (x, y)

    def covered(self, x, y, title):
        """Another window of the deck lies there, or may: nobody presses what they do not see."""
        try:
            areas = [node.get_component_iface().get_extents(Atspi.CoordType.SCREEN) for name, node in self.windows() if not name.startswith(title)]
        except GLib.Error:
            return True
        return any(area.x <= x < area.x + area.width and area.y <= y < area.y + area.height for area in areas)

    def click(self, name, title=FACEPLATE, button=1, times=1, **where):
        place = self.place(name, title, **where)
        if place:
            xdotool("mousemove", *place, "click", "--repeat", times, "--delay", 30, button)
        return place is not None

    def hold(self, name, seconds, release=None, title=FACEPLATE, **where):
        """Presses, waits, lets go: there, or on a control elsewhere, by way of a few places between."""
        start = self.place(name, title, **where)
        end = self.place(release, title) if release else start
        if not start or not end:
            return False
        xdotool("mousemove", *start, "mousedown", 1)
        time.sleep(seconds)
        for step in range(1, 5) if end != start else ():
            xdotool("mousemove", *(round(a + (b - a) * step / 4) for a, b in zip(start, end)))
        xdotool("mouseup", 1)
        return True

    def drop(self, path):
        """Drags a file out of another window onto the deck. What the deck made of it: copy, move or none. One that it took
        is in its tray afterwards, or refused in a box."""
        before = self.put_in()
        target = self.place(FACEPLATE, across=0.5, down=0.3)
        if not target:
            return "none"
        source = subprocess.Popen([self.build + "/bin/drag_source", "1500", "900", path], env=self.env, stdout=subprocess.PIPE, text=True)
        try:
            until("the drag's source", lambda: xdotool("search", "--onlyvisible", "--name", "^drag source$"))
            xdotool("mousemove", 1520, 920, "mousedown", 1)
            for way in (0.02, 0.1, 0.5, 1, 1):
                time.sleep(0.08)
                xdotool("mousemove", *(round(a + (b - a) * way) for a, b in zip((1520, 920), target)))
            time.sleep(0.15)
            xdotool("mouseup", 1)
            taken = source.communicate(timeout=10)[0].strip() or "none"
        except (Fault, subprocess.TimeoutExpired):
            return "none"
        finally:
            xdotool("mouseup", 1)
            if source.poll() is None:
                source.kill()
        if taken == "copy":
            until("the deck's answer to a drop", lambda: self.put_in() > before or self.boxes() or not self.pid())
        return taken

    def put_in(self):
        """How many times its tray was closed."""
        return read(self.log).count(b"close at frame")
