"""Is the row there as a whole, and can it be read?"""

from legibility import least_contrast, runs
from likeness import LEAST, likeness
from picture import FAINT, contrast, ink_picture, luminance, usual_colour
from tiles import icon_ink, tile_faults

LEAST_CONTRAST = 3.0
SEAM = 1.25  # contrast from which on the row's ground stands out of the panel as a box


def whole(place, lines, wanted, empty):
    """Why the row, whose ink is in `lines`, is not all there; None where it is. `wanted`: its ink where nothing cuts
    it, in every style that is right; `empty`: the panel without it."""
    behind = usual_colour(empty)
    cut = f"of its window {place.rect} only {place.visible} is seen"
    if runs_into_cut(place, lines):
        return cut
    if place.label:
        return label_faults(place.label, lines)
    if len(place.items) > 1:
        return tile_faults(place, ink_picture(lines), behind)
    sent = [icon_ink(item, behind) for _, item in place.items]
    alike = max(likeness(ink_picture(lines), row) for row in [*wanted, *sent])
    if alike >= LEAST:
        return None
    return cut if place.visible != place.rect else f"what is seen in {place.rect} is unlike the row ({alike:.2f})"


def runs_into_cut(place, lines):
    """The window's parents may leave less of it than it draws into; empty margins are nobody's loss."""
    edges = {"left": [line[0] for line in lines], "top": lines[0], "right": [line[-1] for line in lines],
             "bottom": lines[-1]}
    return any(getattr(place.visible, side) != getattr(place.rect, side) and max(edge) > FAINT
               for side, edge in edges.items())


def label_faults(label, lines):
    """A label is cut, if at all, at its end; the picture beside it counts as a word."""
    wanted, seen = 1 + len(label.split()), len(runs([max(column) for column in zip(*lines)], gap=2))
    return None if seen >= wanted else f"{seen} words of {wanted} are seen: {label}"


def readable(lines):
    found = least_contrast(lines)
    return None if found >= LEAST_CONTRAST else f"contrast {found:.1f}"


def blends(screen, place):
    """Why the row's window stands out of the panel as a box."""
    found = contrast(*(luminance(usual_colour(screen.picture(rect))) for rect in (place.visible, place.panel)))
    return None if place.items or found < SEAM else f"the row stands out of the panel as a box ({found:.1f})"
