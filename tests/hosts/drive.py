"""Drives one host and Vantrix in it, and prints what came of every check, a line of JSON each.

To be started by run.py, in processes of its own that end with it. Usage: drive.py HOST BINARY FOLDER SHOTS"""

import json
import sys
import time
import traceback
from pathlib import Path

from PIL import Image

import appearance_checks
from desktop import Desktop, soon
from gesture_checks import Gestures
from hosts import HOSTS
from machine import Machine
from picture import ink, ink_picture
from place import find_place
from program import Program
from reference import STYLES, reference

SETTLED = 4  # seconds: two readings, and the host's own pace


class Drive:
    def __init__(self, host, binary, folder, shots):
        self.host, self.shots = host, Path(shots)
        self.wanted = [ink_picture(ink(Image.open(reference(shots, style)))) for style in STYLES]
        self.desktop = Desktop(Path(folder) / "session", host.size)
        self.program = Program(self.desktop, binary, Machine(Path(folder) / "machine"), **host.environment)
        self.empty = {}  # the screen without the program, dark and light

    def tell(self, check, reason, ok="ok"):
        print(json.dumps({"check": check, "verdict": "RED" if reason else ok, "reason": reason or ""}), flush=True)

    def shot(self, name):
        title = f"{self.host.name}-{name}".replace(" ", "_")
        self.desktop.screen.picture().save(self.shots / f"{title}.png")
        (self.shots / f"{title}.txt").write_text(self.desktop.inner.tree())

    def run(self):
        self.host.start(self.desktop)
        self.desktop.screen.point(self.desktop.screen.rect.middle)
        time.sleep(SETTLED)
        for dark in self.host.themes or (None,):
            self.turn(dark)
            self.empty[dark] = self.desktop.screen.picture()
        self.program.start()
        time.sleep(SETTLED + 3)  # a tray without room for the row is given up by then
        place = self.find()
        if not place:
            self.shot("nothing")
            return self.tell("shown as", "nothing in the status area")
        self.tell("shown as", None, ok=str(place))
        for check, reason in self.look(place, "start"):
            self.tell(check, reason)
        places = [place, *self.themes()]  # it may be unseen in some of them
        for check, reason in self.gestures(max(places, key=lambda place: place.visible.width)).checks():
            self.tell(check, reason)
        if self.host.restarts:
            self.restart()

    def turn(self, dark):
        if dark is not None:
            self.host.go(self.desktop, dark)
        self.dark = dark
        time.sleep(SETTLED)

    def find(self):
        """Where the row is once it has settled; None where there is none."""
        search = lambda: find_place(self.program, self.empty[self.dark], self.host, self.dark)
        if not soon(search, 12):
            return None
        time.sleep(SETTLED)
        return search()

    def look(self, place, moment):
        """Pairs of check and fault."""
        self.shot(moment)
        if place.visible.empty:
            yield "whole", "nothing is to be seen of it"
            return
        empty = self.empty[self.dark].crop(place.visible)
        lines = ink(self.desktop.screen.picture(place.visible), empty if place.items else None)  # a tray makes room
        yield "whole", appearance_checks.whole(place, lines, self.wanted, empty)
        yield "readable", appearance_checks.readable(lines)
        yield "no box", appearance_checks.blends(self.desktop.screen, place)

    def look_again(self, moment):
        """The place, after telling as one check how the row looks by now."""
        place = self.find()
        if not place:
            self.shot(moment)
            self.tell(moment, "the row is gone")
            return None
        self.tell(moment, "; ".join(reason for _, reason in self.look(place, moment) if reason))
        return place

    def themes(self):
        places = []
        for dark in self.host.themes:
            self.turn(dark)
            places.append(self.look_again("turned dark" if dark else "turned light"))
        return list(filter(None, places))

    def gestures(self, place):
        return Gestures(self.program, place, self.host.draws_menus, self.shot)

    def restart(self):
        self.host.restart(self.desktop)
        time.sleep(SETTLED)
        if place := self.look_again("panel restarted"):
            self.tell("click after restart", self.gestures(place).one_click())


def main():
    name, *rest = sys.argv[1:]
    drive = Drive(next(host for host in HOSTS if host.name == name), *rest)
    try:
        drive.run()
    except Exception as failure:  # whatever goes wrong is a result
        traceback.print_exc()
        drive.shot("failed")
        drive.tell("drive", f"{type(failure).__name__}: {failure}")


if __name__ == "__main__":
    main()
