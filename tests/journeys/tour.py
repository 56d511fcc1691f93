"""Shows the program where there is no display: fills a made-up home, presses through every screen
and saves a picture of each. Usage: tour.py PROGRAM FOLDER"""

import os

from home import Home
from screens import Walk, at_rest, in_new_world


def fill(home):
    """Thousands of files beside what the journeys know, so that the scan has something to do."""
    home.furnish()
    home.file("Library/Caches/Google Chrome/Cache/data_2", 37_000_000)
    for app in range(12):
        for number in range(400):
            home.file(f"Library/Caches/com.example.App{app:02}/{number % 20}/{number}", 9_000 * (app + 1))
    for project in range(20):
        for number in range(150):
            home.file(f".npm/_cacache/{project}/{number}", 25_000)
    for number in range(500):
        home.file(f".gradle/caches/modules/{number}", 41_000)
        home.file(f"Library/Application Support/Notebook/{number}", 64_000)
        home.file(f"Library/Logs/Notebook/{number}.log", 12_000)
    for number in range(6):
        home.file(f"Downloads/holiday-{number}.zip", 65_000_000 - number * 7_000_000, days_old=45 + number)


def walk(world, desktop, program, folder):
    os.makedirs(folder, exist_ok=True)

    def take(name, running):
        path = os.path.join(folder, f"{name}.png")
        at_rest(running).save(path)
        print(path, flush=True)

    home = Home(world)
    fill(home)
    screens = Walk(world, desktop, program, home, take)
    if home.is_private:
        screens.whole(demo=False)
    else:
        print("No mount namespace can be made here, and a scan would read the real /var/log: these"
              " are the screens that sample data can show.", flush=True)
        screens.without_the_disk()


if __name__ == "__main__":
    in_new_world(walk)
