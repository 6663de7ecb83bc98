"""A screen, a sound server, homes and a disc for the benchmark; a player under measurement; an ear at the sound server."""
import array
import contextlib
import os
import signal
import subprocess
import threading
import time
import wave

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
RATE = 44100
TRACKS = 12
SECONDS = 60


def tasks(pid):
    for task in os.listdir(f"/proc/{pid}/task"):
        yield f"/proc/{pid}/task/{task}/"


def text_of(path):
    with contextlib.suppress(OSError), open(path, encoding="ascii", errors="replace") as file:
        return file.read()
    return ""


def cpu_seconds(pid):
    """Of every thread that lives, to the nanosecond."""
    return sum(int((text_of(task + "schedstat") or "0").split()[0]) for task in tasks(pid)) / 1e9


def switches(pid):
    return sum(int(line.split()[1]) for task in tasks(pid) for line in text_of(task + "status").splitlines() if "ctxt_switches" in line)


def memory(pid, kind):
    return next(int(line.split()[1]) / 1024 for line in text_of(f"/proc/{pid}/smaps_rollup").splitlines() if line.startswith(kind))


def pss(pid):
    """Of what processes share each has its part."""
    return memory(pid, "Pss:")


def own(pid):
    return memory(pid, "Private_Dirty:")


def mapped_files(pid):
    return {line.split(maxsplit=5)[5] for line in text_of(f"/proc/{pid}/maps").splitlines() if len(line.split(maxsplit=5)) == 6}


def forget(files):
    """Out of the system's memory: read from the disk when next used."""
    for name in files:
        with contextlib.suppress(OSError):
            file = os.open(name, os.O_RDONLY)
            os.posix_fadvise(file, 0, 0, os.POSIX_FADV_DONTNEED)
            os.close(file)


