"""Disc images whose sound tells where it is from, and the reading of it out of the file that a deck plays into. So a
test knows what is heard without asking the deck.

A frame of a CD is 588 pairs of samples: 42 cells of 14. The sign of a cell's samples is one bit, so that any level but
silence leaves it readable, and one channel is enough: 8 bits of a mark, 4 of the disc, 18 of the frame, 12 of a sum."""
import array
import os

PAIRS, CELLS, CELL = 588, 42, 14
FRAMES = 75
LEAD_IN = 150
MARK = 0b10110001
HEADER = 44
LOUD = array.array("h", [12000] * 2 * CELL).tobytes()
LOW = array.array("h", [-12000] * 2 * CELL).tobytes()


def check_sum(disc, frame):
    return (frame * 2654435761 + disc * 40503 >> 7) & 0xFFF


def bits(disc, frame):
    return f"{MARK:08b}{disc:04b}{frame:018b}{check_sum(disc, frame):012b}"


class Disc:
    """`seconds`: the length of each track."""

    def __init__(self, folder, number, seconds):
        self.number = number
        self.starts = [sum(seconds[:i]) * FRAMES for i in range(len(seconds) + 1)]
        self.sheet = f"{folder}/disc{number}.cue"
        with open(f"{folder}/disc{number}.bin", "wb") as image:
            for frame in range(self.starts[-1]):
                image.write(b"".join(LOUD if bit == "1" else LOW for bit in bits(number, frame)))
        with open(self.sheet, "w", encoding="ascii") as sheet:
            print(f'FILE "disc{number}.bin" BINARY', file=sheet)
            for track, start in enumerate(self.starts[:-1], 1):
                minutes, rest = divmod(start, 60 * FRAMES)
                print(f"  TRACK {track:02} AUDIO\n    INDEX 01 {minutes:02}:{rest // FRAMES:02}:{rest % FRAMES:02}", file=sheet)

    def tracks(self):
        return len(self.starts) - 1

    def length(self, track):
        """Whole seconds, as the display tells them: the disc's last frame is not counted."""
        frames = self.starts[track] - self.starts[track - 1]
        return (frames - (track == self.tracks())) // FRAMES

    def place(self, frame):
        """Track and seconds in it."""
        track = next(number for number in range(self.tracks(), 0, -1) if self.starts[number - 1] <= frame)
        return track, (frame - self.starts[track - 1]) / FRAMES


def heard(path):
    """The last frame in the file as (disc, frame); None for silence, or before the first."""
    try:
        with open(path, "rb") as file:
            size = os.fstat(file.fileno()).st_size
            start = max(HEADER, size - 4 * 4 * PAIRS)
            file.seek(start - (start - HEADER) % 4)
            data = file.read()
    except FileNotFoundError:
        return None
    samples = array.array("h", data[: len(data) // 4 * 4])
    channel = max((samples[0::2], samples[1::2]), key=lambda one: max(map(abs, one), default=0))
    for start in range(len(channel) - PAIRS, -1, -1):
        word = "".join("1" if channel[start + CELL * cell + CELL // 2] > 0 else "0" for cell in range(CELLS))
        disc, frame = int(word[8:12], 2), int(word[12:30], 2)
        if int(word[:8], 2) == MARK and int(word[30:], 2) == check_sum(disc, frame):
            return disc, frame
    return None
