"""Does the program do what the person means who looks at the screen and clicks?"""

import time

from desktop import soon
from picture import change
from program import WIDEST
from screen import TOOLTIP

GAPS = (1.6, 0.7, 2.3, 0.45, 1.1)  # seconds after the state was seen; people are not metronomes
GLANCE = 0.5  # seconds that a person takes to see what has opened
PATIENCE = 3  # seconds; the machine may have other work
LEAST_MENU = 45  # pixels; a tooltip is lower
MARGIN = 8  # pixels that the popover keeps from panel and screen edges, at least


class Gestures:
    def __init__(self, program, place, draws_menus, shot):
        """`draws_menus`: the host's menus are no windows of the program's screen."""
        self.program, self.desktop, self.place, self.shot = program, program.desktop, place, shot
        self.draws_menus = draws_menus
        screen = self.desktop.screen.rect
        away = place.visible.middle[0] < screen.width / 2
        self.outside = (screen.right - 60 if away else 60, screen.height // 2)
        self.remember_calm()

    def checks(self):
        """Pairs of check and fault."""
        key, click = self.desktop.screen.key, self.desktop.screen.click
        for name, prepare, check in (
                ("5 clicks", self.reset, self.five_clicks), ("popover's place", self.open, self.popover_place),
                ("right click", self.reset, self.right_click),
                ("right click over popover", self.open, self.right_click_over_popover),
                ("Escape", self.open, lambda: key("Escape") or self.closed()),
                ("click outside", self.open, lambda: click(self.outside) or self.closed())):
            if name == "5 clicks" and self.place.label:
                continue
            if reason := prepare() or check():
                self.shot(name)
            yield name, reason
        self.reset()

    def remember_calm(self):
        """What is there with nothing open."""
        self.calm = self.desktop.screen.picture()
        self.calm_windows = {w.number for w in self.desktop.inner.windows() if w.shown}

    def shown(self):
        return self.program.popover() is not None

    def become(self, shown):
        return soon(lambda: self.shown() == shown, PATIENCE)

    def press(self, button=1):
        for _ in range(2 if self.place.label and button == 1 else 1):
            self.desktop.screen.click(self.place.visible.middle, button)

    def menu_window(self):
        popover = self.program.popover()
        return any(w.shown and len(w.parents) == 1 and w.rect.height > 30 and w.rect.width <= WIDEST
                   and w.kind != TOOLTIP and w != popover and w.number not in self.calm_windows
                   for w in self.desktop.inner.windows())

    def menu(self):
        """Whether a menu is there, whoever draws it."""
        if self.menu_window():
            return True
        if not self.draws_menus:
            return False
        now = self.desktop.screen.picture()
        if popover := self.program.popover():
            now.paste(self.calm.crop(popover.rect), popover.rect)
        drawn = change(self.calm, now)
        return drawn is not None and drawn.width > 60 and drawn.height > LEAST_MENU

    def reset(self):
        """Everything closed and the pointer away, by whatever works."""
        screen = self.desktop.screen
        for attempt in (lambda: screen.key("Escape"), lambda: screen.click(self.outside), self.press, self.start_anew):
            if not self.shown() and not self.menu():
                break
            attempt()
            time.sleep(0.6)
        screen.point(self.outside)
        time.sleep(0.8)
        self.remember_calm()

    def start_anew(self):
        self.program.end()
        self.program.start()
        time.sleep(5)

    def one_click(self):
        """It opens the popover."""
        self.reset()
        self.press()
        return None if self.become(True) else "the popover does not open"

    def open(self):
        """Opens the popover, and looks at it; a dead click is told elsewhere."""
        reason = self.one_click() and self.one_click()
        time.sleep(GLANCE)
        return reason

    def five_clicks(self):
        """A click closes what is shown and opens what is not."""
        seen, dead = "", []
        for number, gap in enumerate(GAPS, 1):
            before = self.shown()
            self.press()
            if not self.become(not before):
                dead.append(str(number))
            seen += "o" if self.shown() else "c"
            time.sleep(gap)
        return f"click {', '.join(dead)} of 5 did nothing (o open, c closed: {seen})" if dead else None

    def popover_place(self):
        popover = self.program.popover().rect
        room = popover.grown(MARGIN)
        if room.cut(self.desktop.screen.rect) == room and room.cut(self.place.panel).empty:
            return None
        return f"{popover} is less than {MARGIN} px from the screen's edges, or from the panel {self.place.panel}"

    def right_click(self):
        """It opens the menu, and Escape closes that, unless it is the host's alone to do so."""
        self.press(3)
        if not soon(self.menu, PATIENCE):
            return "no menu" + (", but the popover" if self.shown() else "")
        drawn = not self.menu_window()
        time.sleep(GLANCE)
        self.desktop.screen.key("Escape")
        self.desktop.screen.point(self.outside)  # where it was in the calm picture
        return None if drawn or soon(lambda: not self.menu(), PATIENCE) else "Escape does not close the menu"

    def right_click_over_popover(self):
        """The menu takes the popover's place."""
        self.press(3)
        menu = soon(self.menu, PATIENCE)
        if menu and self.become(False):
            return None
        return f"{'menu' if menu else 'no menu'}, popover {'still open' if self.shown() else 'closed'}"

    def closed(self):
        return None if self.become(False) else "the popover stays"