class Rig:
    """Every second of every track has a level of its own, so that a skip can be heard to the sample."""

    def __init__(self, folder, programs):
        self.folder, self.drive = folder, folder + "/drive"
        os.chmod(folder, 0o755)  # for a player that refuses to be root
        os.makedirs(self.drive)
        self.tracks = self.make_disc()
        self.running = []
        read, write = os.pipe()
        self.running.append(subprocess.Popen(["Xvfb", "-displayfd", str(write), "-ac", "-noreset", "-screen", "0", "1400x900x24", "-dpi", "96"],
                                             pass_fds=[write], stderr=subprocess.DEVNULL))
        display = ":" + os.read(read, 16).decode().strip()
        socket = folder + "/pulse.socket"
        self.env = dict(os.environ, DISPLAY=display, PULSE_SERVER="unix:" + socket, QT_QPA_PLATFORM="xcb", LC_ALL="C.UTF-8")
        self.env.pop("WAYLAND_DISPLAY", None)
        self.running.append(subprocess.Popen(
            ["pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no",
             f"--load=module-native-protocol-unix socket={socket} auth-anonymous=1", "--load=module-null-sink sink_name=speakers"],
            env=dict(self.env, XDG_RUNTIME_DIR=folder, XDG_CONFIG_HOME=folder, HOME=folder), stderr=subprocess.DEVNULL))
        while subprocess.run(["pactl", "info"], env=self.env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False).returncode != 0:
            time.sleep(.05)
        self.programs = programs
        self.set_up(self.home_of("deck"), self.drive)

    def set_up(self, home, drive):
        subprocess.check_call([self.programs + "/lxinit", home["XDG_DATA_HOME"] + "/orvanta", drive], env=home)

    def another_drive(self, name):
        drive = self.drive + name
        os.makedirs(drive)
        for file in ("disc.bin", "disc.cue"):
            os.link(f"{self.drive}/{file}", f"{drive}/{file}")
        return drive

    def home_of(self, name):
        home = f"{self.folder}/{name}"
        os.makedirs(home + "/run", mode=0o777, exist_ok=True)
        env = dict(self.env, HOME=home, XDG_CONFIG_HOME=home + "/c", XDG_DATA_HOME=home + "/d", XDG_CACHE_HOME=home + "/k", XDG_RUNTIME_DIR=home + "/run")
        for folder in (home, env["XDG_CONFIG_HOME"], env["XDG_DATA_HOME"], env["XDG_CACHE_HOME"]):
            os.makedirs(folder, exist_ok=True)
            os.chmod(folder, 0o777)
        os.chmod(home + "/run", 0o700)
        return env

    def make_disc(self):
        names = []
        sheet = 'FILE "disc.bin" BINARY\n'
        with open(self.drive + "/disc.bin", "wb") as disc:
            for track in range(TRACKS):
                sheet += f"  TRACK {track + 1:02} AUDIO\n    INDEX 01 {track * SECONDS // 60:02}:{track * SECONDS % 60:02}:00\n"
                sound = b""
                for second in range(SECONDS):
                    level = 3000 + 700 * track + 20 * second
                    sound += array.array("h", ([level] * 100 + [-level] * 100) * (RATE // 100)).tobytes()
                disc.write(sound)
                names.append(f"{self.folder}/track{track + 1:02}.wav")
                with wave.open(names[-1], "wb") as file:
                    file.setparams((2, 2, RATE, 0, "NONE", ""))
                    file.writeframes(sound)
        with open(self.drive + "/disc.cue", "w", encoding="ascii") as file:
            file.write(sheet)
        return names

    def __enter__(self):
        return self

    def __exit__(self, *_):
        for process in reversed(self.running):
            process.terminate()
            process.wait()


class Player:
    def __init__(self, rig, name, command, disc):
        self.rig, self.name, self.command, self.disc = rig, name, command, disc
        self.env = rig.home_of(name.split()[0])
        self.process = None
        self.files = set()
        if name == "vlc" and os.geteuid() == 0:
            os.chown(self.env["XDG_RUNTIME_DIR"], 65534, 65534)
            self.command = ["setpriv", "--reuid=65534", "--regid=65534", "--clear-groups", *command]

    @contextlib.contextmanager
    def started(self, play=True):
        self.process = subprocess.Popen([*self.command, *(self.disc if play else [])], env=self.env, stdin=subprocess.DEVNULL,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            yield self.process
        finally:
            self.process.send_signal(signal.SIGTERM)
            with contextlib.suppress(subprocess.TimeoutExpired):
                self.process.wait(5)
            self.process.kill()
            self.process.wait()

    def tool(self, *words):
        return subprocess.run(["xdotool", *words], env=self.rig.env, check=False, capture_output=True, text=True, timeout=20).stdout

    def window(self):
        """The largest on the screen, once there is one: some players have small ones that nobody sees."""
        sizes = {}
        until = time.monotonic() + 15
        while not sizes and time.monotonic() < until:
            time.sleep(.3)
            for window in self.tool("search", "--onlyvisible", "--name", ".").split():
                shell = dict(line.split("=") for line in self.tool("getwindowgeometry", "--shell", window).splitlines())
                sizes[int(shell.get("WIDTH", 0)) * int(shell.get("HEIGHT", 0))] = window
        if not sizes:
            raise SystemExit(f"{self.name} showed no window")
        self.shown = sizes[max(sizes)]
        self.tool("windowfocus", "--sync", self.shown)

    def key(self, key):
        self.tool("key", key)

    def click(self, x, y):
        self.tool("mousemove", "--window", self.shown, str(x), str(y), "click", "1")


class Ear:
    """Follows the level at the sound server's end, a hundredth of a second at a time."""

    def __init__(self, rig):
        self.level = 0
        self.changes = []  # (when, level)
        self.wake = threading.Condition()
        self.recorder = subprocess.Popen(["parec", "--device=speakers.monitor", "--format=s16le", f"--rate={RATE}", "--channels=2", "--latency-msec=10"],
                                         env=rig.env, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        os.read(self.recorder.stdout.fileno(), 4)  # it hears
        threading.Thread(target=self.listen, daemon=True).start()

    def listen(self):
        while data := os.read(self.recorder.stdout.fileno(), RATE // 100 * 4):
            level = max(map(abs, array.array("h", data[:len(data) & ~1])), default=0)
            with self.wake:
                if abs(level - self.level) > max(60, self.level * .01):
                    self.changes.append((time.monotonic(), level))
                    self.wake.notify_all()
                self.level = level

    def first_sound(self, after):
        return self.wait(after, lambda level: level > 500)

    def silence(self, after):
        return self.wait(after, lambda level: level < 100)

    def another_level(self, before, after):
        return self.wait(after, lambda level: level > 500 and abs(level - before) > before * .02)

    def wait(self, after, fits, patience=10):
        until = time.monotonic() + patience
        with self.wake:
            while time.monotonic() < until:
                for when, level in self.changes:
                    if when > after and fits(level):
                        return when
                self.wake.wait(.2)
        return float("nan")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.recorder.terminate()
        self.recorder.wait()
