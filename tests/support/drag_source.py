# SPDX-License-Identifier: MIT
"""A program with files to drag: drag_source.py

Opens a small window at the upper left corner of the screen. A line with a JSON list says which files it holds from then on,
which it answers with "ready". They are dragged from it with the pointer, as from a file manager (the XDND protocol, version
5). After each release one line says what the other side answered: "refused", or "taken" and the action.
"""
import json
import select
import sys
from pathlib import Path

from Xlib import X, Xatom, display
from Xlib.protocol import event

SIZE = 40
VERSION = 5


class Source:
    def __init__(self):
        self.display = display.Display()
        self.root = self.display.screen().root
        self.uris = b""
        self.window = self.root.create_window(0, 0, SIZE, SIZE, 0, X.CopyFromParent, override_redirect=True,
                                              background_pixel=0x808080, event_mask=X.ButtonPressMask | X.ButtonReleaseMask
                                              | X.ButtonMotionMask)
        self.window.map()
        self.window.change_property(self.atom("XdndTypeList"), Xatom.ATOM, 32, [self.atom("text/uri-list")])
        self.target = None
        self.begin(None)

    def begin(self, target):
        self.target = target
        self.accepted = self.waiting = self.dropped = False
        self.moved = None  # where the pointer went while an answer was awaited

    def atom(self, name):
        return self.display.intern_atom(name)

    def tell(self, name, *data):
        data = [self.window.id, *data]
        message = event.ClientMessage(window=self.target, client_type=self.atom(name), data=(32, data + [0] * (5 - len(data))))
        self.target.send_event(message)

    def under_pointer(self):
        """The window there that takes drops."""
        window = self.root.query_pointer().child
        while window:
            if window.get_full_property(self.atom("XdndAware"), X.AnyPropertyType):
                return window
            window = window.query_pointer().child
        return None

    def point(self, x, y, when):
        target = self.under_pointer()
        if target != self.target:
            if self.target:
                self.tell("XdndLeave")
            self.begin(target)
            if target:
                self.tell("XdndEnter", VERSION << 24, self.atom("text/uri-list"))
        if not target:
            return
        if self.waiting:
            self.moved = x, y, when
            return
        self.waiting = True
        self.tell("XdndPosition", 0, x << 16 | y, when, self.atom("XdndActionCopy"))

    def release(self, when):
        if self.waiting:
            self.dropped = when  # once it is known whether it may be
        elif self.accepted:
            self.tell("XdndDrop", 0, when)
        else:
            if self.target:
                self.tell("XdndLeave")
            self.say("refused")

    def say(self, words):
        self.display.flush()  # who hears it may end this program
        print(words, flush=True)
        self.begin(None)

    def hear(self, message):
        flags = message.data[1][1]
        if message.client_type == self.atom("XdndStatus"):
            self.waiting = False
            self.accepted = bool(flags & 1)
            if self.moved:
                moved, self.moved = self.moved, None
                self.point(*moved)
            elif self.dropped:
                self.release(self.dropped)
        elif message.client_type == self.atom("XdndFinished"):
            self.say(f"taken {self.display.get_atom_name(message.data[1][2])}" if flags & 1 else "refused")

    def hand_over(self, request):
        request.requestor.change_property(request.property, request.target, 8, self.uris)
        request.requestor.send_event(event.SelectionNotify(time=request.time, requestor=request.requestor,
                                                           selection=request.selection, target=request.target,
                                                           property=request.property))

    def hold(self, files):
        self.uris = "".join(Path(file).absolute().as_uri() + "\r\n" for file in files).encode()
        self.display.sync()
        self.say("ready")

    def events(self):
        """What comes from the display, until there is nothing more to do."""
        while True:
            while self.display.pending_events():
                yield self.display.next_event()
            readable, _, _ = select.select([self.display, sys.stdin], [], [])
            if sys.stdin in readable:
                line = sys.stdin.readline()
                if not line:
                    return
                self.hold(json.loads(line))

    def run(self):
        for each in self.events():
            if each.type == X.ButtonPress:
                self.window.set_selection_owner(self.atom("XdndSelection"), each.time)
            elif each.type == X.MotionNotify:
                self.point(each.root_x, each.root_y, each.time)
            elif each.type == X.ButtonRelease:
                self.release(each.time)
            elif each.type == X.SelectionRequest:
                self.hand_over(each)
            elif each.type == X.ClientMessage:
                self.hear(each)
            self.display.flush()


Source().run()
