#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Looks at the programs on the accessibility bus as a screen reader does, and acts on them.

usage: accessibility.py find ROLE NAME          waits for it and prints its role, name and states
       accessibility.py absent ROLE NAME        waits until it is not there
       accessibility.py press ROLE NAME         presses it
       accessibility.py focus ROLE NAME         gives it the keyboard focus
       accessibility.py hear ROLE NAME COMMAND  runs the command, every two seconds, until it is told that this shows
A NAME that ends in "*" is the beginning of a name. Exit status 1: not there, or still there, after ten seconds."""

import subprocess
import sys
import time
import warnings

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

ACTIONS = {"press": "Press", "focus": "SetFocus"}
STATES = [Atspi.StateType.FOCUSABLE, Atspi.StateType.FOCUSED, Atspi.StateType.SELECTED, Atspi.StateType.CHECKED, Atspi.StateType.ENABLED]


def descendants(node):
    for i in range(node.get_child_count()):
        child = node.get_child_at_index(i)
        if child is not None:
            yield child
            yield from descendants(child)


def is_called(node, role, name):
    own = node.get_name() or ""
    fits = own.startswith(name[:-1]) if name.endswith("*") else own == name
    return fits and node.get_role_name() == role


def matches(node, role, name):
    return is_called(node, role, name) and node.get_state_set().contains(Atspi.StateType.SHOWING)


def find(role, name):
    deadline = time.monotonic() + 10
    while time.monotonic() < deadline:
        try:
            for node in descendants(Atspi.get_desktop(0)):
                if matches(node, role, name):
                    return node
        except GLib.Error:
            pass  # a node went away while it was looked at
        time.sleep(0.05)
    seen = [f"{node.get_role_name()}: {node.get_name()}" for node in descendants(Atspi.get_desktop(0))]
    sys.exit(f"there is no {role} {name!r} among:\n" + "\n".join(seen))


def absent(role, name):
    deadline = time.monotonic() + 10
    while any(matches(node, role, name) for node in descendants(Atspi.get_desktop(0))):
        if time.monotonic() > deadline:
            sys.exit(f"there still is a {role} {name!r}")
        time.sleep(0.05)


def hear(role, name, command):
    def take(event):
        if event.detail1 == 1 and is_called(event.source, role, name):
            print(f"{role}: {event.source.get_name()}")
            Atspi.event_quit()

    # A program tells only from the time on when it has heard that somebody listens. Changes of names keep those that
    # are known here up to date.
    listener = Atspi.EventListener.new(take)
    listener.register("object:property-change:accessible-name")
    listener.register("object:state-changed:showing")
    run = lambda: subprocess.Popen(command) is not None
    run()
    GLib.timeout_add_seconds(2, run)
    GLib.timeout_add_seconds(10, Atspi.event_quit)
    Atspi.event_main()


def main():
    warnings.simplefilter("ignore")  # old and new names of the same calls
    Atspi.init()
    command, role, name = sys.argv[1:4]
    if command == "hear":
        return hear(role, name, sys.argv[4:])
    if command == "absent":
        return absent(role, name)
    node = find(role, name)
    if command in ACTIONS:
        action = node.get_action_iface()
        names = [action.get_action_name(i) for i in range(action.get_n_actions())]
        action.do_action(names.index(ACTIONS[command]))
    states = [state.value_nick for state in STATES if node.get_state_set().contains(state)]
    print(f"{node.get_role_name()}: {node.get_name()} [{' '.join(states)}]")


main()
