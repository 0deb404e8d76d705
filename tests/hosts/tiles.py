"""A row of items, of which each shows one reading in a square."""

from PIL import Image

from picture import ink, ink_picture, likeness, texts
from program import MODULES


def icon_ink(item):
    """The ink of the largest picture that the item offers."""
    pixmaps = item.Get("org.kde.StatusNotifierItem", "IconPixmap", timeout=2)
    width, height, data = max(pixmaps, key=lambda pixmap: pixmap[0])
    return Image.frombytes("RGBA", (width, height), bytes(data)).getchannel("R")  # A R G B in memory


def cells(lines, count):
    """The ink of each item: what wide gaps part, else equal parts."""
    drawn = ink_picture(lines)
    upright = drawn.height > drawn.width
    for gap in range(2, 9) if not upright else ():
        found = texts(lines, gap)
        if len(found) == count:
            return [drawn.crop((left, 0, right + 1, drawn.height)) for left, right in found]
    side = (drawn.height if upright else drawn.width) / count
    edges = [round(number * side) for number in range(count + 1)]
    return [drawn.crop((0, a, drawn.width, b) if upright else (a, 0, b, drawn.height))
            for a, b in zip(edges, edges[1:])]


def tile_faults(place, picture, least):
    """Why the tiles are not whole, or not in the row's order; None where they are."""
    wanted = [(name, icon_ink(item)) for name, item in place.items]
    seen = []
    for cell in cells(ink(picture), len(wanted)):
        alike, name = max((likeness(cell, icon), name) for name, icon in wanted)
        if alike < least:
            return f"a tile is not like any that was sent ({alike:.2f}) in {place.visible}"
        seen.append(name.split("-")[-1])  # MATE's have a number before
    return None if seen == MODULES.split(",") else f"order of the tiles: {' '.join(seen)}"
