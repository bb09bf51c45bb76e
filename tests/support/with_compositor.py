#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""As with_sway.py, with another compositor:
with_compositor.py phoc|kwin_wayland|mutter [--output WIDTHxHEIGHT[@SCALE]]... COMMAND [ARGUMENT...]

Its outputs stand side by side; AMBRELLE_TEST_EXTENT is how wide and high they are together, in points. Under mutter, which
offers no layer shell, there is an X server too. Ends with the command's status, or with 77 where a tool is missing."""
import os
import shutil
import signal
import subprocess
import sys
import tempfile
from pathlib import Path

from waiting import wait_for
from with_sway import MISSING, NOBODY, bare_environment, end


def places(outputs):
    """Width, height, scale and left edge of each; the edge in points of the layout."""
    left = 0
    for output in outputs:
        size, _, scale = output.partition("@")
        width, height = map(int, size.split("x"))
        yield width, height, float(scale or 1), left
        left += int(width / float(scale or 1))


def phoc(folder, outputs, env):
    lines = ["[core]", "xwayland = false"]
    for index, (width, height, scale, left) in enumerate(places(outputs)):  # clients hear of the last one first
        lines += [f"[output:HEADLESS-{len(outputs) - index}]", f"mode = {width}x{height}", f"scale = {scale}", f"x = {left}", "y = 0"]
    (folder / "phoc.ini").write_text("\n".join(lines) + "\n")
    env.update(WLR_BACKENDS="headless", WLR_RENDERER="pixman", WLR_LIBINPUT_NO_DEVICES="1",
               WLR_HEADLESS_OUTPUTS=str(len(outputs)), XDG_CURRENT_DESKTOP="Phosh:GNOME")
    return ["phoc", "-C", folder / "phoc.ini", "-E", folder / "ready.sh"]


def kwin_wayland(folder, outputs, env):
    # A program with capabilities of its file does not start where the kernel may not give them.
    program = Path(shutil.copyfile(shutil.which("kwin_wayland"), folder / "kwin_wayland"))
    program.chmod(0o755)
    width, height, scale, _ = next(places(outputs))
    env.update(KWIN_SCREENSHOT_NO_PERMISSION_CHECKS="1", KWIN_WAYLAND_NO_PERMISSION_CHECKS="1", XDG_CURRENT_DESKTOP="KDE")
    return [program, "--virtual", "--no-lockscreen", "--no-global-shortcuts", "--width", str(width), "--height", str(height),
            "--scale", str(scale), "--output-count", str(len(outputs)), folder / "ready.sh"]


def mutter(folder, outputs, env):
    env.update(XDG_CURRENT_DESKTOP="GNOME", LIBGL_ALWAYS_SOFTWARE="1", GSETTINGS_BACKEND="memory")
    screens = [f"--virtual-monitor={width}x{height}" for width, height, _, _ in places(outputs)]
    return ["mutter", "--wayland", "--headless", *screens, folder / "ready.sh"]


# They let nobody point and take pictures of whom they cannot tell the program, and so the user has to be theirs.
DISTRUSTFUL = {"kwin_wayland"}
COMPOSITORS = {"phoc": phoc, "kwin_wayland": kwin_wayland, "mutter": mutter}


def ready_script(folder, ready):
    """What a compositor runs when it takes clients; it stays as long as the session, since some end with it."""
    script = folder / "ready.sh"
    script.write_text(f'#!/bin/sh\necho "$WAYLAND_DISPLAY" "$DISPLAY" "$XAUTHORITY" > {ready}\nwhile [ -e {ready} ]; do sleep 1; done\n')
    script.chmod(0o755)


