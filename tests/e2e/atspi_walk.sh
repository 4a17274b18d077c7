#!/usr/bin/env bash
# The built calculator seen by a screen reader: a private session bus with the AT-SPI
# registry, the program on a virtual X display, its accessibility tree walked over
# AT-SPI (atspi_walk.py).
#   tests/e2e/atspi_walk.sh TESSARINE TESSARINE_DRIVE
# Exits 77 (skipped) when the packages are not installed.
set -euo pipefail
binary=$1 driver=$2
here=$(cd "$(dirname "$0")" && pwd)
launcher=/usr/libexec/at-spi-bus-launcher
for tool in xvfb-run dbus-run-session; do
  command -v "$tool" > /dev/null || { echo "SKIP: $tool is not installed (make deps)"; exit 77; }
done
[ -x "$launcher" ] || { echo "SKIP: at-spi2-core is not installed (make deps)"; exit 77; }
/usr/bin/python3 -c 'import pyatspi' 2> /dev/null ||
  { echo "SKIP: python3-pyatspi is not installed (make deps)"; exit 77; }

if [ -z "${ATSPI_INNER:-}" ]; then
  export ATSPI_INNER=1
  exec xvfb-run -a -s "-screen 0 800x600x24" dbus-run-session -- "$0" "$@"
fi

work=$(mktemp -d)
pids=()
cleanup() {
  for p in "${pids[@]}"; do kill "$p" 2> /dev/null || true; done
  wait 2> /dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT
export XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work QT_QPA_PLATFORM=xcb
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
unset WAYLAND_DISPLAY
# No rate update at start: its error sheet would cover the keypad.
echo 'setpref boolean UpdateExchangeRates false' > "$work/prefs.drive"
"$driver" --prefs-dir "$XDG_CONFIG_HOME/Tessarine" "$work/prefs.drive" > /dev/null

"$launcher" --launch-immediately > "$work/bus.log" 2>&1 &
pids+=($!)
"$binary" > "$work/app.log" 2>&1 &
pids+=($!)
/usr/bin/python3 "$here/atspi_walk.py" Tessarine
