#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Prints each notice that appears on the screen, as a screen reader is told of it, one a line after a first line
that says it listens, until it is ended."""

import warnings

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402


def take(event):
    if event.detail1 == 1 and event.source.get_role_name() == "notification":
        print(event.source.get_name(), flush=True)


warnings.simplefilter("ignore")  # old and new names of the same calls
Atspi.init()
listener = Atspi.EventListener.new(take)
# Changes of names keep those that are known here up to date.
listener.register("object:property-change:accessible-name")
listener.register("object:state-changed:showing")
print("listening", flush=True)
Atspi.event_main()
