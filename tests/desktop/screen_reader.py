#!/usr/bin/env python3
"""Asks the program over the accessibility bus for what a screen reader reads out. Needs a bus and a display."""
import subprocess
import sys
import threading
import time

import pyatspi


def within(seconds, get):
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        found = get()
        if found:
            return found
        time.sleep(0.1)
    return None


def program():
    return next((app for app in pyatspi.Registry.getDesktop(0) if app and app.name == "Zerimo"), None)


def parts(of):
    yield of
    for part in of:
        if part is not None:
            yield from parts(part)


def press(*keys):
    subprocess.run(["xdotool", *keys], check=True)


def has_focus():
    name = subprocess.run(["xdotool", "getwindowfocus", "getwindowname"], capture_output=True, text=True, check=False)
    return name.stdout.startswith("Zerimo")


heard = []


def hear(event):
    if event.detail1 == 1 and event.source.getRoleName() == "notification":
        heard.append(event.source.name)


described = []


def hear_description(event):
    described.append((event.source.name, event.source.description))


def use():
    """What a learner does, while the main thread listens."""
    within(20, has_focus)
    for line in ("PRINT 7", "SHOW DIA", 'MAKE "N 5', "FD 50"):
        press("type", "--delay", "20", line)
        press("key", "Return")
        within(20, lambda: any(line in words for words in heard))
    pyatspi.Registry.stop()


app = within(30, program)
if app is None:
    sys.exit("the program is not on the accessibility bus")
within(30, lambda: any(part.name == "Command row 1" for part in parts(app)))

pyatspi.Registry.registerEventListener(hear, "object:state-changed:showing")
pyatspi.Registry.registerEventListener(hear_description, "object:property-change:accessible-description")
# Without it, names that have changed are answered from memory.
pyatspi.Registry.registerEventListener(lambda event: None, "object:property-change:accessible-name")
user = threading.Thread(target=use)
user.start()
pyatspi.Registry.start()
user.join()

seen = {(part.getRoleName(), part.name) for part in parts(app)}
expected = {
    ("text", "Command row 1"), ("text", "Program editor"), ("list", "Text screen"), ("list", "Variables"),
    ("filler", "Drawing surface"), ("push button", "12 Light Red"), ("label", "Control String: ."),
    ("check box", "Co-ordinates"), ("scroll bar", "Pen Color, part 1 of red, green, blue"),
}
if not expected <= seen:
    sys.exit(f"not on the bus: {sorted(expected - seen)}")
surface = next(part for part in parts(app) if part.name == "Drawing surface")
if "50.0 up" not in surface.description:
    sys.exit(f"the surface does not tell where the turtle is: {surface.description}")
rows = [part.queryText().getText(0, -1) for part in parts(app) if part.name.startswith("Command row ")]
if rows[:2] != ["PRINT 7", "SHOW DIA"]:
    sys.exit(f"the rows are not read: {rows}")
if heard != ["PRINT 7\n7", "SHOW DIA", 'MAKE "N 5', "FD 50"]:
    sys.exit(f"announced: {heard}")
if ("Variables", "The variables with their values. Entries: 1. Last: :N=5") not in described:
    sys.exit(f"the lists do not tell that they have changed: {described}")
print("a screen reader finds the controls and hears what the lines say")
