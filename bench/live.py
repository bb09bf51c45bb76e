#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Measures the running program on a private display: live.py PROGRAM [CONTESTANT...].

A contestant's name with " on Sway" behind it is measured on that compositor in place of an X server. There a window counts
as painted when its pixels were handed over; the compositor shows them with its next frame.

Contestants are "ambrelle" (its default composition), "200 widgets", "needle still" and "needle moving" (one face without
and with motion at 15 frames a second), the raw name of any theme, with " moving" behind it or without, for its own
composition, and the peers below; without names the first and the peers.

Every contestant is launched once to lay out its first desktop and then again to be measured: MEASURE seconds after
SETTLE seconds, in each of three rounds; the table gives medians. With conky
installed and AMBRELLE_PEERS naming a folder that holds conky/one.sh and conky/eleven.sh, those join the same rounds.
AMBRELLE_ROUNDS and AMBRELLE_SECONDS shorten a trial run. The desktop has a tray (tray.py), as most have.
"""
import contextlib
import json
import os
import re
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from Xlib import X, display, error

sys.path.insert(0, str(Path(__file__).parents[1] / "tests/support"))
import with_sway  # noqa: E402

SETTLE = 5
MEASURE = float(os.environ.get("AMBRELLE_SECONDS", 60))
ROUNDS = int(os.environ.get("AMBRELLE_ROUNDS", 3))
TICKS = os.sysconf("SC_CLK_TCK")
FIGURES = {  # name: unit
    "cpu": "s", "start": "s", "wakeups": "/s", "rss": "MB", "pss": "MB", "uss": "MB", "anon": "MB",
    "first map": "ms", "all map": "ms", "first paint": "ms", "all paint": "ms", "windows": "", "painted": "",
    "in tray": "", "noise": "s",
}


@contextlib.contextmanager
def process(*command, **options):
    running = subprocess.Popen(command, stderr=subprocess.DEVNULL, **options)
    try:
        yield running
    finally:
        running.kill()
        running.wait()


@contextlib.contextmanager
def desktop(home):
    """A display, a session bus and a window manager; gives the environment of its programs."""
    env = {k: v for k, v in os.environ.items() if not k.startswith(("XDG_", "WAYLAND_", "DBUS_", "QT_", "DISPLAY"))}
    env.update(HOME=str(home), XDG_RUNTIME_DIR=str(home), LC_ALL="C.UTF-8")
    read, write = os.pipe()
    with contextlib.ExitStack() as stack:
        stack.enter_context(process("Xvfb", "-displayfd", str(write), "-screen", "0", "1920x1080x24", "-nolisten", "tcp",
                                    pass_fds=[write]))
        env["DISPLAY"] = ":" + os.read(read, 16).decode().strip()
        bus = stack.enter_context(process("dbus-daemon", "--session", "--nofork", "--print-address",
                                          stdout=subprocess.PIPE, text=True))
        env["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
        stack.enter_context(process("openbox", env=env, stdout=subprocess.DEVNULL))
        while "0x" not in subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], env=env, text=True,
                                         capture_output=True).stdout:
            time.sleep(0.05)
        time.sleep(1)
        yield env
    os.close(read)
    os.close(write)


@contextlib.contextmanager
def sway_desktop(home):
    """As desktop(), on a compositor."""
    env = with_sway.bare_environment(home)
    env = {name: value for name, value in env.items() if not name.startswith("QT_")}
    env["LC_ALL"] = "C.UTF-8"
    compositor, env = with_sway.sway(home / "sway", ["1920x1080"], env)
    try:
        with process("dbus-daemon", "--session", "--nofork", "--print-address", stdout=subprocess.PIPE, text=True) as bus:
            env["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
            time.sleep(1)
            yield env
    finally:
        with_sway.end(compositor)


@contextlib.contextmanager
def tray(env, home):
    """What shows the icons of programs; gives a function that tells how many it showed until then."""
    said = Path(home, "tray")
    with said.open("w") as output, process(str(Path(__file__).parent / "tray.py"), env=env, stdout=output):
        while "ready" not in read(said):
            time.sleep(0.05)
        yield lambda: read(said).count("item")


def read(path):
    with contextlib.suppress(OSError):
        return Path(path).read_text()
    return ""


def tree(pid):
    pids = [pid]
    for parent in pids:
        for task in Path(f"/proc/{parent}/task").glob("*/children"):
            pids += map(int, read(task).split())
    return pids


def cpu_seconds(pids):
    """User and system time, of reaped children too (fields 14 to 17 of stat)."""
    stats = [read(f"/proc/{pid}/stat").rpartition(")")[2].split() for pid in pids]
    return sum(sum(map(int, stat[11:15])) for stat in stats) / TICKS


def sum_of(text, *keys):
    return sum(int(line.split()[1]) for line in text.splitlines() if line.startswith(keys))


def wakeups(pids):
    """Voluntary context switches by thread."""
    return {f: sum_of(read(f), "voluntary_ctxt") for pid in pids for f in Path(f"/proc/{pid}/task").glob("*/status")}


def busy_seconds():
    user, nice, system, _, _, irq, softirq = map(int, read("/proc/stat").split()[1:8])
    return (user + nice + system + irq + softirq) / TICKS


def shows_something(root, window):
    """Whether a strip across the window holds enough pixels unlike its first; None: the window is gone or tiny."""
    try:
        box = window.get_geometry()
        height = min(box.height, 240)
        if min(box.width, box.height) < 24:
            return None
        strip = root.get_image(max(box.x, 0), box.y + (box.height - height) // 2, box.width + min(box.x, 0), height,
                               X.ZPixmap, 0xFFFFFFFF).data
    except error.XError:  # the window went away or hangs over the edge of the screen
        return None
    return len(strip) // 4 - strip.count(strip[:4]) >= 40


def watch(env, command):
    """Starts the command and looks SETTLE seconds on: the process and when its windows were mapped and painted."""
    connection = display.Display(env["DISPLAY"])
    root = connection.screen().root
    root.change_attributes(event_mask=X.SubstructureNotifyMask)
    connection.sync()
    mapped, painted = {}, {}
    start = time.monotonic()
    running = subprocess.Popen(command, env=env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    while (now := time.monotonic() - start) < SETTLE:
        while connection.pending_events():
            event = connection.next_event()
            if event.type == X.MapNotify:
                mapped.setdefault(event.window.id, (1000 * now, event.window))
        for key, (_, window) in mapped.items():
            if key not in painted and shows_something(root, window):
                painted[key] = 1000 * (time.monotonic() - start)
        time.sleep(0.004 if len(painted) < len(mapped) or not mapped else 0.05)
    shown = {key: at for key, (at, window) in mapped.items() if shows_something(root, window) is not None}
    seen = sorted(painted[key] for key in shown if key in painted)
    connection.close()
    ends = [min(shown.values()), max(shown.values())] if shown else [-1, -1]
    return running, [*ends, *([seen[0], seen[-1]] if seen else [-1, -1]), len(shown), len(seen)]


def stop(pids):
    for pid in reversed(pids):
        with contextlib.suppress(ProcessLookupError):
            os.kill(pid, 15)
    os.waitpid(pids[0], 0)


def handed_over(env, command):
    """The moments in which a compositor gets the first pixels of each of the command's surfaces, by its own log."""
    surfaces = {}
    with tempfile.TemporaryFile("w+") as log:
        start = time.time_ns() // 1000
        running = subprocess.Popen(command, env=dict(env, WAYLAND_DEBUG="client"), stdout=subprocess.DEVNULL, stderr=log)
        time.sleep(SETTLE)
        stop(tree(running.pid))
        log.seek(0)
        for line in log:
            told = re.match(r"\[ *(\d+)\.(\d+)\] +-> (wl_surface@\d+)\.attach\(wl_buffer@", line)
            if told:  # microseconds, of which it tells the last 32 bits
                surfaces.setdefault(told[3], (int(told[1] + told[2]) - start) % 2**32 / 1000)
    return sorted(surfaces.values()) or [-1]


