"""A client of the accessibility bus, as a screen reader is one.

It meets the popup by the focus event of one of its fields, reads what is in it, presses a cell of the
palette, and then changes what else it can, looking for the announcement of each change. The arguments are
the program to run, and which Qt it is built with.
"""

import os
import subprocess
import sys
import time

import pyatspi
from gi.repository import Gio, GLib

TIMEOUT = 30  # seconds, for everything
FIELDS = ["Hex", "R", "G", "B", "A", "C", "M", "Y"]
EVENTS = ["object:state-changed:focused", "object:property-change:accessible-value",
          "object:property-change:accessible-name"]

events = []
deadline = time.monotonic() + TIMEOUT


def wait_for(found, what):
    """Lets events come in until found() returns something, and returns that."""
    while not (result := found()):
        if time.monotonic() > deadline:
            heard = sorted({str(event.type) + " " + name_of(event.source) for event in events})
            sys.exit(f"{what}: not within {TIMEOUT} s; heard: {heard}")
        GLib.MainContext.default().iteration(False)
        time.sleep(0.01)
    return result


def name_of(node):
    """A name, or nothing for what has gone in the meantime."""
    try:
        return node.name
    except Exception:
        return ""


def announced(kind, name):
    """The source of an announcement, and forgets what has come so far."""
    for event in events:
        if str(event.type) == kind and name_of(event.source) == name:
            source = event.source
            events.clear()
            return source
    return None


def expect(is_so, what):
    if not is_so:
        sys.exit(f"Not so: {what}")
    print("ok:", what)


def one(root, role, name):
    """The one child, at any depth, with this role and name."""
    found = pyatspi.findAllDescendants(root, lambda node: node.getRoleName() == role and node.name == name)
    expect(len(found) == 1, f"one {role} called {name}")
    return found[0]


def do(node, action):
    actions = node.queryAction()
    names = [actions.getName(i) for i in range(actions.nActions)]
    expect(action in names, f"{node.name} can {action}")
    actions.doAction(names.index(action))


def is_there():
    return any(app and app.name == "tavik-atspi-stage" for app in pyatspi.Registry.getDesktop(0))


def meet_popup():
    field = wait_for(lambda: announced("object:state-changed:focused", "R"), "focus in R")
    popup = field.parent
    while popup.getRoleName() != "dialog":
        popup = popup.parent
    expect(popup.name == "Color Picker", "the field is in the popup")
    return popup


def check_popup(popup):
    for name in FIELDS:
        one(popup, "text", name)
    for name in ["Hue", "Alpha", "Saturation and value"]:
        one(popup, "slider", name)
    one(popup, "push button", "Pick a color from the screen")

    square = one(popup, "slider", "Saturation and value")
    expect(square.description == "saturation 100 %, value 100 %, #ff0000", "the square tells its colour")
    palette = one(popup, "table", "Palette")
    table = palette.queryTable()
    expect((table.nRows, table.nColumns) == (2, 8), "a palette of two rows and eight columns")
    expect(palette.getChildAtIndex(15).name == "Add the current color", "the add button is the last")

    do(table.getAccessibleAt(0, 2), "Press")
    wait_for(lambda: announced("object:property-change:accessible-name", "Fill, #f7c016"), "the new colour")
    field = one(popup, "text", "Hex").queryText()
    expect(field.getText(0, field.characterCount) == "f7c016", "the field has the colour")
    expect(square.description.endswith("#f7c016"), "the square has the colour")

    square.queryValue().currentValue = 20
    wait_for(lambda: announced("object:property-change:accessible-value", square.name), "the square's value")
    expect(square.queryValue().currentValue == 20, "the square takes a saturation")


def check_window(window):
    handle = one(window, "slider", "Start")
    handle.queryValue().currentValue = 30
    wait_for(lambda: announced("object:property-change:accessible-value", "Start"), "the handle's value")
    expect(handle.queryValue().currentValue == 30, "the handle takes a value")

    panel = one(window, "panel", "Effects")
    expect(panel.getState().contains(pyatspi.STATE_EXPANDABLE), "the panel is expandable")
    do(panel, "Toggle")
    # The toolkit passes a change of this state on to no client; it is read.
    wait_for(lambda: panel.getState().contains(pyatspi.STATE_EXPANDED), "the panel's state")


def bus_address():
    """The accessibility bus."""
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    reply = bus.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None,
                          Gio.DBusCallFlags.NONE, -1, None)
    return reply.unpack()[0]


environment = dict(os.environ)
if sys.argv[2] == "5":  # where root runs it, it doesn't look for the bus; Qt 6 does, and fails when it is told
    environment["AT_SPI_BUS_ADDRESS"] = bus_address()
stage = subprocess.Popen([sys.argv[1]], env=environment)
try:
    wait_for(is_there, "the program on the bus")
    pyatspi.Registry.registerEventListener(events.append, *EVENTS)
    popup = meet_popup()
    check_popup(popup)
    check_window(popup.getApplication())
finally:
    stage.terminate()
    stage.wait()
