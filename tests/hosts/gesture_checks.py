"""Does the program do what the person means who looks at the screen and clicks?"""

import time

from desktop import soon
from picture import change

GAPS = (1.6, 0.7, 2.3, 0.45, 1.1)  # seconds after the state was seen; people are not metronomes
PATIENCE = 3  # seconds; the machine may have other work
MENU_HEIGHT = 45  # pixels; a tooltip is lower


class Gestures:
    def __init__(self, program, place, shot):
        self.program, self.desktop, self.place, self.shot = program, program.desktop, place, shot
        screen = self.desktop.screen.rect
        away = place.visible.middle[0] < screen.width / 2
        self.calm = self.desktop.screen.picture()  # with nothing open
        self.outside = (screen.right - 60 if away else 60, screen.height // 2)

    def shown(self):
        return self.program.popover() is not None

    def become(self, shown):
        return soon(lambda: self.shown() == shown, PATIENCE)

    def press(self, button=1):
        self.desktop.screen.click(self.point(), button)

    def point(self):
        return self.place.visible.middle

    def menu(self):
        """Under Wayland a host's menu is no window of the X screen: it is what stands there instead of the popover."""
        if self.desktop.screen is self.desktop.inner or self.shown():
            return self.program.menu() is not None
        drawn = change(self.calm, self.desktop.screen.picture())
        return drawn is not None and drawn.width > 60 and drawn.height > MENU_HEIGHT

    def reset(self):
        """Everything closed and the pointer away, by whatever works."""
        for attempt in (lambda: self.desktop.screen.key("Escape"), lambda: self.desktop.screen.click(self.outside),
                        lambda: self.desktop.screen.key("Escape"), self.press, self.start_anew):
            if not self.shown() and not self.menu():
                break
            attempt()
            time.sleep(0.6)
        self.desktop.screen.point(self.outside)
        time.sleep(0.8)
        self.calm = self.desktop.screen.picture()

    def start_anew(self):
        self.program.end()
        self.program.start()
        time.sleep(5)

    def five_clicks(self):
        """A click closes what is shown and opens what is not."""
        self.reset()
        seen, dead = "", []
        for number, gap in enumerate(GAPS, 1):
            before = self.shown()
            self.press()
            if not self.become(not before):
                dead.append(number)
            seen += "o" if self.shown() else "c"
            time.sleep(gap)
        if not dead:
            return None
        self.shot("clicks")
        return f"click {', '.join(map(str, dead))} of 5 did nothing (o open, c closed: {seen})"

    def right_click(self):
        """It opens the menu, and Escape closes that."""
        self.reset()
        self.press(3)
        if not soon(self.menu, PATIENCE):
            self.shot("right")
            return "no menu" + (", but the popover" if self.shown() else "")
        self.desktop.screen.key("Escape")
        if not soon(lambda: not self.menu(), PATIENCE):
            self.shot("right")
            return "Escape does not close the menu"
        return None

    def right_click_over_popover(self):
        """The menu takes the popover's place."""
        if reason := self.opened():
            return reason
        self.press(3)
        menu = soon(self.menu, PATIENCE)
        if menu and not self.shown():
            return None
        self.shot("right-over-popover")
        return f"{'menu' if menu else 'no menu'}, popover {'still open' if self.shown() else 'closed'}"

    def escape(self):
        if reason := self.opened():
            return reason
        self.desktop.screen.key("Escape")
        return self.closed("escape")

    def click_outside(self):
        if reason := self.opened():
            return reason
        self.desktop.screen.click(self.outside)
        return self.closed("outside")

    def opened(self):
        self.reset()
        for _ in range(2):  # a dead click is told elsewhere
            self.press()
            if self.become(True):
                return None
        return "the popover does not open"

    def closed(self, name):
        if self.become(False):
            return None
        self.shot(name)
        return "the popover stays"
