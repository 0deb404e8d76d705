"""How well text can be read, from the pixels on the screen."""

from picture import FAINT, median

LEAST_INK = 8  # pixels; what has less is a full stop or a degree sign


def least_contrast(lines):
    """The contrast of the text that can be read worst, from `ink`. A text is what stands by itself, beside or below
    others: its strongest pixels have its colour, the others are the soft edges of its letters."""
    pieces = [[value for line in band for value in line[left:right] if value >= FAINT]
              for left, right in runs([max(column) for column in zip(*lines)], gap=2)
              for top, bottom in runs([max(line[left:right]) for line in lines], gap=0)
              for band in [lines[top:bottom]]]
    return min((median(sorted(piece)[-5:]) for piece in pieces if len(piece) > LEAST_INK), default=1.0)


def runs(strongest, gap):
    """The ranges with ink, between gaps of more than `gap` pixels."""
    found = []
    for place in (place for place, value in enumerate(strongest) if value >= FAINT):
        if found and place - found[-1][1] <= gap:
            found[-1][1] = place + 1
        else:
            found.append([place, place + 1])
    return found
