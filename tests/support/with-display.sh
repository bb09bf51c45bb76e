#!/bin/sh
# SPDX-License-Identifier: MIT
# Runs a command on a virtual display of its own, with a session bus and a window manager:
#     with-display.sh MANAGER COMMAND [ARGUMENT...]
# MANAGER is the command of a window manager, run as below, or none. Ends with the command's status, or with 77 where a tool is missing.
# AMBRELLE_TEST_SERVER has more options for the X server.
set -u

manager=$1
shift
readonly missing=77

for tool in Xvfb dbus-run-session xprop xdotool; do
    command -v "$tool" >/dev/null || { echo "skipped: $tool is not installed"; exit $missing; }
done
if [ "$manager" != none ]; then
    command -v "$manager" >/dev/null || { echo "skipped: $manager is not installed"; exit $missing; }
fi

folder=$(mktemp -d)
server=
cleanup() {
    [ -n "$server" ] && kill "$server" 2>/dev/null && wait "$server" 2>/dev/null
    rm -rf "$folder"
}
trap cleanup EXIT
trap 'exit 130' INT TERM

# A number derived from the process is free as a rule, and unlike the server's own choice never one that a server which is
# just ending still removes its socket of.
startServer() {
    DISPLAY=:$((200 + ($$ + $1 * 7919) % 20000))
    # shellcheck disable=SC2086 # several options
    Xvfb "$DISPLAY" -screen 0 1280x800x24 -noreset -nolisten tcp ${AMBRELLE_TEST_SERVER-} >"$folder/server.log" 2>&1 &
    server=$!
    left=1200
    while kill -0 "$server" 2>/dev/null && [ $left -gt 0 ]; do
        DISPLAY=$DISPLAY xprop -root _NET_SUPPORTED >/dev/null 2>&1 && return 0
        left=$((left - 1))
        sleep 0.05
    done
    return 1
}

startServer 0 || startServer 1 || { cat "$folder/server.log"; echo "the X server did not start"; exit 1; }
export DISPLAY
export QT_QPA_PLATFORM=xcb XDG_CONFIG_HOME="$folder/config" XDG_CACHE_HOME="$folder/cache" XDG_DATA_HOME="$folder/data"
export AMBRELLE_TEST_MANAGER="$manager"
unset WAYLAND_DISPLAY

# Inside the session bus, so that everything it starts ends with it.
cat >"$folder/session.sh" <<'SESSION'
# Managers that are GTK programs are not to be found by tests that look for the program's accessible windows: the library
# that looks (libatspi) waits for ever where it is told of somebody else's window while it dispatches.
case $AMBRELLE_TEST_MANAGER in
    xfwm4) NO_AT_BRIDGE=1 xfwm4 --compositor=off --vblank=off >"$1/manager.log" 2>&1 & managerProcess=$! ;;
    kwin_x11) KWIN_COMPOSE=N kwin_x11 >"$1/manager.log" 2>&1 & managerProcess=$! ;;
    mutter) LIBGL_ALWAYS_SOFTWARE=1 mutter --x11 >"$1/manager.log" 2>&1 & managerProcess=$! ;;
    metacity | marco) NO_AT_BRIDGE=1 "$AMBRELLE_TEST_MANAGER" --no-composite >"$1/manager.log" 2>&1 & managerProcess=$! ;;
    i3) echo "# i3 config file (v4)" >"$1/i3.config"; i3 -c "$1/i3.config" >"$1/manager.log" 2>&1 & managerProcess=$! ;;
    bspwm) bspwm -c /bin/true >"$1/manager.log" 2>&1 & managerProcess=$! ;;
    none) managerProcess= ;;
    *) "$AMBRELLE_TEST_MANAGER" >"$1/manager.log" 2>&1 & managerProcess=$! ;;
esac
folder=$1
shift
left=1200
while [ -n "$managerProcess" ] && ! xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id # 0x[1-9a-f]'; do
    left=$((left - 1))
    [ $left -gt 0 ] || { cat "$folder/manager.log"; echo "the window manager did not start"; exit 1; }
    sleep 0.05
done
"$@"
status=$?
[ -n "$managerProcess" ] && kill "$managerProcess" 2>/dev/null
exit $status
SESSION
dbus-run-session -- sh "$folder/session.sh" "$folder" "$@"
