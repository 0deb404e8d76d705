"""What can be told from pixels: what is drawn on a ground, and what has changed."""

from math import log

from PIL import Image, ImageChops

from rectangle import Rectangle

FAINT = 1.3  # a contrast below which nobody sees anything


def luminance(colour):
    parts = [value / 255 for value in colour[:3]]
    linear = [p / 12.92 if p <= 0.03928 else ((p + 0.055) / 1.055) ** 2.4 for p in parts]
    return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]


def contrast(a, b):
    """From 1, the same luminance, to 21, black on white."""
    low, high = sorted((a, b))
    return (high + 0.05) / (low + 0.05)


def median(values):
    return sorted(values)[len(values) // 2]


def usual_colour(picture):
    """That of the ground, of which text covers less than half."""
    return tuple(median(band.getdata()) for band in picture.split())


def luminances(picture):
    """Lines of numbers."""
    pixels = [luminance(colour) for colour in picture.getdata()]
    return [pixels[start:start + picture.width] for start in range(0, len(pixels), picture.width)]


def ink(picture, empty=None):
    """The contrast of every pixel with what is behind it: with `empty`, the same place without the text, or else with
    what is usual in its line, of which text covers less than half."""
    if empty:
        return [[contrast(*pair) for pair in zip(*lines)] for lines in zip(luminances(picture), luminances(empty))]
    return [[contrast(value, behind) for value in line] for line in luminances(picture) for behind in [median(line)]]


def ink_picture(lines):
    """`ink` as a picture, the strongest pixel being white: light on dark gives the same as dark on light."""
    most = max(max(line) for line in lines)
    picture = Image.new("L", (len(lines[0]), len(lines)))
    if most > FAINT:
        picture.putdata([round(255 * log(value) / log(most)) for line in lines for value in line])
    return picture


def change(before, after, within=None):
    """Where two pictures of a screen differ; None where they do not. `within` limits the search."""
    difference = ImageChops.difference(before, after).convert("L").point(lambda value: 255 if value > 8 else 0)
    if within:
        masked = Image.new("L", difference.size)
        masked.paste(difference.crop(within), within[:2])
        difference = masked
    box = difference.getbbox()
    return Rectangle(*box) if box else None
