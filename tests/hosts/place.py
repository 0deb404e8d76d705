"""Where the row is, whichever way the host shows it."""

from dataclasses import dataclass

from picture import change
from program import label_of
from rectangle import Rectangle

NOWHERE = Rectangle(0, 0, 0, 0)


@dataclass
class Place:
    kind: str  # "tray", "items" or "label"
    rect: Rectangle  # as the program has it
    visible: Rectangle  # what can be seen of it
    panel: Rectangle  # what it lies on
    items: tuple = ()  # as Program.items tells
    label: str = ""  # the row as text, where the host sets it

    def __str__(self):
        count = f"{len(self.items)} × " if self.items else ""
        return f"{self.kind} {count}{self.rect.width}×{self.rect.height}"


def find_place(program, empty, host, dark=None):
    """`empty`: the screen without the program; `dark`: what the host was last made to be."""
    return window_place(program, host) or drawn_place(program, empty, host, host.handle.get(dark, 0))


def window_place(program, host):
    row = program.row_window()
    if not row:
        return None
    top = {w.number: w.rect for w in program.desktop.inner.windows()}[row.parents[1]]
    return Place("tray", row.rect, row.visible, host.panel or top)


def drawn_place(program, empty, host, handle):
    """What is seen only with the program there: nothing of a row that has the panel's colour."""
    items = program.items()
    if not items:
        return None
    panel = host.panel or panel_of(program.desktop)
    rect = change(empty, program.desktop.screen.picture(), panel)
    rect = rect._replace(left=rect.left + handle).grown(2).cut(panel) if rect else NOWHERE
    label = host.labels and label_of(items[0][1])
    return Place("label" if label else "items", rect, rect, panel, tuple(items), label)


def panel_of(desktop):
    docks = (w.rect for w in desktop.inner.windows() if w.shown and w.kind.endswith("_DOCK"))
    return next(docks, desktop.screen.rect)
