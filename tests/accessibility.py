#!/usr/bin/python3 -Wignore
"""Plays a script in the running program through the accessibility interface only, and checks the controls of each window.
Usage: accessibility.py SCRIPT"""
import re
import sys
import time
from pathlib import Path

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

table = Path(__file__).parent.parent / "core/controls.def"
acting = {"push button", "list item", "combo box", "text"}  # roles of controls that need an action
roles = acting | {"list", "image", "label", "panel", "scroll bar"}


def has(control, state):
    return control.get_state_set().contains(state)


def children(parent):
    return [child for child in map(parent.get_child_at_index, range(parent.get_child_count())) if child]


def descendants(parent):
    for child in children(parent):
        yield child
        yield from descendants(child)


def waitfor(what, look):
    deadline = time.monotonic() + 20
    while not (found := look()):
        if time.monotonic() > deadline:
            sys.exit(f"waited in vain for {what}")
        time.sleep(0.05)
    return found


def program():
    return next((p for p in children(Atspi.get_desktop(0)) if p.get_name() == "tessaly"), None)


def find(role, name):
    return waitfor(f"the {role} {name!r}", lambda: next((
        c for c in descendants(program())
        if c.get_role_name() == role and c.get_name() == name and has(c, Atspi.StateType.SHOWING)), None))


def check(control, window):
    role, name, description = control.get_role_name(), control.get_name(), control.get_description()
    if role == "filler" or role == "scroll bar" and not has(control, Atspi.StateType.SHOWING):
        return  # a filler only contains other controls
    readonly = has(control, Atspi.StateType.READ_ONLY)
    for wrong, fault in (
            (role not in roles, "has a role that no control has"),
            (name.lower() in description.lower(), f"has no name or repeats it in its description: {description}"),
            (role in acting and not readonly and not control.get_n_actions(), "has no action")):
        if wrong:
            sys.exit(f"{window}: the {role} {name!r} {fault}")


waitfor("the program", program)
# Accessible names by control; the names of position buttons are in the comments of the script.
names = {row[1]: row[3] or " ".join(row[2].split()) for row in
         re.finditer(r'^CONTROL\(\w+, *\w+, *(\w+),.*?"(.*?)",.*"(.*)"\)$', table.read_text(), re.M)}
checked, pressed = [], None
for line in open(sys.argv[1], encoding="utf-8"):
    step = re.match(r'(click|pick|type) (\w+)(?: "(.*)")? *(?:# \d+ \d+ ?(.*))?', line)
    if not step:
        continue
    command, control, text, position = step.groups()
    found = find({"click": "push button", "pick": "list", "type": "text"}[command], names.get(control, position))
    for window in children(program()):
        if has(window, Atspi.StateType.SHOWING) and window not in checked:
            checked.append(window)
            if window.get_role_name() not in ("frame", "dialog") or not window.get_name():
                sys.exit(f"the window {window.get_name()!r} is not a frame or dialog with a name")
            for descendant in descendants(window):
                check(descendant, window.get_name())
    waitfor("the last button's release", lambda: not pressed or not has(pressed, Atspi.StateType.PRESSED))
    if command == "click":
        pressed = found
        found.do_action(0)
    elif command == "type":
        Atspi.EditableText.set_text_contents(found, text)
    else:
        next(row for row in descendants(found) if row.get_name() == text).do_action(0)
