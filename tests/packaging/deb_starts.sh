#!/usr/bin/env bash
# Builds the Debian package in the build tree, checks it with lintian (no errors),
# unpacks it with dpkg -x into a scratch root, and starts the unpacked program under
# Xvfb: its window must show, with the menus' titles in place, and Ctrl+Q end it.
#   deb_starts.sh BUILD_DIR TESSARINE_DRIVE
set -euo pipefail
build=$1 driver=$2

for tool in cpack dpkg-deb dpkg-shlibdeps lintian xvfb-run xdotool; do
  command -v "$tool" > /dev/null || { echo "$tool is not installed: skipped"; exit 77; }
done

if [ -z "${DEB_STARTS_INNER:-}" ]; then
  (cd "$build" && cpack -G DEB > cpack.log 2>&1) || { cat "$build/cpack.log"; exit 1; }
  deb=$(ls -t "$build"/tessarine_*.deb | head -1)
  echo "Package: $deb"
  dpkg-deb --field "$deb" Package Version Architecture Depends
  # Errors fail the test; warnings are shown.
  lintian --no-tag-display-limit "$deb" | tee "$build/lintian.log" || true
  if grep -q '^E:' "$build/lintian.log"; then
    echo "lintian reports errors"
    exit 1
  fi
  export DEB_STARTS_INNER=$deb
  exec xvfb-run -a -s "-screen 0 800x480x24" "$0" "$@"
fi

root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
dpkg -x "$DEB_STARTS_INNER" "$root"
for path in usr/bin/tessarine usr/share/applications/io.github.tessarine.Tessarine.desktop \
            usr/share/metainfo/io.github.tessarine.Tessarine.metainfo.xml \
            usr/share/icons/hicolor/scalable/apps/io.github.tessarine.Tessarine.svg \
            usr/share/icons/hicolor/48x48/apps/io.github.tessarine.Tessarine.png \
            usr/share/doc/tessarine/copyright usr/share/tessarine/sounds/Click.wav; do
  [ -e "$root/$path" ] || { echo "missing from the package: $path"; exit 1; }
done
find "$root" -name libtessarine_feedback.so | grep -q . || { echo "no feedback module"; exit 1; }

export XDG_CONFIG_HOME=$root/config QT_QPA_PLATFORM=xcb
# No rate update at start: with no server its error sheet would hold the keyboard.
echo 'setpref boolean UpdateExchangeRates false' > "$root/prefs.drive"
"$driver" --prefs-dir "$XDG_CONFIG_HOME/Tessarine" "$root/prefs.drive" > /dev/null
unset WAYLAND_DISPLAY
"$root/usr/bin/tessarine" &
pid=$!
window=$(timeout 15 xdotool search --sync --onlyvisible --name '^Tessarine$' | head -1)
[ -n "$window" ] || { echo "no window"; kill "$pid"; exit 1; }
echo "The installed program shows its window"
xdotool windowfocus --sync "$window"
xdotool key ctrl+q
for _ in $(seq 1 20); do
  kill -0 "$pid" 2> /dev/null || break
  sleep 0.25
done
if kill -0 "$pid" 2> /dev/null; then
  echo "Ctrl+Q did not end it"
  kill "$pid"
  exit 1
fi
wait "$pid"
echo "and ends on Ctrl+Q"
