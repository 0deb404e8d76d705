"""A row of items, of which each shows one reading in a square."""

from PIL import Image

from likeness import LEAST, ink_rect, likeness
from picture import ink, ink_picture
from program import MODULES


def icon_ink(item, behind):
    """The ink of the largest picture that the item offers, on a ground of that colour."""
    pixmaps = item.Get("org.kde.StatusNotifierItem", "IconPixmap", timeout=2)
    width, height, data = max(pixmaps, key=lambda pixmap: pixmap[0])
    alpha, *colours = Image.frombytes("RGBA", (width, height), bytes(data)).split()  # A R G B in memory
    shown = Image.new("RGB", (width, height), behind)
    shown.paste(Image.merge("RGB", colours), mask=alpha)
    return ink_picture(ink(shown, Image.new("RGB", shown.size, behind)))


def cells(drawn, count):
    """The ink of each item. Hosts make tiles equal, and leave gaps: the border is the emptiest place near that of equal
    parts."""
    drawn = drawn.crop(ink_rect(drawn))
    upright = drawn.height > drawn.width
    profile = list(drawn.resize((1, drawn.height) if upright else (drawn.width, 1), Image.BOX).getdata())
    side = len(profile) / count
    edges = [0, *(emptiest(profile, number * side, side / 4) for number in range(1, count)), len(profile)]
    return [drawn.crop((0, a, drawn.width, b) if upright else (a, 0, b, drawn.height))
            for a, b in zip(edges, edges[1:])]


def emptiest(profile, about, reach):
    """The middle of the emptiest places at most `reach` away."""
    near = range(round(about - reach), round(about + reach) + 1)
    least = min(profile[place] for place in near)
    places = [place for place in near if profile[place] == least]
    return places[len(places) // 2]


def tile_faults(place, drawn, behind):
    """Why the tiles, in an ink picture, are not whole, or not in the row's order; None where they are."""
    if not ink_rect(drawn):
        return f"no tile is to be seen in {place.visible}"
    wanted = [(name, icon_ink(item, behind)) for name, item in place.items]
    seen = []
    for cell in cells(drawn, len(wanted)):
        alike, name = max((likeness(cell, icon), name) for name, icon in wanted)
        if alike < LEAST:
            return f"a tile is not like any that was sent ({alike:.2f}) in {place.visible}"
        seen.append(name.split("-")[-1])  # MATE's have a number before
    return None if seen == MODULES.split(",") else f"order of the tiles: {' '.join(seen)}"
