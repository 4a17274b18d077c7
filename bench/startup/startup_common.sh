# Shared by the start-up scripts (sourced, POSIX sh): a private Xvfb display and
# clean runs with a fresh HOME. The caller sets "work", a scratch folder.

xvfb_pid=
display=

# Starts Xvfb on a display number it picks itself (-displayfd) and sets "display".
# -noreset keeps it the same server from run to run.
start_xvfb() {
  Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset \
    3> "$work/display" > "$work/xvfb.log" 2>&1 &
  xvfb_pid=$!
  start_xvfb_tries=0
  while [ ! -s "$work/display" ]; do
    start_xvfb_tries=$((start_xvfb_tries + 1))
    if [ $start_xvfb_tries -gt 100 ] || ! kill -0 "$xvfb_pid" 2> /dev/null; then
      echo "Xvfb did not start:" >&2
      cat "$work/xvfb.log" >&2
      return 1
    fi
    sleep 0.1
  done
  display=:$(head -n 1 "$work/display")
}

stop_xvfb() {
  if [ -n "$xvfb_pid" ]; then
    kill "$xvfb_pid" 2> /dev/null || true
    wait "$xvfb_pid" 2> /dev/null || true
    xvfb_pid=
  fi
}

# run_clean COMMAND [ARG...]: runs the command on the display with nothing of the
# caller's environment: a fresh, empty HOME and XDG folders (so that no saved
# settings count), no session bus, a plain PATH, LANG=C.UTF-8, QT_QPA_PLATFORM=xcb.
# Standard input is empty; the command's output goes where the caller sends it.
# When run_clean_config names a folder, its contents are copied into the fresh
# XDG_CONFIG_HOME first (saved preferences for that run).
run_clean_config=
run_clean() {
  run_clean_home=$(mktemp -d "$work/home.XXXXXX")
  mkdir -p "$run_clean_home/.config" "$run_clean_home/.cache" "$run_clean_home/.local/share" \
           "$run_clean_home/runtime"
  [ -z "$run_clean_config" ] || cp -R "$run_clean_config/." "$run_clean_home/.config/"
  chmod 700 "$run_clean_home/runtime"
  env -i PATH=/usr/local/bin:/usr/bin:/bin HOME="$run_clean_home" \
      XDG_CONFIG_HOME="$run_clean_home/.config" XDG_CACHE_HOME="$run_clean_home/.cache" \
      XDG_DATA_HOME="$run_clean_home/.local/share" XDG_RUNTIME_DIR="$run_clean_home/runtime" \
      DISPLAY="$display" QT_QPA_PLATFORM=xcb LANG=C.UTF-8 "$@" < /dev/null || true
  rm -rf "$run_clean_home"
}

# Reads NAME=VALUE from the file CMake wrote next to the probe.
startup_setting() {
  sed -n "s/^$2=//p" "$1"
}
