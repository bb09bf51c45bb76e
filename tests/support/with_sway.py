#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A Wayland compositor without a screen, for one test:
with_sway.py [--output WIDTHxHEIGHT[@SCALE]]... [--removable] [--xwayland] COMMAND [ARGUMENT...]

Runs the command in a session of its own: Sway with these outputs side by side (one of 1280x800 if none is named), a home
and a session bus. They are called HEADLESS-1, HEADLESS-2 …; removable ones, which are windows of another such session and
may be unplugged, WL-1, WL-2 … Ends with the command's status, or with 77 where a tool is missing. Whatever was started is
ended. The module sway.py beside this file is for scripts that are run so."""
import os
import shutil
import signal
import subprocess
import sys
import tempfile
from pathlib import Path

from waiting import PATIENCE, wait_for

MISSING = 77
NOBODY = 65534  # Sway does not run as root


def configuration(outputs, prefix, xwayland, ready):
    left = 0
    lines = [f"xwayland {'enable' if xwayland else 'disable'}", "focus_follows_mouse no", "floating_modifier Mod4 normal",
             'for_window [app_id="^wlroots$"] floating enable, border none']  # removable outputs, whole
    for index, output in enumerate(outputs, 1):
        size, _, scale = output.partition("@")
        lines.append(f"output {prefix}-{index} mode --custom {size} position {left} 0 scale {scale or 1}")
        left += int(int(size.partition("x")[0]) / float(scale or 1))
    # Run when all of this is in force. An X server lets in none but Sway's own user unless it is told to.
    admit = "xhost +si:localuser:root >/dev/null &&" if xwayland else ""
    lines.append(f'exec {admit} echo "$WAYLAND_DISPLAY" "$SWAYSOCK" "$DISPLAY" > {ready}')
    return "\n".join(lines) + "\n"


def sway(folder, outputs, base, xwayland=False):
    """Starts Sway in that environment, in a window for each output where there is a display; gives its process and the
    environment of its clients."""
    folder.mkdir()
    runtime, ready = Path(base["XDG_RUNTIME_DIR"]), Path(base["XDG_RUNTIME_DIR"], f"ready-{folder.name}")
    prefix = "WL" if "WAYLAND_DISPLAY" in base else "HEADLESS"
    (folder / "config").write_text(configuration(outputs, prefix, xwayland, ready))
    # Ends with this script, even if that is killed.
    command = ["setpriv", "--pdeathsig", "TERM"]
    if os.geteuid() == 0:
        command += [f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"]
    count = str(len(outputs))
    env = dict(base, HOME=str(runtime), WLR_BACKENDS="wayland" if prefix == "WL" else "headless", WLR_RENDERER="pixman",
               WLR_LIBINPUT_NO_DEVICES="1", WLR_HEADLESS_OUTPUTS=count, WLR_WL_OUTPUTS=count)
    with open(folder / "log", "w") as log:
        process = subprocess.Popen([*command, "sway", "-c", folder / "config"], env=env, stdin=subprocess.DEVNULL,
                                   stdout=log, stderr=log)

    def told():
        if process.poll() is not None:
            sys.exit(f"Sway ended with {process.returncode}:\n{(folder / 'log').read_text()}")
        return ready.exists() and ready.read_text().endswith("\n")
    wait_for("Sway", told)
    display, ipc, *x_display = ready.read_text().split()
    clients = dict(base, WAYLAND_DISPLAY=display, SWAYSOCK=ipc)
    if x_display:
        clients["DISPLAY"] = x_display[0]
    return process, clients


def bare_environment(folder):
    """Of a session that knows no display and no bus."""
    runtime = folder / "runtime"
    folder.chmod(0o755)
    runtime.mkdir(mode=0o700)
    (folder / "home").mkdir()
    if os.geteuid() == 0:
        os.chown(runtime, NOBODY, NOBODY)
    env = {name: value for name, value in os.environ.items()
           if name not in ("DISPLAY", "WAYLAND_DISPLAY", "WAYLAND_SOCKET", "SWAYSOCK", "DBUS_SESSION_BUS_ADDRESS")}
    env.update(HOME=str(folder / "home"), XDG_RUNTIME_DIR=str(runtime), QT_QPA_PLATFORM="wayland",
               XDG_SESSION_TYPE="wayland", XDG_CURRENT_DESKTOP="sway",
               PYTHONPATH=os.pathsep.join(filter(None, (str(Path(__file__).parent), env.get("PYTHONPATH")))))
    for kind in ("CONFIG", "CACHE", "DATA", "STATE"):
        env[f"XDG_{kind}_HOME"] = str(folder / "home" / kind.lower())
    return env


def end(process):
    if process.poll() is None:
        process.terminate()
        try:
            process.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()


def session(folder, outputs, options, command):
    """Runs the command; gives its status."""
    env, processes = bare_environment(folder), []
    try:
        if "--removable" in options:
            outer, env = sway(folder / "outer", ["6000x3000"], env)
            processes.append(outer)
            env["AMBRELLE_TEST_OUTER"] = env["SWAYSOCK"]
        inner, env = sway(folder / "sway", outputs, env, "--xwayland" in options)
        processes.append(inner)
        # Whatever a killed script leaves is ended too.
        status = subprocess.run(["setpriv", "--pdeathsig", "TERM", "dbus-run-session", "--", *command], env=env).returncode
        if inner.poll() is not None:
            print(f"Sway ended with {inner.returncode}:\n{Path(folder, 'sway/log').read_text()}")
        return status
    finally:
        for process in reversed(processes):
            end(process)


def run(arguments):
    outputs, options = [], set()
    while arguments and arguments[0].startswith("--"):
        option = arguments.pop(0)
        if option == "--output" and arguments:
            outputs.append(arguments.pop(0))
        elif option in ("--removable", "--xwayland"):
            options.add(option)
        else:
            sys.exit(f"{option}: {__doc__.splitlines()[1]}")
    if not arguments:
        sys.exit(__doc__.splitlines()[1])
    for tool in ("sway", "grim", "setpriv", "dbus-run-session", *(["Xwayland", "xhost"] if "--xwayland" in options else [])):
        if not shutil.which(tool):
            print(f"skipped: {tool} is not installed")
            return MISSING
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(130))  # so that the folder goes
    with tempfile.TemporaryDirectory(prefix="ambrelle-sway-") as folder:
        return session(Path(folder), outputs or ["1280x800"], options, arguments)


if __name__ == "__main__":
    sys.exit(run(sys.argv[1:]))
