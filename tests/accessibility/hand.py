#!/usr/bin/python3
"""Plays one hand at the program Table with nothing but what a screen reader has: AT-SPI, from a process of its own.

It waits for what it waits for; the time limit only ends a test that has failed.
"""

import sys
import time

import pyatspi

TIME_LIMIT = 60  # seconds, for one condition
PAUSE = 0.02  # seconds, between two looks


def wait_for(what, condition):
    """Waits until the condition gives something, and returns that."""
    end = time.monotonic() + TIME_LIMIT
    while time.monotonic() < end:
        try:
            found = condition()
        except Exception:  # A node may go while one looks at it.
            found = None
        if found:
            print("ok:", what, flush=True)
            return found
        time.sleep(PAUSE)
    sys.exit("No " + what + ". There is:\n" + "\n".join(lines_of(table())))


def table():
    desktop = pyatspi.Registry.getDesktop(0)
    for index in range(desktop.childCount):
        program = desktop.getChildAtIndex(index)
        if program is not None and program.name == "Table":
            return program
    return None


def nodes_in(node):
    yield node
    for index in range(node.childCount):
        child = node.getChildAtIndex(index)
        if child is not None:
            yield from nodes_in(child)


def lines_of(node):
    if node is None:
        return ["no program"]
    return [each.getRoleName() + " '" + each.name + "'" for each in nodes_in(node)]


def showing(role, name_has):
    """The node of a role that is showing and has a text in its name."""
    for node in nodes_in(table()):
        if node.getRole() == role and name_has in node.name and node.getState().contains(pyatspi.STATE_SHOWING):
            return node
    return None


def press(node):
    action = node.queryAction()
    names = [action.getName(index) for index in range(action.nActions)]
    action.doAction(names.index("Press"))


def press_when_there(role, name):
    def usable():
        node = showing(role, name)
        return node if node and node.getState().contains(pyatspi.STATE_ENABLED) else None

    press(wait_for(name + " to press", usable))


def reported(what):
    wait_for("report of " + what, lambda: showing(pyatspi.ROLE_LABEL, "Reported: " + what))


def every_node_is_named():
    """A user of a screen reader finds no showing node of the box without a name, and none named by an identifier."""
    box = wait_for("decision box", lambda: showing(pyatspi.ROLE_PANEL, "Decision"))
    for node in nodes_in(box):
        if not node.getState().contains(pyatspi.STATE_SHOWING):
            continue
        if not node.name or node.name.startswith(("cmd", "lbl", "pic", "ManualPlay")):
            sys.exit("A bad name: '" + node.name + "' of a " + node.getRoleName())
    print("ok: every node is named", flush=True)


wait_for("program", table)
press_when_there(pyatspi.ROLE_PUSH_BUTTON, "Deal")
wait_for("prompt for Ann", lambda: showing(pyatspi.ROLE_ALERT, "Ann"))
wait_for("total in the prompt", lambda: showing(pyatspi.ROLE_ALERT, "16"))
every_node_is_named()

press_when_there(pyatspi.ROLE_PUSH_BUTTON, "Advice")
reported("advice")  # which comes once the advised button has flashed
wait_for("advised button", lambda: showing(pyatspi.ROLE_PUSH_BUTTON, "HIT"))

press_when_there(pyatspi.ROLE_PUSH_BUTTON, "HoleCard")
wait_for("menu", lambda: showing(pyatspi.ROLE_POPUP_MENU, "Hole Card"))
press_when_there(pyatspi.ROLE_MENU_ITEM, "is Low")
reported("low hole card")
wait_for("end of the menu", lambda: not showing(pyatspi.ROLE_POPUP_MENU, "Hole Card"))

press_when_there(pyatspi.ROLE_PUSH_BUTTON, "HIT")
reported("hit")
