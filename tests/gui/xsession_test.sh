#!/usr/bin/env bash
# The real program under a virtual X server with a window manager (openbox),
# driven by xdotool with real focus, activation and maximize:
#  1. SinX, Enter; Alt+O (polar); CosX, Enter; a menu opened and closed;
#     Ctrl+N. Graph 1 must stay polar with CosX and draw nothing more, and
#     Graph 2 must open.
#  2. The frame maximized by the window manager, then File > Exit.
#  3. The next start comes back maximized; unmaximized, it has its size from
#     before and can be narrowed to 700 pixels; no band hides buttons behind
#     its chevron in a frame with room.
# The program runs on a temporary HOME and configuration folder and writes
# its state lines (VELMORA_STATE_PROBE=1) and message boxes
# (VELMORA_TEST_BOXES=stderr) to standard error, which the script reads.
# Every wait polls with a bounded number of tries.
#
# Usage: xsession_test.sh PATH/TO/velmora
set -euo pipefail

program=$(realpath "$1")

for tool in xvfb-run openbox xdotool xprop; do
  if ! command -v "$tool" >/dev/null; then
    echo "FAIL: $tool is missing (scripts/install-deps.sh installs it)" >&2
    exit 1
  fi
done

if [ -z "${VELMORA_XSESSION_INNER:-}" ]; then
  export VELMORA_XSESSION_INNER=1
  exec xvfb-run -a -s "-screen 0 1600x1000x24" "$0" "$@"
fi

# ---- Inside the X server --------------------------------------------------------

tmp=$(mktemp -d)
pids=()
cleanup() {
  for p in "${pids[@]}"; do kill "$p" 2>/dev/null || true; done
  rm -rf "$tmp"
}
trap cleanup EXIT

export HOME="$tmp/home"
export XDG_CONFIG_HOME="$tmp/config" XDG_DATA_HOME="$tmp/data" XDG_CACHE_HOME="$tmp/cache"
export XDG_RUNTIME_DIR="$tmp/runtime"
mkdir -p "$HOME" "$XDG_CONFIG_HOME" "$XDG_DATA_HOME" "$XDG_CACHE_HOME" "$XDG_RUNTIME_DIR"
chmod 700 "$XDG_RUNTIME_DIR"
# ctest runs the suites offscreen; this one needs the X server.
export QT_QPA_PLATFORM=xcb
export VELMORA_TEST_BOXES=stderr VELMORA_STATE_PROBE=1
settings="$XDG_CONFIG_HOME/Velmora/Velmora.ini"

# The window manager's keys for the test: Super+Up maximizes, Super+Down
# restores.
cat >"$tmp/rc.xml" <<'EOF'
<?xml version="1.0" encoding="UTF-8"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew><followMouse>no</followMouse></focus>
  <keyboard>
    <keybind key="W-Up"><action name="Maximize"/></keybind>
    <keybind key="W-Down"><action name="Unmaximize"/></keybind>
  </keyboard>
</openbox_config>
EOF

err=""  # standard error of the running program
pid=""
win=""

fail() {
  echo "FAIL: $*" >&2
  if [ -n "$err" ] && [ -f "$err" ]; then
    echo "---- the program's standard error:" >&2
    cat "$err" >&2
  fi
  exit 1
}

# poll TRIES COMMAND...: runs COMMAND every 0.1 s until it succeeds, at most
# TRIES times.
poll() {
  local tries=$1
  shift
  for ((i = 0; i < tries; i++)); do
    if "$@" 2>/dev/null; then return 0; fi
    sleep 0.1
  done
  return 1
}

last_state() { grep '^state: ' "$err" | tail -n 1 || true; }

# The part of the last state line about one graph window ("Graph 1").
window_state() {
  last_state | awk -v tag="$1 " -F ' [|] ' '{ for (i = 2; i <= NF; i++) if (index($i, tag) == 1) print $i }'
}

state_matches() { last_state | grep -Eq -- "$1"; }
window_matches() { window_state "$1" | grep -Eq -- "$2"; }

wm_running() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; }

frame_window() { xdotool search --onlyvisible --pid "$pid" 2>/dev/null | head -n 1; }
found_frame() {
  win=$(frame_window)
  [ -n "$win" ]
}
visible_windows() { xdotool search --onlyvisible --pid "$pid" 2>/dev/null | wc -l; }
popup_open() { [ "$(visible_windows)" -ge 2 ]; }
popup_closed() { [ "$(visible_windows)" -eq 1 ]; }
is_active() { [ "$(xdotool getactivewindow)" = "$win" ]; }
maximized() { xprop -id "$win" _NET_WM_STATE | grep -q _NET_WM_STATE_MAXIMIZED_HORZ; }
not_maximized() { ! maximized; }
frame_width() { xdotool getwindowgeometry "$win" | sed -n 's/.*Geometry: \([0-9]*\)x.*/\1/p'; }
width_is() { [ "$(frame_width)" = "$1" ]; }
ended() { ! kill -0 "$pid" 2>/dev/null; }

