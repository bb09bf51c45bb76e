# SPDX-License-Identifier: MIT
"""What another program sees and does on the display of a test, below and beside the widgets."""
import time

from Xlib import X, Xatom, display

from program import wait_for

SMALL = 170  # points of a widget
PLAIN, PINNED = (200, 300), (600, 300)  # upper left corners of the faces of two widgets
WINDOW, DESKTOP = 0x2060C0, 0x406040
PLACE = (150, 120, 800, 500)  # of a window over both of them


def settings(height):
    """A plain and a pinned widget on a screen of that height."""
    widgets = [{"kind": "cpu", "skin": "glass", "pinned": face is PINNED, "origin": [face[0], height - face[1] - SMALL]}
               for face in (PLAIN, PINNED)]
    return {"hasLaunchedBefore": True, "animations": False, "clickToOpen": False, "overlap": "show", "widgets.v2": widgets}


def holds(condition, seconds=10):
    """Whether it comes true, and is still true a moment later."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if condition():
            time.sleep(0.25)
            if condition():
                return True
        time.sleep(0.05)
    return False


def spot(face):
    """A point of a face where nothing is written."""
    return face[0] + SMALL // 2, face[1] + SMALL - 8


class Screen:
    """What another program on the display does and sees."""

    def __init__(self):
        self.display = display.Display()
        self.root = self.display.screen().root
        self.heard = 0

    def open(self, place, colour, kind="NORMAL"):
        screen = self.display.screen()
        window = self.root.create_window(*place, 0, screen.root_depth, X.InputOutput, X.CopyFromParent,
                                         background_pixel=colour, event_mask=X.ButtonPressMask | X.EnterWindowMask)
        window.set_wm_normal_hints(flags=5, min_width=0)  # its position is meant
        window.set_wm_hints(flags=1, input=1)
        window.change_property(self.atom("_NET_WM_WINDOW_TYPE"), Xatom.ATOM, 32, [self.atom(f"_NET_WM_WINDOW_TYPE_{kind}")])
        window.change_property(self.atom("_MOTIF_WM_HINTS"), self.atom("_MOTIF_WM_HINTS"), 32, [2, 0, 0, 0, 0])
        window.map()
        self.display.sync()
        wait_for("window", lambda: window.get_attributes().map_state == X.IsViewable)
        return window

    def atom(self, name):
        return self.display.intern_atom(name)

    def pixel(self, x, y):
        image = self.root.get_image(int(x), int(y), 1, 1, X.ZPixmap, 0xFFFFFFFF)
        return int.from_bytes(image.data[:3], "little")

    def focus(self):
        """The number of the window with the keyboard; 0 and 1 are nothing and whatever is under the pointer."""
        focus = self.display.get_input_focus().focus
        return focus if isinstance(focus, int) else focus.id

    def clicks(self):
        """On the windows opened here, so far."""
        self.display.sync()
        self.heard += sum(self.display.next_event().type == X.ButtonPress for _ in range(self.display.pending_events()))
        return self.heard

    def covers(self, window, face):
        """Whether the window reaches over that face, wherever the window manager put it."""
        size = window.get_geometry()
        place = window.translate_coords(self.root, 0, 0)
        x, y = -place.x, -place.y
        return x <= face[0] and y <= face[1] and face[0] + SMALL <= x + size.width and face[1] + SMALL <= y + size.height

    def has_layers(self, window):
        """Whether that window lies over the plain widget and under the pinned one, and stays there."""
        return holds(lambda: self.covers(window, PLAIN) and self.covers(window, PINNED)
                     and self.pixel(*spot(PLAIN)) == WINDOW != self.pixel(*spot(PINNED)))
