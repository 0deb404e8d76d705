"""Where the row is, whichever way the host shows it."""

from dataclasses import dataclass

from picture import change
from rectangle import Rectangle

NOWHERE = Rectangle(0, 0, 0, 0)


@dataclass
class Place:
    kind: str  # "tray", "strip" or "items"
    rect: Rectangle  # as the program has it
    visible: Rectangle  # what can be seen of it
    panel: Rectangle  # what it lies on
    items: tuple = ()  # as Program.items tells

    def __str__(self):
        count = f"{len(self.items)} × " if self.items else ""
        return f"{self.kind} {count}{self.rect.width}×{self.rect.height}"


def find_place(program, empty, host):
    return window_place(program) or drawn_place(program, empty, host)


def window_place(program):
    row = program.row_window()
    if not row:
        return None
    kind = "tray" if len(row.parents) > 1 else "strip"
    panel = {w.number: w.rect for w in program.desktop.inner.windows()}.get((*row.parents, row.number)[1])
    return Place(kind, row.rect, row.visible, panel)


def drawn_place(program, empty, host):
    """`empty`: the screen without the program. Nothing is seen of a row that has the panel's colour."""
    items = program.items()
    if not empty or not items:
        return None
    panel = host.panel or panel_of(program.desktop)
    rect = change(empty, program.desktop.screen.picture(), panel)
    rect = rect._replace(left=rect.left + host.handle).grown(2).cut(panel) if rect else NOWHERE
    return Place("items", rect, rect, panel, tuple(items))


def panel_of(desktop):
    docks = (w.rect for w in desktop.inner.windows() if w.shown and w.kind.endswith("_DOCK"))
    return next(docks, desktop.screen.rect)
