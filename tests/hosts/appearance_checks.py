"""Is the row there as a whole, and can it be read?"""

from picture import FAINT, contrast, ground, ink, ink_picture, least_contrast, likeness, luminance, median
from tiles import tile_faults

LEAST_CONTRAST = 3.0
LEAST_LIKENESS = 0.6
SEAM = 1.25  # contrast from which on the row's ground stands out of the panel as a box


def whole(place, picture, wanted):
    """Why the row, in `picture`, is not all there; None where it is. `wanted` is its ink where nothing cuts it."""
    lines = ink(picture)
    cut = f"of its window {place.rect} only {place.visible} is seen"
    if runs_into_cut(place, lines):
        return cut
    if len(place.items) > 1:
        return tile_faults(place, picture, LEAST_LIKENESS)
    alike = likeness(ink_picture(lines), wanted)
    if alike >= LEAST_LIKENESS:
        return None
    return cut if place.visible != place.rect else f"what is seen in {place.rect} is unlike the row ({alike:.2f})"


def runs_into_cut(place, lines):
    """The window's parents may leave less of it than it draws into; empty margins are nobody's loss."""
    edges = {"left": [line[0] for line in lines], "top": lines[0], "right": [line[-1] for line in lines],
             "bottom": lines[-1]}
    return any(getattr(place.visible, side) != getattr(place.rect, side) and max(edge) > FAINT
               for side, edge in edges.items())


def readable(picture):
    found = least_contrast(ink(picture))
    return None if found >= LEAST_CONTRAST else f"contrast {found:.1f}"


def blends(screen, place, picture):
    """Why the row stands out of the panel as a box."""
    beside = beside_row(place)
    if not beside:
        return None
    inside = median([luminance(colour) for colour in ground(picture)])
    outside = median([luminance(colour) for colour in ground(screen.picture(beside))])
    found = contrast(inside, outside)
    return None if found < SEAM else f"the row's ground stands out of the panel as a box ({found:.1f})"


def beside_row(place):
    """A few pixels of the panel before the row, or after it; None where it fills the panel."""
    seen = place.visible
    before = seen._replace(left=seen.left - 6, right=seen.left - 2)
    after = seen._replace(left=seen.right + 2, right=seen.right + 6)
    return next((rect for rect in (before, after) if rect.cut(place.panel) == rect), None)