def watch_sway(env, command):
    """As watch(), on a compositor, where nobody sees but what is handed to it: the pixels, and with them the window."""
    seen = handed_over(env, command)
    running = subprocess.Popen(command, env=env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    time.sleep(SETTLE)
    return running, [seen[0], seen[-1], seen[0], seen[-1], len(seen), len(seen)]


def measure(command, values, on_sway=False):
    make, look = (sway_desktop, watch_sway) if on_sway else (desktop, watch)
    with tempfile.TemporaryDirectory() as home, make(Path(home)) as env, tray(env, home) as items:
        settings = Path(env.get("XDG_CONFIG_HOME", Path(home, ".config")), "ambrelle/defaults.json")
        settings.parent.mkdir(parents=True)
        settings.write_text(json.dumps(values))
        stop(tree(look(env, command)[0].pid))
        before = items()
        running, seen = look(env, command)
        seen.append(items() - before)
        if running.poll() is not None:
            sys.exit(f"{command[0]} ended by itself")
        pids = tree(running.pid)
        start = time.monotonic(), cpu_seconds(pids), wakeups(pids), busy_seconds()
        time.sleep(MEASURE)
        pids = tree(running.pid)
        end = time.monotonic(), cpu_seconds(pids), wakeups(pids), busy_seconds()
        woken = sum(count - start[2].get(thread, 0) for thread, count in end[2].items())  # of those that still live
        seconds, cpu, busy = (end[i] - start[i] for i in (0, 1, 3))
        memory = "".join(read(f"/proc/{pid}/smaps_rollup") for pid in pids)
        stop(pids)
    megabytes = [sum_of(memory, *keys) / 1024 for keys in (("Rss:",), ("Pss:",), ("Private_",), ("Pss_Anon:",))]
    return dict(zip(FIGURES, [cpu, start[1], woken / seconds, *megabytes, *seen, busy - cpu]))


def desk(kinds, skin, **values):
    """Settings with these widgets, in rows over the screen."""
    widgets = [{"kind": kind, "skin": skin, "origin": [60 + i % 9 * 180, 60 + i // 9 % 5 * 180]}
               for i, kind in enumerate(kinds)]
    return {"interval": 2, "animations": False, "hasLaunchedBefore": True, "widgets.v2": widgets, **values}


def composed(name):
    """Settings of a first start that lays out a theme's composition: "neon", or "neon moving"."""
    skin, _, moving = name.partition(" ")
    return {"interval": 2, "animations": moving == "moving", "defaultSkin": skin}


def contestants(program):
    """Name: command and settings."""
    command = [str(Path(program).resolve())]
    composition = ["clock", "weather", "calendar", "events", "battery", "photo", "nowPlaying", "cpu", "memory", "network",
                   "disk", "processes"]
    entries = {
        "ambrelle": (command, {"interval": 2, "animations": False}),
        "200 widgets": (command, desk([composition[i % 12] for i in range(200)], "glass")),
        "needle still": (command, desk(["cpu"], "hifi")),
        "needle moving": (command, desk(["cpu"], "hifi", animations=True)),
    }
    peers = Path(os.environ.get("AMBRELLE_PEERS", "/nonexistent"), "conky")
    for name, script in (("conky x 11", "eleven.sh"), ("conky x 1", "one.sh")):
        if shutil.which("conky") and (peers / script).exists():
            entries[name] = ([str(peers / script)], {})
    wanted = sys.argv[2:] or [name for name in entries if name == "ambrelle" or name.startswith("conky")]
    found = {}
    for name in wanted:
        plain = name.removesuffix(" on Sway")
        found[name] = (*(entries.get(plain) or (command, composed(plain))), plain != name)
    return found


def main():
    commands = contestants(sys.argv[1])
    rounds = [{name: measure(*entry) for name, entry in commands.items()} for _ in range(ROUNDS)]
    print(f"Medians of {ROUNDS} rounds of {MEASURE:g} s; in brackets: how many times the first one's figure")
    print(" " * 16 + "".join(f"{name:>20}" for name in commands))
    for figure, unit in FIGURES.items():
        values = [statistics.median(r[name][figure] for r in rounds) for name in commands]
        ratios = [""] + [f"({v / values[0]:.2f})" if values[0] > 0 else "" for v in values[1:]]
        print(f"{figure + ' ' + unit:16}" + "".join(f"{v:12.2f}{ratio:>8}" for v, ratio in zip(values, ratios)))


if __name__ == "__main__":
    main()
