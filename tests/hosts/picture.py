"""What can be told from pixels: what is drawn, how well it can be read, and whether two pictures show the same."""

from math import log

from PIL import Image, ImageChops

from rectangle import Rectangle

FAINT = 1.3  # a contrast below which nobody sees anything


def luminance(colour):
    parts = [value / 255 for value in colour[:3]]
    linear = [p / 12.92 if p <= 0.03928 else ((p + 0.055) / 1.055) ** 2.4 for p in parts]
    return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]


def contrast(a, b):
    """From 1, the same lightness, to 21, black on white."""
    low, high = sorted((a, b))
    return (high + 0.05) / (low + 0.05)


def median(values):
    return sorted(values)[len(values) // 2]


def ground(picture):
    """The colour behind the text, for every line of pixels: text covers less than half of a line."""
    if picture.height > picture.width:  # where the lines of a panel at the side are too short for that
        usual = max(picture.getcolors(picture.width * picture.height))[1]
        return [usual] * picture.height
    rows = []
    for y in range(picture.height):
        line = [picture.getpixel((x, y)) for x in range(picture.width)]
        rows.append(tuple(median([colour[part] for colour in line]) for part in range(3)))
    return rows


def ink(picture):
    """The contrast of every pixel with what is behind it, as lines of numbers."""
    lines = []
    for y, behind in enumerate(luminance(colour) for colour in ground(picture)):
        lines.append([contrast(luminance(picture.getpixel((x, y))), behind) for x in range(picture.width)])
    return lines


def ink_picture(lines):
    """`ink` as a picture, the strongest pixel being white: light on dark gives the same as dark on light."""
    most = max(max(line) for line in lines)
    picture = Image.new("L", (len(lines[0]), len(lines)))
    if most > FAINT:
        picture.putdata([round(255 * log(value) / log(most)) for line in lines for value in line])
    return picture


def ink_rect(picture):
    """Where an `ink_picture` has ink; None where there is none."""
    box = picture.point(lambda value: 255 if value > 70 else 0).getbbox()
    return Rectangle(*box) if box else None


def least_contrast(lines):
    """The contrast of the text that can be read worst. A text is what stands by itself, above or below."""
    cells = [cell for columns in texts(lines) for cell in halves(lines, columns)]
    return min((median(sorted(cell)[-5:]) for cell in cells if len(cell) > 8), default=1.0)


def texts(lines, gap=None):
    """The ranges of columns with ink between gaps of more than `gap` pixels."""
    gap = gap or max(3, len(lines) // 5)
    found = []
    for x in range(len(lines[0])):
        if max(line[x] for line in lines) < FAINT:
            continue
        if found and x - found[-1][1] <= gap:
            found[-1][1] = x
        else:
            found.append([x, x])
    return found


def halves(lines, columns):
    """The ink of the upper and of the lower text within columns."""
    middle = len(lines) // 2
    for part in (lines[:middle], lines[middle:]):
        yield [value for line in part for value in line[columns[0]:columns[1] + 1] if value >= FAINT]


def likeness(seen, wanted):
    """How alike two ink pictures are whatever their size: 1 the same, 0 unrelated. Each is taken from its first ink to
    its last, so that one that was cut, and therefore is stretched here, differs."""
    seen_rect, wanted_rect = ink_rect(seen), ink_rect(wanted)
    if not seen_rect or not wanted_rect:
        return 0.0
    # Coarser than both, because a host that scales a picture blurs it.
    size = [max(1, round(0.75 * min(pair))) for pair in ((seen_rect.width, wanted_rect.width),
                                                         (seen_rect.height, wanted_rect.height))]
    return correlation(*(list(p.crop(r).resize(size, Image.BOX).getdata()) for p, r in
                         ((seen, seen_rect), (wanted, wanted_rect))))


def correlation(a, b):
    mean_a, mean_b = sum(a) / len(a), sum(b) / len(b)
    both = sum((x - mean_a) * (y - mean_b) for x, y in zip(a, b))
    each = sum((x - mean_a) ** 2 for x in a) * sum((y - mean_b) ** 2 for y in b)
    return both / each ** 0.5 if each else 0.0


def change(before, after, within=None):
    """Where two pictures of a screen differ; None where they do not. `within` limits the search."""
    difference = ImageChops.difference(before, after).convert("L").point(lambda value: 255 if value > 8 else 0)
    if within:
        masked = Image.new("L", difference.size)
        masked.paste(difference.crop(within), within[:2])
        difference = masked
    box = difference.getbbox()
    return Rectangle(*box) if box else None
