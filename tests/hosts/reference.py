"""The row as the program draws it where nothing cuts it, in every style that is right: in a tray that gives each window
what it asks for.

To be started by run.py, in processes of its own that end with it. Usage: reference.py BINARY FOLDER SHOTS"""

import sys
import time
from pathlib import Path

from Xlib import X

from desktop import Desktop, soon
from machine import Machine
from program import Program

STYLES = ("stacked", "inline")  # the second is for panels too low for the first


def reference(shots, style):
    """The file of the row's picture."""
    return Path(shots) / f"reference-{style}.png"


def start_tray(display):
    """Makes a tray, and returns its window."""
    root = display.screen()
    window = root.root.create_window(0, 0, 800, 60, 0, root.root_depth, background_pixel=root.white_pixel)
    window.map()
    window.set_selection_owner(display.get_atom("_NET_SYSTEM_TRAY_S0"), X.CurrentTime)
    display.sync()
    return window


def embed(display, tray):
    """Embeds what has asked for it; False until something has."""
    while display.pending_events():
        event = display.next_event()
        if event.type == X.ClientMessage and event.client_type == display.get_atom("_NET_SYSTEM_TRAY_OPCODE"):
            child = display.create_resource_object("window", event.data[1][2])
            child.reparent(tray, 10, 10)
            child.map()
            display.sync()
            return True
    return False


def main(binary, folder, shots):
    desktop = Desktop(folder / "session")
    display = desktop.screen.display
    tray = start_tray(display)
    machine = Machine(folder / "machine")
    for style in STYLES:
        program = Program(desktop, binary, machine, style)
        program.start()
        desktop.wait("row to embed", lambda: embed(display, tray))
        time.sleep(6)  # until every reading is there
        desktop.screen.picture(soon(program.row_window, 5).rect).save(reference(shots, style))
        program.end()


if __name__ == "__main__":
    main(sys.argv[1], Path(sys.argv[2]), sys.argv[3])
