#!/usr/bin/python3 -Wignore
"""Plays a script in the running program through its accessibility interface alone, and checks every window that opens.
Usage: accessibility.py SCRIPT FILE-FOR-THE-DUMP"""
import re
import sys
import time
from pathlib import Path

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

table = Path(__file__).parent.parent / "core/controls.def"
roles = {"push button", "text", "list", "list item", "combo box", "image", "label", "panel", "scroll bar"}
acting = {"push button", "list item", "combo box", "text"}
dump = open(sys.argv[2], "w", encoding="utf-8")


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


def find(role, name):
    def shown():
        return next((c for c in below(program()) if c.get_role_name() == role and c.get_name() == name
                     and has(c, Atspi.StateType.SHOWING)), None)
    return waitfor(f"the {role} {name!r}", shown)


def fault(control, role, name):
    if role not in roles:
        return "has a role that no control has"
    if not name:
        return "has no name"
    if name.lower() in control.get_description().lower():
        return f"has a description that repeats its name: {control.get_description()}"
    readonly = has(control, Atspi.StateType.READ_ONLY)
    if name.startswith("Prompt") and not readonly:
        return "can be typed into"
    if role in acting and not readonly and not control.get_n_actions():
        return "has no action"
    return None


def lookthrough(window):
    title = window.get_name()
    if window.get_role_name() not in ("frame", "dialog") or not title:
        sys.exit(f"the window {title!r} is neither frame nor dialog with a name")
    for control in below(window):
        role, name = control.get_role_name(), control.get_name()
        if role == "filler" or role == "scroll bar" and not has(control, Atspi.StateType.SHOWING):
            continue  # a filler only holds others
        actions = [Atspi.Action.get_action_name(control, i) for i in range(control.get_n_actions())]
        print(f"{title}: {role} {name!r} {actions} {control.get_description()!r}", file=dump)
        wrong = fault(control, role, name)
        if wrong:
            sys.exit(f"{title}: the {role} {name!r} {wrong}")


def namesofcontrols():
    """Yields each control of the table with its accessible name. Comments of the script name the position buttons."""
    for row in re.finditer(r'^CONTROL\(\w+, *\w+, *(\w+),.*?"(.*?)",.*"(.*)"\)$', table.read_text(), re.M):
        yield row[1], row[3] or " ".join(row[2].split())


waitfor("the program", program)
names = dict(namesofcontrols())
lookedthrough, pressed = [], None
for line in open(sys.argv[1], encoding="utf-8"):
    played = re.match(r'(click|pick|type) (\w+)(?: "(.*)")? *(?:# \d+ \d+ ?(.*))?', line)
    if not played:
        continue
    command, control, text, place = played.groups()
    found = find({"click": "push button", "pick": "list", "type": "text"}[command], names.get(control, place))
    for i in range(program().get_child_count()):
        window = program().get_child_at_index(i)
        if has(window, Atspi.StateType.SHOWING) and window not in lookedthrough:
            lookedthrough.append(window)
            lookthrough(window)
    waitfor("the last button's release", lambda: not pressed or not has(pressed, Atspi.StateType.PRESSED))
    if command == "click":
        pressed = found
        found.do_action(0)
    elif command == "type":
        Atspi.EditableText.set_text_contents(found, text)
    else:
        next(row for row in below(found) if row.get_name() == text).do_action(0)
