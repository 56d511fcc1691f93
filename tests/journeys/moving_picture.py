"""Films a scan, a selection and a deletion in a made-up home. Usage: moving_picture.py PROGRAM FILE"""

import os
import time

import slow
from driver import Program
from home import DAY, Home
from screens import in_new_world

FRAME = 100  # milliseconds
GIGABYTE = 1_000_000_000
# Their size in gigabytes, and the days since they were used.
CACHES = {"Google Chrome": (3.2, 1), "com.example.Films": (18.4, 40), "com.example.Music": (7.4, 9),
          "com.example.Editor": (4.6, 2), "com.example.Photos": (24.6, 75), "Spotify": (1.8, 16),
          "Keychains": (0, 400)}


class Film:
    def __init__(self, program):
        self._program = program
        self._frames = []

    def watch(self, seconds):
        """Takes a picture in each frame of that time."""
        for _ in range(round(seconds * 1000 / FRAME)):
            begun = time.monotonic()
            self._frames.append(self._program.picture())
            time.sleep(max(0, FRAME / 1000 - (time.monotonic() - begun)))

    def press(self, role, name, seconds):
        """Presses what is there, and watches what comes of it."""
        self._program.press(role, name)
        self.watch(seconds)

    def save(self, path):
        first, *more = self._frames
        first.save(path, save_all=True, append_images=more, duration=FRAME, loop=0, quality=70, method=4)


def fill(home):
    home.furnish()
    for name, (size, days) in CACHES.items():
        folder = os.path.dirname(home.file(f"Library/Caches/{name}/large", int(size * GIGABYTE)))
        then = time.time() - days * DAY
        os.utime(folder, (then, then))


def play(film):
    film.watch(1)
    film.press("push button", "Start System Scan", 3.5)
    film.press("push button", "Select All Safe", 1.5)
    film.press("push button", "Delete Selected", 2)
    film.press("push button", "Confirm & Delete", 4)
    film.watch(2)


def walk(world, desktop, program_path, path):
    home = Home(world)
    fill(home)
    held = slow.on(os.path.join(home.path, "Library/Caches/com.example.Films"), 500)
    program = Program(world, desktop, program_path, wrapper=held)
    program.find("push button", "Start System Scan")
    desktop.point(*(size - 1 for size in desktop.size))
    film = Film(program)
    play(film)
    program.close()
    film.save(path)
    print(path, flush=True)


if __name__ == "__main__":
    in_new_world(walk, has_motion=True)
