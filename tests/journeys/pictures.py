"""The pictures of every screen, in light and dark, on data that is always the same. The program
runs with the software renderer, a fixed scale and no motion.
Usage: pictures.py PROGRAM FOLDER saves them there."""

import os
import re

from PIL import Image, ImageChops, ImageDraw

from home import Home
from screens import Walk, at_rest, in_new_world

APPEARANCES = ("light", "dark")
AGE = re.compile(r"^in \d| ago$")  # the demo data draws its dates by chance
WORLD = re.compile("drossbin-world-")
SHRINK = 4  # comparing shrunken pictures forgives how another font renderer draws an edge
TOLERANCE = 32  # of 255, for one colour of one shrunken pixel
DARK = """[Colors:Window]
BackgroundNormal=30,30,32
ForegroundNormal=245,245,247
[Colors:View]
BackgroundNormal=24,24,26
BackgroundAlternate=34,34,36
ForegroundNormal=245,245,247
ForegroundInactive=160,160,165
[Colors:Button]
BackgroundNormal=58,58,60
ForegroundNormal=245,245,247
[Colors:Selection]
BackgroundNormal=0,107,255
ForegroundNormal=255,255,255
[Colors:Tooltip]
BackgroundNormal=44,44,46
ForegroundNormal=245,245,247
"""


def environment(world, appearance):
    """What makes the program light or dark: the desktop's colours."""
    if appearance == "light":
        return {}
    settings = os.path.join(world.root, "settings")
    os.makedirs(settings, exist_ok=True)
    with open(os.path.join(settings, "kdeglobals"), "w", encoding="utf-8") as file:
        file.write(DARK)
    return {"XDG_CONFIG_HOME": settings, "XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5"}


def walk(world, desktop, program, take):
    """Calls take(name, running program) on every screen."""
    for appearance in APPEARANCES:
        home = Home(world)
        home.clear()
        home.furnish()

        def take_one(name, running, appearance=appearance):
            desktop.point(*(size - 1 for size in desktop.size))
            take(f"{name}-{appearance}", running)

        Walk(world, desktop, program, home, take_one, **environment(world, appearance)).whole(demo=True)
        home.clear()


def changing_areas(program):
    """Where ages and paths of this world are shown, and the bar whose scale is this machine's disk."""
    labels = program.shown("label")
    areas = [area(label) for label in labels if AGE.search(label.name) or WORLD.search(label.name)]
    meters = [c for c in labels if c.name in ("Cache Found", "Space to Reclaim")]
    for left, top, right, _ in map(area, meters):
        areas.append((left, top + 40, right + 400, top + 64))
    return areas


def area(control):
    found = control.node.get_component_iface().get_extents(0)
    return found.x, found.y, found.x + found.width, found.y + found.height


def difference(one, other, areas):
    """A picture of where the two differ, or None where they do not."""
    if one.size != other.size:
        return Image.new("L", one.size, 255)
    one, other = (masked(picture.convert("RGB"), areas).reduce(SHRINK) for picture in (one, other))
    channels = ImageChops.difference(one, other).split()
    worst = ImageChops.lighter(ImageChops.lighter(channels[0], channels[1]), channels[2])
    seen = worst.point(lambda value: 255 if value > TOLERANCE else 0)
    return seen.resize([size * SHRINK for size in seen.size]) if seen.getbbox() else None


def masked(picture, areas):
    picture = picture.copy()
    draw = ImageDraw.Draw(picture)
    for one in areas:
        draw.rectangle(one, fill="grey")
    return picture


def save_all(world, desktop, program, folder):
    os.makedirs(folder, exist_ok=True)

    def save(name, running):
        path = os.path.join(folder, f"{name}.png")
        # A palette makes them a third as large and no pixel worse than the tolerance forgives.
        at_rest(running).quantize(256, kmeans=2, dither=Image.Dither.NONE).save(path, optimize=True)
        print(path, flush=True)

    walk(world, desktop, program, save)


if __name__ == "__main__":
    in_new_world(save_all)
