#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The tray of a desktop's panel: shows the items of programs, asks them for what a panel draws, and follows them.

Says "ready" once it is on the bus, and "item" for every item that it shows.
"""
import sys
from pathlib import Path

import dbus.service
from gi.repository import GLib

sys.path.append(str(Path(__file__).parents[1] / "tests/support"))

from status_host import WATCHER, StatusHost  # noqa: E402

DRAWN = ("Title", "Status", "IconName", "IconPixmap", "ToolTip", "Menu")


class Tray(StatusHost):
    @dbus.service.method(WATCHER, in_signature="s", sender_keyword="sender")
    def RegisterStatusNotifierItem(self, name, sender):
        self.item = sender
        GLib.idle_add(self.show)

    def show(self):
        for name in DRAWN:
            self.property(name)
        self.menu()
        print("item", flush=True)
        return GLib.SOURCE_REMOVE


def main():
    tray = Tray()
    print("ready", flush=True)
    GLib.MainLoop().run()
    del tray


main()
