#!/usr/bin/env bash
# End to end: the built calculator on a virtual X display, keys typed by xdotool as
# a user types them, the screen read back as pixels. No window manager runs, so the
# window stands where it put itself; its place is read from the X server.
#   tests/e2e/keys_and_screen.sh BINARY DRIVER (CTest runs it; it starts Xvfb itself)
set -euo pipefail

binary=$1
driver=${2:-}
if [ -z "${E2E_INNER:-}" ]; then
  export E2E_INNER=1
  exec xvfb-run -a -s "-screen 0 800x600x24" "$0" "$@"
fi

work=$(mktemp -d)
pid=
cleanup() {
  [ -n "$pid" ] && kill "$pid" 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT
export XDG_CONFIG_HOME=$work/config QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY
# Under the sanitizers, the system libraries' own leaks are not the program's.
LSAN_OPTIONS="suppressions=$(dirname "$0")/lsan.supp${LSAN_OPTIONS:+:$LSAN_OPTIONS}"
export LSAN_OPTIONS

fail() {
  echo "FAIL: $*" >&2
  exit 1
}

# The rate update at start stays off: a sheet over the keypad would take the keys.
if [ -n "$driver" ]; then
  echo 'setpref boolean UpdateExchangeRates false' > "$work/prefs.drive"
  "$driver" --prefs-dir "$XDG_CONFIG_HOME/Tessarine" "$work/prefs.drive" > /dev/null
fi

"$binary" > "$work/out.log" 2>&1 &
pid=$!
window=$(timeout 15 xdotool search --sync --onlyvisible --name '^Tessarine$' | head -1) ||
  fail "no window appeared"
[ -n "$window" ] || fail "no window appeared"

# The window's client area: the menu bar, then the 171 x 249 canvas of the simple
# calculator. Every place below is the layout's, in the canvas.
eval "$(xdotool getwindowgeometry --shell "$window")"
left=$X
canvas_top=$((Y + HEIGHT - 249))
[ "$WIDTH" -eq 171 ] || fail "simple window is $WIDTH wide, not 171"
[ "$HEIGHT" -gt 249 ] || fail "window is $HEIGHT high: no room for the menu bar"

shot() { import -window root "$work/$1.png"; }
# The colour of a pixel of the canvas, as "r g b".
pixel() {
  convert "$work/$1.png" -format \
    "%[fx:int(255*p{$((left + $2)),$((canvas_top + $3))}.r+0.5)] %[fx:int(255*p{$((left + $2)),$((canvas_top + $3))}.g+0.5)] %[fx:int(255*p{$((left + $2)),$((canvas_top + $3))}.b+0.5)]" info:
}
# The display's area (Display at 16,19, 137 x 16) cut out of a screenshot.
display() {
  convert "$work/$1.png" -crop "137x16+$((left + 16))+$((canvas_top + 19))" +repage "$work/$1-display.png"
}
# How many pixels differ between the display areas of two screenshots.
differing() {
  compare -metric AE "$work/$1-display.png" "$work/$2-display.png" null: 2>&1 || true
}

sleep 1.5  # the first value shows after 100 ms
shot start
display start

# The clear key (13,53, 33 x 26) is red: a pixel inside it, off its caption.
read -r r g b <<< "$(pixel start 17 66)"
[ "$r" -ge 200 ] && [ "$g" -le 80 ] && [ "$b" -le 80 ] || fail "clear key is $r,$g,$b, not red"
# The display has the display's ink colour (#164982) somewhere: the "0." of start.
convert "$work/start-display.png" -fuzz 20% -fill black -opaque '#164982' -fill white +opaque black \
  -format '%[fx:int(mean*w*h)]' info: > "$work/white"
[ "$(cat "$work/white")" -lt $((137 * 16)) ] || fail "no digit in the display's colour"

xdotool windowfocus --sync "$window"
xdotool key 7 asterisk 6 Return
sleep 1.2
shot product
display product
[ "$(differing start product)" -gt 20 ] || fail "the display did not change after 7 * 6 ="

# The same number typed anew draws the same pixels: the product is 42.
xdotool key c 4 2 equal
sleep 1
shot typed
display typed
[ "$(differing product typed)" -eq 0 ] || fail "7 * 6 = does not show as 4 2 = does"
xdotool key c 4 3 equal
sleep 1
shot other
display other
[ "$(differing typed other)" -gt 0 ] || fail "43 shows as 42: the comparison sees nothing"

# Quit from the keyboard: the program ends by itself.
xdotool key ctrl+q
for _ in $(seq 1 20); do
  kill -0 "$pid" 2>/dev/null || break
  sleep 0.2
done
if kill -0 "$pid" 2>/dev/null; then fail "still running after Ctrl+Q"; fi
wait "$pid" || fail "exit status $? after Ctrl+Q"
pid=
echo "PASS: clear key red, 7 * 6 = shows 42, Ctrl+Q quits"
