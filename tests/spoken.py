#!/usr/bin/python3 -Wignore
"""The running program by its accessibility interface alone: every window's tree is dumped and looked through, and a small
building is stood up, replayed, captured and brought back. Usage: spoken.py FILE-FOR-THE-DUMP"""
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

controls = {"push button", "text", "list", "list item", "combo box", "image", "label", "panel", "scroll bar"}
acting = {"push button", "list item", "combo box", "text"}
dump = open(sys.argv[1], "w", encoding="utf-8")


def has(control, state):
    return control.get_state_set().contains(state)


def below(control):
    for i in range(control.get_child_count()):
        child = control.get_child_at_index(i)
        if child:
            yield child
            yield from below(child)


def program():
    desktop = Atspi.get_desktop(0)
    found = [desktop.get_child_at_index(i) for i in range(desktop.get_child_count())]
    return next((one for one in found if one and one.get_name() == "tessaly"), None)


def waitfor(what, look):
    deadline = time.monotonic() + 20
    while time.monotonic() < deadline:
        found = look()
        if found:
            return found
        time.sleep(0.05)
    sys.exit(f"waited in vain for {what}")


def shown(role, name):
    return next((c for c in below(program()) if c.get_role_name() == role and c.get_name() == name
                 and has(c, Atspi.StateType.SHOWING)), None)


def find(role, name):
    return waitfor(f"the {role} {name!r}", lambda: shown(role, name))


def press(*names):
    for name in names:
        find("push button", name).do_action(0)


def pick(listname, item):
    rows = below(find("list", listname))
    next(row for row in rows if row.get_name() == item).do_action(0)
    waitfor(f"the end of {listname}", lambda: not shown("list", listname))


def enter(name, text):
    Atspi.EditableText.set_text_contents(find("text", name), text)


def fault(control, window):
    role, name = control.get_role_name(), control.get_name()
    if control == window:
        return None if role in ("frame", "dialog") and name else "is neither frame nor dialog with a name"
    if role == "filler":  # what only holds others
        return None
    readonly = has(control, Atspi.StateType.READ_ONLY)
    if role not in controls:
        return "has a role that no control has"
    if not name:
        return "has no name"
    if name.lower() in control.get_description().lower():
        return f"has a description that repeats its name: {control.get_description()}"
    if role in acting and not readonly and not control.get_n_actions():
        return "has no action"
    return None


def lookthrough(title):
    """Dumps a window and ends with what is wrong with its controls."""
    window = next(w for w in below(program()) if w.get_name() == title and has(w, Atspi.StateType.SHOWING))
    for control in [window, *below(window)]:
        role, name = control.get_role_name(), control.get_name()
        if not has(control, Atspi.StateType.SHOWING) and role == "scroll bar":
            continue
        actions = [Atspi.Action.get_action_name(control, i) for i in range(control.get_n_actions())]
        print(f"{title}: {role} {name!r} {actions} {control.get_description()!r}", file=dump)
        wrong = fault(control, window)
        if wrong:
            sys.exit(f"{title}: the {role} {name!r} {wrong}")


waitfor("the program", program)
lookthrough("Tessaly Girder and Panel")
press("Start")
find("image", "The building")
lookthrough("Tessaly Girder and Panel")
press("Posts and beams", "Post at X 0, Y 16, element 1", "Beam along Y at X 0, Y 16, element 49", "Orange panel type 1",
      "Snip left side", "Panel along X at X 0, Y 0, element 85", "Roofs", "Quick view change", "Instructions")
for title in ("Layout Girders", "Panels Layout", "Roof Layout", "Easy views", "Tessaly Panel and Girder"):
    lookthrough(title)
press("Help on captures", "Return to main window", "Eye at X 1800, Y 0", "Set view", "Change floor")
pick("Floors", "2")
press("Post at X 0, Y 16, element 1", "Girder and panel file reader: solid auto")
if not has(find("text", "Prompt for the first file"), Atspi.StateType.READ_ONLY):
    sys.exit("the prompt can be typed into")
pick("First design file, solid replay", "girders1.txt")
pick("Second design file, solid replay", "panels1.txt")
press("Capture screen")
enter("Picture file name", "spoken.bmp")
press("Save capture", "Clear screen", "Display or retrieve image files")
next(row for row in below(find("list", "Image files")) if row.get_name() == "spoken.txt").do_action(0)
press("Display image", "Exit")
