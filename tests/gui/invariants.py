"""What holds at a deck whatever was done to it. A check is tried again for a while, since the deck may be on its way: it
fails when it does not come true."""
import glob
import os
import re
import time

from deck_driver import CD_DATA, FACEPLATE, Fault, read
from telling_disc import heard

PATIENCE = 4.0
SLOW_MS = 200
SPARE_FILES = 6  # what a toolkit opens once and keeps
WORDS = {"play": "playing", "resume": "playing", "pause": "paused", "stop": "stopped", "seek": "stopped", "eject": "stopped",
         "close": "stopped", "ended": "stopped", "holds": "stopped"}
TROUBLE = re.compile(rb"AddressSanitizer|LeakSanitizer|runtime error:|Segmentation|terminate called|QObject::|QPainter::")


def seconds_of(text):
    """Of "-1:02"; None for what is no time."""
    match = re.fullmatch(r"-?(\d+):(\d\d)", text or "")
    return int(match[1]) * 60 + int(match[2]) if match else None


class Invariants:
    def __init__(self, deck, discs):
        self.deck = deck
        self.discs = {disc.number: disc for disc in discs}
        self.most_files = 0
        self.slowest = 0.0
        self.compared = {"playing": 0, "paused": 0, "stopped": 0, "number": 0, "time": 0}  # a walk that compares nothing proves nothing
        self.kept = {}  # (disc's sheet, field) -> the text of the last OK

    def check(self):
        for one in (self.one_deck, self.no_trouble, self.nothing_left, self.keys_tell_the_device, self.display_tells_what_is_heard,
                    self.texts_are_kept):
            end = time.monotonic() + PATIENCE
            while fault := one():
                if time.monotonic() > end:
                    raise Fault(f"{one.__name__}: {fault}")
                time.sleep(0.2)

    def answers(self):
        """Asked after each act: a window that hangs for a moment hangs there."""
        took = self.deck.answer_ms()
        self.slowest = max(self.slowest, took)
        if took > SLOW_MS:
            raise Fault(f"the window took {took:.0f} ms to answer")

    # ---- processes

    def one_deck(self):
        pids = self.deck.pids()
        if len(pids) != 1:
            return f"decks: {pids}"
        shows = self.deck.lit(FACEPLATE) or self.deck.window(CD_DATA) is not None or self.deck.boxes()
        return None if shows else "no window shows"

    def no_trouble(self):
        log = read(self.deck.log)
        found = TROUBLE.search(log)
        return found and "the log says " + log[found.start() :][:1500].decode(errors="replace")

    def nothing_left(self):
        """Open files, children, half-written files. The first deck at rest is the measure, also of those that follow it."""
        pid = self.deck.pid()
        if not pid:
            return "no deck"
        if half := glob.glob(self.deck.data + "/**/*.new", recursive=True):
            return f"half-written: {half}"
        if children := self.deck.children(pid):
            return f"children: {children}"
        if len(self.deck.windows()) != 1:
            return None
        files = self.deck.open_files(pid)
        self.most_files = self.most_files or len(files) + SPARE_FILES
        return f"{len(files)} open files: {sorted(files)}" if len(files) > self.most_files else None

    # ---- play

    def device_mode(self):
        """By the log's last order to the player, or its end."""
        for line in reversed(read(self.deck.log)[-20000:].decode(errors="replace").splitlines()):
            words = line.split()
            if len(words) > 2 and words[0] == "sound" and words[2] in WORDS:
                return WORDS[words[2]]
        return "stopped"

    def sound_flows(self):
        size = os.path.getsize(self.deck.wav) if os.path.exists(self.deck.wav) else 0
        time.sleep(0.6)
        return os.path.exists(self.deck.wav) and os.path.getsize(self.deck.wav) > size

    def keys_tell_the_device(self):
        mode = self.device_mode()
        flows = self.sound_flows()
        if not self.deck.lit(FACEPLATE) or self.deck.boxes():
            return None
        if flows != (mode == "playing"):
            return f"the player is {mode}, sound {'flows' if flows else 'stands'}"
        lit = {"playing": self.deck.on("icntla(2)"), "paused": self.deck.on("icntla(3)")}
        should = {word: word == mode for word in lit}
        # The small faceplate has no keys to light.
        small = not self.deck.lit("icntla(0)")
        self.compared[mode] += not small
        return None if small or lit == should else f"lit: {lit}, the player is {mode}"

    def display_tells_what_is_heard(self):
        deck = self.deck
        if self.device_mode() != "playing" or not deck.lit(FACEPLATE) or deck.boxes():
            return None
        place = heard(deck.wav)
        if place is None:
            return None
        disc = self.discs[place[0]]
        track, second = disc.place(place[1])
        length = disc.length(track)
        # Where tracks meet, the display changes within its seconds.
        if second < 3 or second > length - 2.5:
            return None
        shown = {name: deck.says(name) for name in ("Label8", "Label9", "Label10", "Label43")}
        story = f"heard: disc {place[0]} track {track} {second:.1f} of {length}; shown: {shown}"
        if shown["Label8"] != str(track) or seconds_of(shown["Label43"]) != length:
            return story
        self.compared["number"] += 1
        expected = {"Time": second, "Rem": length - second}.get(shown["Label9"])
        time_shown = seconds_of(shown["Label10"])
        if expected is None:
            return None
        self.compared["time"] += 1
        return None if time_shown is not None and abs(time_shown - expected) <= 2 else story

    # ---- texts

    def texts_are_kept(self):
        files = b"\0".join(read(path) for path in glob.glob(self.deck.data + "/datacd/*"))
        lost = {key: text for key, text in self.kept.items() if text.encode("cp1252") not in files}
        return f"no file holds {lost}" if lost else None