def as_nobody(command):
    """Compositors do not run as root. What is started so ends with this script, even if that is killed."""
    user = [f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"] if os.geteuid() == 0 else []
    return ["setpriv", "--pdeathsig", "TERM", *user, *command]


def start_bus(folder):
    """A session bus that the compositor is on, too, whoever runs the command; gives its process and its address."""
    socket = folder / "runtime/bus"
    allowed = "".join(f"<allow {what}='*'/>" for what in ("user", "own", "send_destination", "receive_sender"))
    (folder / "bus.conf").write_text(f"""<busconfig><type>session</type><listen>unix:path={socket}</listen>
        <policy context="default">{allowed}</policy></busconfig>""")
    with open(folder / "bus.log", "w") as log:
        process = subprocess.Popen(as_nobody(["dbus-daemon", "--config-file", folder / "bus.conf", "--nofork", "--nopidfile"]),
                                   stdin=subprocess.DEVNULL, stdout=log, stderr=log)
    wait_for("bus", lambda: process.poll() is not None or socket.exists())
    return process, f"unix:path={socket}"


def start(name, folder, outputs, base):
    """Starts it in that environment; gives its process and the environment of its clients."""
    folder.mkdir()
    folder.chmod(0o755)
    runtime = Path(base["XDG_RUNTIME_DIR"])
    ready = runtime / "ready"
    ready_script(folder, ready)
    env = dict(base, HOME=str(runtime))
    for kind in ("CONFIG", "CACHE", "DATA", "STATE"):
        env[f"XDG_{kind}_HOME"] = str(runtime / kind.lower())
    command = COMPOSITORS[name](folder, outputs, env)
    with open(folder / "log", "w") as log:
        process = subprocess.Popen(as_nobody(command), env=env, stdin=subprocess.DEVNULL, stdout=log, stderr=log)

    def told():
        if process.poll() is not None:
            sys.exit(f"{name} ended with {process.returncode}:\n{(folder / 'log').read_text()}")
        return ready.exists() and ready.read_text().endswith("\n")
    wait_for(name, told)
    display, *x_server = ready.read_text().split()
    clients = dict(base, WAYLAND_DISPLAY=display, XDG_CURRENT_DESKTOP=env["XDG_CURRENT_DESKTOP"])
    clients.update(zip(("DISPLAY", "XAUTHORITY"), x_server))
    rights, heights = zip(*((left + width / scale, height / scale) for width, height, scale, left in places(outputs)))
    clients["AMBRELLE_TEST_EXTENT"] = f"{int(max(rights))}x{int(max(heights))}"
    if (Path(__file__).parent / name).is_dir():
        clients["PATH"] = f"{Path(__file__).parent / name}:{base['PATH']}"
    return process, clients


def session(name, folder, outputs, command):
    """Runs the command; gives its status."""
    env, processes = bare_environment(folder), []
    if os.geteuid() == 0 and name in DISTRUSTFUL:
        os.chown(folder / "home", NOBODY, NOBODY)
    try:
        bus, env["DBUS_SESSION_BUS_ADDRESS"] = start_bus(folder)
        processes.append(bus)
        compositor, env = start(name, folder / name, outputs, env)
        processes.append(compositor)
        # Whatever a killed script leaves is ended too.
        command = as_nobody(command) if name in DISTRUSTFUL else ["setpriv", "--pdeathsig", "TERM", *command]
        status = subprocess.run(command, env=env).returncode
        if compositor.poll() is not None:
            print(f"{name} ended with {compositor.returncode}:\n{(folder / name / 'log').read_text()}")
        return status
    finally:
        for process in reversed(processes):
            end(process)


def run(arguments):
    name = arguments.pop(0) if arguments else ""
    outputs = []
    while arguments[:1] == ["--output"]:
        outputs += arguments[1:2]
        del arguments[:2]
    if name not in COMPOSITORS or not arguments:
        sys.exit(__doc__.splitlines()[1])
    for tool in (name, "grim", "setpriv", "dbus-daemon"):
        if not shutil.which(tool):
            print(f"skipped: {tool} is not installed")
            return MISSING
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(130))  # so that the folder goes
    with tempfile.TemporaryDirectory(prefix="ambrelle-compositor-") as folder:
        return session(name, Path(folder), outputs or ["1280x800"], arguments)


if __name__ == "__main__":
    sys.exit(run(sys.argv[1:]))
