# SPDX-License-Identifier: MIT
"""The desktop's picture on the root window, as other programs see and set it."""
import subprocess
import sys

try:
    from Xlib import X, Xatom, display, error
except ImportError:
    print("skipped: python3-xlib is not installed")
    sys.exit(77)


class Root:
    """What other programs see of the desktop's picture, at some points of it."""

    def __init__(self):
        self.display = display.Display()
        self.window = self.display.screen().root
        size = self.window.get_geometry()
        self.points = [(size.width * x // 8, size.height * y // 8) for x in range(1, 8) for y in range(1, 8)]

    def pixels(self):
        told = self.window.get_full_property(self.display.intern_atom("_XROOTPMAP_ID"), X.AnyPropertyType)
        if not told:
            return None
        picture = self.display.create_resource_object("pixmap", told.value[0])
        try:
            return [picture.get_image(x, y, 1, 1, X.ZPixmap, 0xFFFFFFFF).data[:3][::-1] for x, y in self.points]
        except error.BadDrawable:  # another one took its place meanwhile
            return None

    def on_top(self, x, y):
        """What the screen shows there, windows and all."""
        return self.window.get_image(x, y, 1, 1, X.ZPixmap, 0xFFFFFFFF).data[:3][::-1]

    def shows(self, file, left=0, width=None):
        """Whether it is what is in the file, a picture as large as the screen, or as that part of it."""
        size = self.window.get_geometry()
        width = width or size.width
        raw = subprocess.run(["convert", str(file), "-depth", "8", "rgb:-"], check=True, capture_output=True).stdout
        if len(raw) != 3 * width * size.height:
            return False
        seen = [(raw[3 * (y * width + x - left):][:3], pixel) for (x, y), pixel in zip(self.points, self.pixels() or ())
                if left <= x < left + width]
        return bool(seen) and all(abs(a - b) <= 1 for wanted, pixel in seen for a, b in zip(wanted, pixel))

    def is_filled(self, colour, left=0, width=None):
        """Whether it, or that part of it, is of that colour."""
        right = left + (width or self.window.get_geometry().width)
        seen = {pixel for (x, _), pixel in zip(self.points, self.pixels() or ()) if left <= x < right}
        return seen == {colour.to_bytes(3, "big")}


def fill_root(colour):
    """As programs that set a desktop's picture do: they leave it behind when they end."""
    setter = display.Display()
    setter.set_close_down_mode(X.RetainPermanent)
    window = setter.screen().root
    size = window.get_geometry()
    picture = window.create_pixmap(size.width, size.height, size.depth)
    picture.fill_rectangle(picture.create_gc(foreground=colour), 0, 0, size.width, size.height)
    for name in ("_XROOTPMAP_ID", "ESETROOT_PMAP_ID"):
        window.change_property(setter.intern_atom(name), Xatom.PIXMAP, 32, [picture.id])
    window.change_attributes(background_pixmap=picture)
    window.clear_area()
    setter.close()
