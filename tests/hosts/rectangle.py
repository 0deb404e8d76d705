"""A rectangle on a screen, in pixels; right and bottom lie outside it, as in PIL."""

from typing import NamedTuple


class Rectangle(NamedTuple):
    left: int
    top: int
    right: int
    bottom: int

    @property
    def width(self):
        return max(0, self.right - self.left)

    @property
    def height(self):
        return max(0, self.bottom - self.top)

    @property
    def middle(self):
        return (self.left + self.right) // 2, (self.top + self.bottom) // 2

    @property
    def empty(self):
        return self.width == 0 or self.height == 0

    def cut(self, other):
        return Rectangle(max(self.left, other.left), max(self.top, other.top), min(self.right, other.right),
                         min(self.bottom, other.bottom))

    def grown(self, margin):
        return Rectangle(self.left - margin, self.top - margin, self.right + margin, self.bottom + margin)

    def __str__(self):
        return f"{self.width}×{self.height}+{self.left}+{self.top}"