start_program() {
  err="$tmp/stderr-$1.txt"
  "$program" 2>"$err" &
  pid=$!
  pids+=("$pid")
  poll 100 state_matches '^state: windows=1 active=Graph 1 ' || fail "start $1: no state line for Graph 1"
  poll 50 found_frame || fail "start $1: the frame's window is not found"
  xdotool windowactivate "$win" || true
  poll 50 is_active || fail "start $1: the frame does not become active"
}

exit_program() {
  xdotool key --clearmodifiers alt+f
  poll 50 popup_open || fail "Alt+F did not open the File menu"
  xdotool key x
  poll 100 ended || fail "File > Exit did not end the program"
  wait "$pid" || fail "the program ended with status $?"
}

openbox --config-file "$tmp/rc.xml" >/dev/null 2>&1 &
pids+=("$!")
poll 100 wm_running || fail "openbox did not start"

# ---- 1. A new window, a menu and focus changes never draw ----------------------

start_program 1
xdotool type --delay 30 'SinX'
xdotool key Return
poll 100 window_matches 'Graph 1' '^Graph 1 - Y \(X\) = SinX / type=1 listed=1 .* drawing=0$' ||
  fail "SinX was not drawn: $(last_state)"
xdotool key alt+o
poll 50 window_matches 'Graph 1' 'type=3' || fail "Alt+O did not choose the polar type: $(last_state)"
xdotool key ctrl+a # CosX replaces SinX in the box
xdotool type --delay 30 'CosX'
xdotool key Return
poll 100 window_matches 'Graph 1' '^Graph 1 - R \(K\) = CosX / type=3 listed=2 .* drawing=0$' ||
  fail "CosX was not drawn as R (K): $(last_state)"
drawn=$(window_state 'Graph 1')

xdotool key --clearmodifiers alt+f
poll 50 popup_open || fail "Alt+F did not open the File menu"
[ "$(window_state 'Graph 1')" = "$drawn" ] ||
  fail "opening a menu changed Graph 1: was '$drawn', now '$(window_state 'Graph 1')'"
xdotool key Escape
xdotool key Escape
poll 50 popup_closed || fail "Esc did not close the File menu"

xdotool key ctrl+n
poll 100 state_matches '^state: windows=2 active=Graph 2 ' || fail "Ctrl+N did not open Graph 2: $(last_state)"
poll 20 window_matches 'Graph 2' '^Graph 2 / type=1 listed=0 updates=0 drawing=0$' ||
  fail "Graph 2 is not a new empty window: $(last_state)"
[ "$(window_state 'Graph 1')" = "$drawn" ] ||
  fail "Ctrl+N changed Graph 1: was '$drawn', now '$(window_state 'Graph 1')'"
grep -q '^message box' "$err" && fail "a message box was shown"
echo "ok: Graph 1 stayed '$drawn' through a menu and Ctrl+N"

# ---- 2. Maximized by the window manager, then File > Exit ----------------------

xdotool key super+Up
poll 50 maximized || fail "Super+Up did not maximize the frame"
exit_program
grep -q '^Geometry=' "$settings" || fail "the frame's geometry was not kept in $settings"
grep -q '^\[TBW\]' "$settings" || fail "the toolbar layout was not kept from the maximized frame"
echo "ok: exit from a maximized frame kept the layout"

# ---- 3. The next start: maximized again, and free to be narrowed ------------------

start_program 2
poll 50 maximized || fail "the frame did not come back maximized"
xdotool key super+Down
poll 50 not_maximized || fail "Super+Down did not restore the frame"
width=$(frame_width)
[ -n "$width" ] && [ "$width" -lt 1600 ] || fail "the restored frame is $width pixels wide, the screen's width"
poll 20 state_matches ' chevrons=0 ' || fail "a band hides buttons in a frame $width pixels wide: $(last_state)"
xdotool windowsize "$win" 700 500
poll 50 width_is 700 || fail "the frame cannot be narrowed to 700 pixels: it stays $(frame_width) wide"
echo "ok: the frame came back maximized, restored to $width pixels and narrowed to 700"
exit_program
grep -q '^message box' "$err" && fail "a message box was shown"
echo "PASS"
