#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Stands in for whatever the live services ask, and answers late: peers.py DELAY.

On the bus that DBUS_SESSION_BUS_ADDRESS names there are a media player, a notification service, BlueZ, UPower and
GeoClue, each of which takes DELAY seconds for an answer. A web server sends its answers byte by byte, and keeps every
third for ever. With a delay of 0 there is no player, and all answers come at once. Writes the server's port on standard
output.
"""
import http.server
import json
import sys
import threading
import time

import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

DELAY = float(sys.argv[1])
PROPERTIES = "org.freedesktop.DBus.Properties"
PLAYER = "org.mpris.MediaPlayer2"
FORECAST = json.dumps({
    "utc_offset_seconds": 0,
    "current": {"temperature_2m": 17.2, "apparent_temperature": 16, "weather_code": 2, "is_day": 1},
    "daily": {"time": [f"2026-10-{14 + day}" for day in range(7)], "weather_code": [2] * 7,
              "temperature_2m_max": [19] * 7, "temperature_2m_min": [9] * 7,
              "sunrise": ["2026-10-14T07:35"], "sunset": ["2026-10-14T18:58"]}}).encode()
PLACES = json.dumps({"results": [{"name": "Bergen", "latitude": 60.39, "longitude": 5.32}]}).encode()


def method(interface, takes="", gives=""):
    """A D-Bus method that gets `reply` and `error` as its last two arguments."""
    return dbus.service.method(interface, in_signature=takes, out_signature=gives, async_callbacks=("reply", "error"))


def later(reply, result):
    GLib.timeout_add(int(1000 * DELAY), reply, result)


class Player(dbus.service.Object):
    """Plays one title after another, so that there is always something to ask."""

    def __init__(self, bus, port):
        super().__init__(dbus.service.BusName(f"{PLAYER}.slow", bus), "/org/mpris/MediaPlayer2")
        self.port, self.title = port, 0
        GLib.timeout_add_seconds(2, self.next)

    def next(self):
        self.title += 1
        self.PropertiesChanged(f"{PLAYER}.Player", self.values(), [])
        return True

    def values(self):
        metadata = {"xesam:title": f"Title {self.title}", "xesam:artist": dbus.Array(["Nobody"], "s"),
                    "mpris:length": dbus.Int64(180_000_000),
                    "mpris:artUrl": f"http://127.0.0.1:{self.port}/artwork{self.title}"}
        return dbus.Dictionary({"PlaybackStatus": "Playing", "Position": dbus.Int64(1_000_000), "Rate": 1.0,
                                "Metadata": dbus.Dictionary(metadata, "sv")}, "sv")

    @method(PROPERTIES, takes="s", gives="a{sv}")
    def GetAll(self, interface, reply, error):
        later(reply, self.values())

    @method(PROPERTIES, takes="ss", gives="v")
    def Get(self, interface, name, reply, error):
        later(reply, "Slow player")

    @dbus.service.signal(PROPERTIES, "sa{sv}as")
    def PropertiesChanged(self, interface, changed, invalidated):
        pass


class Notifications(dbus.service.Object):
    def __init__(self, bus):
        super().__init__(dbus.service.BusName("org.freedesktop.Notifications", bus), "/org/freedesktop/Notifications")

    @method("org.freedesktop.Notifications", takes="susssasa{sv}i", gives="u")
    def Notify(self, name, replaces, icon, summary, body, actions, hints, timeout, reply, error):
        later(reply, dbus.UInt32(1))


def device(number):
    return {"Address": f"11:22:33:44:55:{number:02}", "Alias": f"Headphones {number}", "Connected": True,
            "Icon": "audio-headset"}


class Bluez(dbus.service.Object):
    def __init__(self, bus):
        super().__init__(dbus.service.BusName("org.bluez", bus), "/")

    @method("org.freedesktop.DBus.ObjectManager", gives="a{oa{sa{sv}}}")
    def GetManagedObjects(self, reply, error):
        objects = {"/org/bluez/hci0": {"org.bluez.Adapter1": {"Powered": True}}}
        for number in range(20):
            objects[f"/org/bluez/hci0/dev_{number}"] = {"org.bluez.Device1": device(number),
                                                        "org.bluez.Battery1": {"Percentage": dbus.Byte(40 + number)}}
        later(reply, objects)


class UPowerDevice(dbus.service.Object):
    def __init__(self, bus, number):
        super().__init__(bus, f"/org/freedesktop/UPower/devices/mouse{number}")
        self.number = number

    @method(PROPERTIES, takes="s", gives="a{sv}")
    def GetAll(self, interface, reply, error):
        later(reply, {"Type": dbus.UInt32(5), "Model": f"Mouse {self.number}", "IsPresent": True, "Percentage": 55.0,
                "State": dbus.UInt32(2), "PowerSupply": False, "Serial": f"s{self.number}"})


class UPower(dbus.service.Object):
    def __init__(self, bus):
        super().__init__(dbus.service.BusName("org.freedesktop.UPower", bus), "/org/freedesktop/UPower")
        self.devices = [UPowerDevice(bus, number) for number in range(20)]

    @method("org.freedesktop.UPower", gives="ao")
    def EnumerateDevices(self, reply, error):
        later(reply, [dbus.ObjectPath(each.__dbus_object_path__) for each in self.devices])


class GeoClue(dbus.service.Object):
    def __init__(self, bus):
        super().__init__(dbus.service.BusName("org.freedesktop.GeoClue2", bus), "/org/freedesktop/GeoClue2/Manager")

    @method("org.freedesktop.GeoClue2.Manager", gives="o")
    def GetClient(self, reply, error):
        later(reply, dbus.ObjectPath("/org/freedesktop/GeoClue2/Client/1"))


class Trickle(http.server.BaseHTTPRequestHandler):
    served = 0

    def do_GET(self):
        Trickle.served += 1
        if DELAY and Trickle.served % 3 == 0:
            time.sleep(3600)
        body = PLACES if self.path.startswith("/v1/search") else FORECAST
        time.sleep(DELAY)
        self.send_response(200)
        self.send_header("Content-Type", "application/json")
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        for byte in body:
            self.wfile.write(bytes([byte]))
            time.sleep(DELAY / 200)

    def log_message(self, *_):
        pass


def main():
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Trickle)
    server.daemon_threads = True
    threading.Thread(target=server.serve_forever, daemon=True).start()
    bus = dbus.SessionBus()
    peers = [Notifications(bus), Bluez(bus), UPower(bus), GeoClue(bus)]
    if DELAY:
        peers.append(Player(bus, server.server_port))
    print(server.server_port, flush=True)
    GLib.MainLoop().run()
    del peers


main()
