"""Whether two pictures show the same, in whatever size and colours."""

from PIL import Image

from rectangle import Rectangle

LEAST = 0.65  # of `likeness`, for the same picture


def ink_rect(picture):
    """Where an `ink_picture` has ink; None where there is none."""
    box = picture.point(lambda value: 255 if value > 70 else 0).getbbox()
    return Rectangle(*box) if box else None


def likeness(seen, wanted):
    """How alike two ink pictures are whatever their size: 1 the same, 0 unrelated. Each is taken from its first ink to
    its last, so that one that was cut, and therefore is stretched here, differs."""
    seen_rect, wanted_rect = ink_rect(seen), ink_rect(wanted)
    if not seen_rect or not wanted_rect:
        return 0.0
    # Coarser than both, because a host that scales a picture blurs it.
    size = [max(1, round(0.6 * min(pair))) for pair in ((seen_rect.width, wanted_rect.width),
                                                         (seen_rect.height, wanted_rect.height))]
    return correlation(*(list(p.crop(r).resize(size, Image.BOX).getdata()) for p, r in
                         ((seen, seen_rect), (wanted, wanted_rect))))


def correlation(a, b):
    mean_a, mean_b = sum(a) / len(a), sum(b) / len(b)
    both = sum((x - mean_a) * (y - mean_b) for x, y in zip(a, b))
    each = sum((x - mean_a) ** 2 for x in a) * sum((y - mean_b) ** 2 for y in b)
    return both / each ** 0.5 if each else 0.0
