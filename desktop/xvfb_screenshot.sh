#!/usr/bin/env bash
# Runs the calculator on a virtual X display (Xvfb) for a few seconds, switches it
# to advanced mode with the space bar, saves a screenshot of the display and quits
# it with Ctrl+Q. For `make run` on a machine without a display.
#   desktop/xvfb_screenshot.sh BINARY OUTPUT.png
set -euo pipefail

binary=$1
output=$2

if [ -z "${XVFB_SCREENSHOT_INNER:-}" ]; then
  export XVFB_SCREENSHOT_INNER=1
  exec xvfb-run -a -s "-screen 0 800x480x24" "$0" "$@"
fi

# A preferences folder of its own: the demonstration leaves the user's alone.
config=$(mktemp -d)
trap 'rm -rf "$config"' EXIT
export XDG_CONFIG_HOME=$config QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY

"$binary" &
pid=$!
window=$(timeout 10 xdotool search --sync --onlyvisible --name '^Tessarine$' | head -1)
sleep 1
# No window manager runs here to give the window the keyboard: give it ourselves.
xdotool windowfocus --sync "$window"
xdotool key space
sleep 1
import -window root "$output"
xdotool key ctrl+q
for _ in 1 2 3 4 5 6 7 8 9 10; do
  kill -0 "$pid" 2>/dev/null || break
  sleep 0.3
done
kill "$pid" 2>/dev/null || true
wait "$pid" 2>/dev/null || true
echo "Screenshot: $output"
