# SPDX-License-Identifier: MIT
"""A panel that shows tray items announced on the session bus, as far as tests need one."""
import dbus
import dbus.service
from dbus.mainloop.glib import DBusGMainLoop
from gi.repository import GLib

WATCHER = "org.kde.StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
MENU = "com.canonical.dbusmenu"
PROPERTIES = {"IsStatusNotifierHostRegistered": dbus.Boolean(True), "ProtocolVersion": dbus.Int32(0),
              "RegisteredStatusNotifierItems": dbus.Array(signature="s")}


class StatusHost(dbus.service.Object):
    """Watcher and host in one; it is on the bus from its making until close()."""

    def __init__(self):
        self.bus = dbus.SessionBus(mainloop=DBusGMainLoop(), private=True)
        self.item = None  # the bus name of the last item
        super().__init__(self.bus, "/StatusNotifierWatcher")
        self.bus.request_name(WATCHER)

    def close(self):
        self.remove_from_connection()
        self.bus.close()

    @dbus.service.method(WATCHER, in_signature="s", sender_keyword="sender")
    def RegisterStatusNotifierItem(self, name, sender):
        self.item = sender

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="ss", out_signature="v")
    def Get(self, interface, name):
        return PROPERTIES[name]

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="s", out_signature="a{sv}")
    def GetAll(self, interface):
        return PROPERTIES

    @dbus.service.method(dbus.INTROSPECTABLE_IFACE, out_signature="s", path_keyword="path",
                         connection_keyword="connection")
    def Introspect(self, path, connection):
        text = super().Introspect(path, connection)
        shown = "".join(f'<property name="{name}" type="{kind}" access="read"/>'
                        for name, kind in zip(PROPERTIES, ("b", "i", "as")))
        return text.replace(f'<interface name="{WATCHER}">', f'<interface name="{WATCHER}">{shown}')

    def iterate(self):
        """Answers what was asked meanwhile."""
        while GLib.MainContext.default().iteration(False):
            pass

    def call(self, path, interface, method, *arguments):
        """Asks the item, answering its own questions until it answers."""
        answers = []
        proxy = self.bus.get_object(self.item, path, introspect=False)
        proxy.get_dbus_method(method, interface)(*arguments, reply_handler=lambda *values: answers.append(values),
                                                 error_handler=lambda error: answers.append(error), timeout=60)
        while not answers:
            GLib.MainContext.default().iteration(True)
        if isinstance(answers[0], Exception):
            raise answers[0]
        return answers[0]

    def property(self, name):
        return self.call("/StatusNotifierItem", dbus.PROPERTIES_IFACE, "Get", ITEM, name)[0]

    def activate(self, times=1):
        """Clicks the item, however many times in quick succession."""
        item = dbus.Interface(self.bus.get_object(self.item, "/StatusNotifierItem", introspect=False), ITEM)
        for _ in range(times - 1):
            item.Activate(dbus.Int32(10), dbus.Int32(10), ignore_reply=True)
        self.call("/StatusNotifierItem", ITEM, "Activate", dbus.Int32(10), dbus.Int32(10))

    def menu(self):
        """The lines of the menu, opened anew: a dictionary of properties each, with the number under "id"."""
        self.call("/MenuBar", MENU, "AboutToShow", dbus.Int32(0))
        lines = self.call("/MenuBar", MENU, "GetLayout", dbus.Int32(0), dbus.Int32(-1), dbus.Array(signature="s"))[1][2]
        return [dict(properties, id=number) for number, properties, _ in lines]

    def choose(self, is_wanted):
        line = next(line for line in self.menu() if is_wanted(line))
        self.call("/MenuBar", MENU, "Event", line["id"], "clicked", dbus.String("", variant_level=1), dbus.UInt32(0))
