#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Goes through the settings of the main window by keyboard: settings_tab_test.py PROGRAM.

Each control is found by the search and worked by its key; what it stored outlives a kill. Then the login item, the city
with a geocoder on this machine, the calendars, and the way back to how everything was.
"""
import http.server
import json
import subprocess
import threading
import urllib.parse

from assistive import Atspi, find, found, has, switch_on
from program import PROGRAM, Session, wait_for

# What is looked for, how the control that is found is called, the key, and what is stored then.
CONTROLS = [
    ("follow light", "Follow light and dark appearance", "space", "followAppearance", True),
    ("new widgets", "New widgets use", "Down", "defaultSkin", None),
    ("update figures", "Update figures every", "Down", "interval", 3),
    ("download", "Restart the download count", "Down", "downloadResetMinutes", 60),
    ("shuffle", "Shuffle the wallpaper", "Down", "wallpaperShuffleMinutes", 15),
    ("widgets stand", "Widgets stand", "Down", "layer", "floating"),
    ("covers a floating", "Overlap: Fade", "Right", "overlap", "hide"),
    ("lock widget", "Lock Widget Positions", "space", "locked", True),
    ("click a widget", "Click a widget to open its app", "space", "clickToOpen", False),
    ("rings", "Scene decorations", "space", "showScene", False),
    ("radar", "Animations", "space", "animations", False),
    ("fahren", "Temperature: °C", "Right", "useFahrenheit", True),
    ("minutes focus", "Focus, minutes", "Up", "focusMinutes", 26),
    ("minutes break", "Break, minutes", "Up", "breakMinutes", 6),
    ("fourth", "Long break, minutes", "Up", "longBreakMinutes", 16),
    ("sound", "Play a sound when time is up", "space", "focusSound", False),
]

FORECAST = {"current": {"temperature_2m": 7, "apparent_temperature": 5, "weather_code": 3, "is_day": 1},
            "daily": {"time": ["2026-01-01"], "weather_code": [3], "temperature_2m_max": [9], "temperature_2m_min": [4]}}


class Weather(http.server.BaseHTTPRequestHandler):
    """Knows one city, does not know another, and hangs up at a third."""

    def do_GET(self):
        address = urllib.parse.urlsplit(self.path)
        name = urllib.parse.parse_qs(address.query).get("name", [""])[0]
        if name == "Silence":
            self.close_connection = True
            return
        known = [{"name": "Bergen", "latitude": 60.39, "longitude": 5.32}] if name == "Bergen" else []
        body = json.dumps({"results": known} if address.path == "/v1/search" else FORECAST).encode()
        self.send_response(200)
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def log_message(self, *_):
        pass


def key(*names):
    subprocess.run(["xdotool", "key", "--delay", "40", *names], check=True)


def type_text(text):
    subprocess.run(["xdotool", "type", "--delay", "20", text], check=True)


def labels(part):
    """What it is called, also by what stands beside it."""
    yield part.get_name()
    for relation in part.get_relation_set():
        if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY:
            yield relation.get_target(0).get_name()


def focused(name):
    return found(lambda part: has(part, Atspi.StateType.FOCUSED) and name in labels(part))


def go(search, name):
    """Looks for a setting, and takes the keyboard to the first control that is found."""
    key("ctrl+f", "ctrl+a")
    type_text(search)
    key("Return")
    wait_for(f"keyboard at “{name}”", lambda: focused(name))


def open_window(session):
    session.start()
    wait_for("widgets", lambda: session.panels())
    subprocess.run([PROGRAM], env=session.env, check=True)
    wait_for("window", lambda: find("Search Themes"))
    key("ctrl+4")
    wait_for("settings", lambda: find("Search Settings"))


def kill(session):
    session.process.kill()
    session.process.wait()


def city_tells(text):
    return found(lambda part: part.get_name() == "City" and part.get_description() == text)


switch_on()
server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Weather)
threading.Thread(target=server.serve_forever, daemon=True).start()

session = Session({"hasLaunchedBefore": True, "useFahrenheit": False, "widgets.v2": [
    {"kind": kind, "skin": "glass", "origin": [x, 20]} for kind, x in (("cpu", 20), ("weather", 220))]})
for base in ("FORECAST", "GEOCODING"):
    session.env[f"AMBRELLE_{base}_BASE"] = f"http://127.0.0.1:{server.server_port}"
calendars = session.home / "data/ambrelle/calendars"
calendars.mkdir(parents=True)
for name in ("Family", "Work"):
    (calendars / f"{name}.ics").write_text("\r\n".join([
        "BEGIN:VCALENDAR", "VERSION:2.0", "PRODID:-//Test//EN", f"X-WR-CALNAME:{name}", "BEGIN:VEVENT", f"UID:{name}", "DTSTAMP:20260101T000000Z",
        "DTSTART:20260101T100000Z", "DTEND:20260101T110000Z", f"SUMMARY:{name}", "END:VEVENT", "END:VCALENDAR", ""]))

open_window(session)
for search, name, press, stored, value in CONTROLS:
    before = session.stored().get(stored)
    go(search, name)
    key(press)
    wait_for(f"{stored} in the store", lambda: session.stored().get(stored) not in (before, None))
    assert value is None or session.stored()[stored] == value, (stored, session.stored()[stored])
chosen = {stored: session.stored()[stored] for _, _, _, stored, _ in CONTROLS}
kill(session)
assert {stored: session.stored().get(stored) for stored in chosen} == chosen, "something was lost by the kill"

open_window(session)
assert {stored: session.stored().get(stored) for stored in chosen} == chosen, "the next run changed something"
entry = session.home / "config/autostart/org.ambrelle.Ambrelle.desktop"
login = "Start Ambrelle when you log in"
go("log in", login)
key("space")
wait_for("autostart entry", entry.exists)
key("space")
wait_for("no autostart entry", lambda: not entry.exists())
entry.parent.rmdir()
entry.parent.write_text("in the way")
key("space")
wait_for("refusal", lambda: find("Couldn't change the login item"))
key("Return")
wait_for("switch that is off", lambda: (box := focused(login)) and not has(box, Atspi.StateType.CHECKED))

for city, told in (("Nowhere", "Couldn't find “Nowhere”. Try another name from the More menu."),
                   ("Bergen", "Showing weather for Bergen")):
    go("city", "City")
    key("ctrl+a")
    type_text(city)
    key("Return")
    wait_for(f"“{told}”", lambda: city_tells(told))
key("ctrl+a")
type_text("Silence")
key("Return")
wait_for("failure", lambda: found(
    lambda part: part.get_name() == "City" and part.get_description().startswith("Weather unavailable: ")))
assert session.stored()["weatherCity"] == "Silence"

key("ctrl+f", "ctrl+a", "BackSpace", "Down", "Home", "Down", "Down", "Down")
wait_for("calendars", lambda: find("Work"))
go("family", "Family")
key("space")
wait_for("one calendar less", lambda: len(session.stored().get("excludedCalendars", [])) == 1)

go("all settings", "Reset Settings…")
before = session.stored()
key("space")
wait_for("question", lambda: focused("Cancel"))
key("Tab", "space")
wait_for("reset", lambda: "overlap" not in session.stored())
left = session.stored()
assert not set(chosen) & set(left), f"left: {set(chosen) & set(left)}"
assert left["widgets.v2"] == before["widgets.v2"]
key("ctrl+z")
wait_for("everything back", lambda: session.stored() == before)
session.end()
server.shutdown()
print(f"{len(CONTROLS)} controls, the login item, a city found and not, calendars, reset and back")
