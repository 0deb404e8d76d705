"""An X screen: its windows, its pixels, its pointer and its keys."""

import time
from dataclasses import dataclass

from PIL import Image
from Xlib import X, XK, display, error, ext
from Xlib.ext import xtest

from rectangle import Rectangle

TOOLTIP = "_NET_WM_WINDOW_TYPE_TOOLTIP"
# The library trips over the numbers of the others when it talks to two X servers.
ext.__extensions__ = [named for named in ext.__extensions__ if named[0] == "XTEST"]


@dataclass(frozen=True)
class Window:
    number: int
    parents: tuple  # window numbers, the root's first
    rect: Rectangle  # as the window has it
    visible: Rectangle  # what all its parents leave of it
    shown: bool  # mapped, like all its parents
    program: str  # the first half of WM_CLASS
    kind: str  # _NET_WM_WINDOW_TYPE

    def __str__(self):
        return f"{self.rect} seen {self.visible}{'' if self.shown else ' hidden'} {self.program} {self.kind}"


class Screen:
    def __init__(self, name):
        self.display = display.Display(name)
        self.root = self.display.screen().root
        size = self.root.get_geometry()
        self.rect = Rectangle(0, 0, size.width, size.height)

    def windows(self):
        """Every window but the root, parents before children."""
        return list(self._below(self.root, (self.root.id,), self.rect, (0, 0), True))

    def _below(self, window, parents, frame, origin, shown):
        try:
            children = window.query_tree().children
        except error.XError:
            return
        for child in children:
            try:
                found = self._window(child, parents, frame, origin, shown)
            except error.XError:
                continue  # closed meanwhile
            yield found
            yield from self._below(child, (*parents, child.id), found.visible, found.rect[:2], found.shown)

    def _window(self, window, parents, frame, origin, shown):
        place = window.get_geometry()
        left = origin[0] + place.x + place.border_width
        top = origin[1] + place.y + place.border_width
        rect = Rectangle(left, top, left + place.width, top + place.height)
        shown = shown and window.get_attributes().map_state == X.IsViewable
        names = window.get_wm_class()
        return Window(window.id, parents, rect, rect.cut(frame), shown, names[0] if names else "", self._kind(window))

    def _kind(self, window):
        kinds = window.get_full_property(self.display.get_atom("_NET_WM_WINDOW_TYPE"), X.AnyPropertyType)
        return self.display.get_atom_name(kinds.value[0]) if kinds and len(kinds.value) else ""

    def tree(self):
        """The window tree as text, for reports."""
        return "\n".join("  " * (len(w.parents) - 1) + f"{w.number:#x} {w}" for w in self.windows())

    def picture(self, rect=None):
        rect = (rect or self.rect).cut(self.rect)
        pixels = self.root.get_image(rect.left, rect.top, rect.width, rect.height, X.ZPixmap, 0xFFFFFFFF)
        return Image.frombytes("RGB", (rect.width, rect.height), pixels.data, "raw", "BGRX")

    def fill(self, colour):
        self.root.change_attributes(background_pixel=colour)
        self.root.clear_area()
        self.display.sync()

    def owner(self, selection):
        return self.display.get_selection_owner(self.display.get_atom(selection))

    def point(self, place):
        xtest.fake_input(self.display, X.MotionNotify, x=place[0], y=place[1])
        self.display.sync()

    def click(self, place, button=1, held=0.09):
        """`held`: seconds, about as long as a finger takes; what closes at the press is gone by the release."""
        self.point(place)
        xtest.fake_input(self.display, X.ButtonPress, button)
        self.display.sync()
        time.sleep(held)
        xtest.fake_input(self.display, X.ButtonRelease, button)
        self.display.sync()

    def key(self, name):
        code = self.display.keysym_to_keycode(XK.string_to_keysym(name))
        for event in (X.KeyPress, X.KeyRelease):
            xtest.fake_input(self.display, event, code)
        self.display.sync()
