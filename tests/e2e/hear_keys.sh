#!/usr/bin/env bash
# End to end, by ear: the built calculator on a virtual X display with a sound server
# of its own (PulseAudio with a null sink) and speech-dispatcher with espeak-ng, the
# sink's monitor recorded while xdotool types, the recordings measured with sox.
#   tests/e2e/hear_keys.sh [--latency-only] TESSARINE TESSARINE_DRIVE
# Exits 77 (skipped) when the audio packages are not installed.
set -euo pipefail

latency_only=
if [ "${1:-}" = --latency-only ]; then latency_only=1; shift; fi
binary=$1 drive=$2
here=$(cd "$(dirname "$0")" && pwd)
for tool in pulseaudio parec sox speech-dispatcher xdotool python3; do
  command -v "$tool" > /dev/null || { echo "SKIP: $tool is not installed (make deps)"; exit 77; }
done
[ -x /usr/lib/speech-dispatcher-modules/sd_espeak-ng ] ||
  { echo "SKIP: speech-dispatcher-espeak-ng is not installed (make deps)"; exit 77; }
if [ -z "${E2E_INNER:-}" ]; then
  export E2E_INNER=1
  exec xvfb-run -a -s "-screen 0 800x600x24" "$0" ${latency_only:+--latency-only} "$@"
fi

work=$(mktemp -d)
pids=()
cleanup() {
  for p in "${pids[@]}"; do kill "$p" 2> /dev/null || true; done
  wait 2> /dev/null || true
  [ -n "${KEEP_WORK:-}" ] && echo "kept $work" || rm -rf "$work"
}
trap cleanup EXIT
fail() {
  echo "FAIL: $*" >&2
  exit 1
}
mkdir -p "$work/run" "$work/home" "$work/config/Tessarine" "$work/speechd/modules"
chmod 700 "$work/run"
export XDG_RUNTIME_DIR=$work/run HOME=$work/home XDG_CONFIG_HOME=$work/config QT_QPA_PLATFORM=xcb
export PULSE_SERVER=unix:$work/pulse.sock SPEECHD_ADDRESS=unix_socket:$work/speechd.sock
unset WAYLAND_DISPLAY
LSAN_OPTIONS="suppressions=$here/lsan.supp${LSAN_OPTIONS:+:$LSAN_OPTIONS}"
export LSAN_OPTIONS

start_pulse() {
  pulseaudio -n --daemonize=no --exit-idle-time=-1 --use-pid-file=no \
    -L "module-null-sink sink_name=tsink rate=48000" \
    -L "module-native-protocol-unix socket=$work/pulse.sock auth-anonymous=1" \
    > "$work/pulse.log" 2>&1 &
  pulse=$!
  pids+=("$pulse")
  for _ in $(seq 1 50); do pactl info > /dev/null 2>&1 && return; sleep 0.1; done
  fail "the sound server did not start"
}
start_speechd() {
  cp /etc/speech-dispatcher/modules/espeak-ng.conf "$work/speechd/modules/"
  printf '%s\n' 'AudioOutputMethod "pulse"' 'AddModule "espeak-ng" "sd_espeak-ng" "espeak-ng.conf"' \
    'DefaultModule espeak-ng' 'Timeout 0' > "$work/speechd/speechd.conf"
  speech-dispatcher -C "$work/speechd" -s -t 0 -c unix_socket -S "$work/speechd.sock" \
    > "$work/speechd.log" 2>&1 &
  speechd=$!
  pids+=("$speechd")
  for _ in $(seq 1 50); do [ -S "$work/speechd.sock" ] && return; sleep 0.1; done
  fail "speech-dispatcher did not start"
}
# The preferences of the next start, written by the driver as the program writes them.
# The rate update stays off: its box about the missing network would take the keys.
prefs() {
  printf 'setpref boolean %s\n' "UpdateExchangeRates false" "$@" > "$work/prefs.drive"
  "$drive" --prefs-dir "$work/config/Tessarine" "$work/prefs.drive" > /dev/null
}
start_app() {
  "$binary" > "$work/app.log" 2>&1 &
  app=$!
  pids+=("$app")
  window=$(timeout 15 xdotool search --sync --onlyvisible --name '^Tessarine$' | head -1) ||
    fail "no window appeared"
  xdotool windowfocus --sync "$window"
  sleep 1  # the first value and the preloaded sounds
}
quit_app() {
  xdotool key ctrl+q
  for _ in $(seq 1 25); do kill -0 "$app" 2> /dev/null || break; sleep 0.2; done
  kill -0 "$app" 2> /dev/null && fail "still running after Ctrl+Q"
  wait "$app" || fail "exit status $? after Ctrl+Q"
}
alive() { kill -0 "$app" 2> /dev/null || fail "the program died: $1"; }
# No window but the calculator's: no error box came up.
no_box() {
  [ "$(xdotool search --onlyvisible --name '.' 2> /dev/null | wc -l)" -le 1 ] ||
    fail "a window other than the calculator showed: $1"
}
# Records the sink's monitor while the given xdotool keys are typed, a gap between them.
record() {
  local out=$1 gap=$2
  shift 2
  parec -d tsink.monitor --rate=16000 --channels=1 --format=s16le --raw > "$work/$out.raw" &
  local rec=$!
  # The keys wait for the recording: on a busy machine parec may take a while to
  # start, and a word before its start would be missed.
  for _ in $(seq 1 50); do [ -s "$work/$out.raw" ] && break; sleep 0.1; done
  sleep 0.5
  for k in "$@"; do xdotool key "$k"; sleep "$gap"; done
  kill "$rec"
  wait "$rec" 2> /dev/null || true
}
# The stretches of sound of a recording, one "start length" line each in seconds:
# RMS over 20 ms frames read by sox, gaps under 150 ms joined.
stretches() {
  sox -t raw -r 16000 -e signed -b 16 -c 1 "$work/$1.raw" -t dat - | awk '
    /^;/ { next }
    { sum += $2 * $2; n++; if (n == 320) { frame++; loud = sqrt(sum / n) > 0.01; sum = 0; n = 0
        t = frame * 0.02
        if (loud) { if (!on) { if (on_end && t - on_end < 0.15) { } else { if (start != "") print start, on_end - start; start = t }; on = 1 } }
        else if (on) { on = 0; on_end = t } } }
    END { if (on) on_end = frame * 0.02; if (start != "") print start, on_end - start }'
}
peak() { sox -t raw -r 16000 -e signed -b 16 -c 1 "$work/$1.raw" -n stat 2>&1 | awk '/Maximum amplitude/ { print $3 }'; }

start_pulse
start_speechd

# 1. A digit's click: heard after each press, silence before it; the latency of 20
#    presses. A click on the keypad's 7 runs the key at once: its latency is the
#    sound's path. The keyboard's 7 shows the key going down for 7 ticks (100 to
#    117 ms) before the key runs, and its latency holds that flash. The clear key
#    between digits is silent here.
prefs "UseClearSnd false"
start_app
eval "$(xdotool getwindowgeometry --shell "$window")"
# The keypad's 7 of the simple layout: 28 from the window's left, 119 above its bottom.
python3 "$here/key_sound_latency.py" --monitor tsink.monitor --click "$((X + 28)),$((Y + HEIGHT - 119))" \
  --count 20 --quiet-ms 200 | tee "$work/latency"
python3 "$here/key_sound_latency.py" --monitor tsink.monitor --key 7 --count 20 --quiet-ms 200 |
  tee "$work/latency_keys"
summary() {
  awk '/^latency_ms/ { sub("median=", "", $2); sub("heard=", "", $5); sub("before_peak=", "", $6)
    print $2, $5, $6 }' "$1"
}
read -r median heard before < <(summary "$work/latency")
read -r key_median key_heard key_before < <(summary "$work/latency_keys")
[ "$heard" = 20/20 ] || fail "a click on the 7 gave no sound ($heard)"
[ "$key_heard" = 20/20 ] || fail "the 7 of the keyboard gave no click ($key_heard)"
awk -v b="$before" -v k="$key_before" 'BEGIN { exit !(b < 0.005 && k < 0.005) }' ||
  fail "sound before the key ($before, $key_before)"
echo "click-to-sound latency, median of 20: $median ms; keyboard (with the key's flash): $key_median ms"
awk -v m="$median" 'BEGIN { exit !(m < 30) }' || fail "the click comes $median ms after the key"
[ -n "$latency_only" ] && { quit_app; exit 0; }
quit_app

# 2. Speak Button on: 7, clear, 8 are spoken in turn, as three stretches of voice:
#    "seven" and "eight" short, "clear" about as short; each alone, none cut.
prefs "SpeakButton false" "UseClearSnd true"
start_app
record speech 1.4 7 c 8
mapfile -t voice < <(stretches speech)
printf 'voice stretch: %s\n' "${voice[@]}"
[ "${#voice[@]}" -eq 3 ] || fail "${#voice[@]} stretches of voice for 3 spoken keys"
for v in "${voice[@]}"; do
  awk -v l="${v#* }" 'BEGIN { exit !(l >= 0.2 && l <= 1.2) }' || fail "a word lasts ${v#* } s"
done
# In order: each stretch starts after the one before has ended, at the pace of the keys.
read -r s1 _ <<< "${voice[0]}" && read -r s3 _ <<< "${voice[2]}"
awk -v a="$s1" -v b="$s3" 'BEGIN { exit !(b - a > 2.4 && b - a < 3.4) }' ||
  fail "the words do not follow the keys ($s1 .. $s3)"

# 3. Speech dies while the program runs: keys go on, nothing hangs, no box.
kill "$speechd"
wait "$speechd" 2> /dev/null || true
xdotool key 1 2 3
sleep 0.5
xdotool key 4 5 6
sleep 0.5
alive "after speech-dispatcher died"
no_box "after speech-dispatcher died"
quit_app

# 4. Sounds off, speech off: silence.
prefs "SpeakButton true" "UseNumberSnd false" "UseCalculationSnd false" "UseClearSnd false" \
  "UseResultSnd false" "UseErrorSnd false"
start_app
record quiet 0.3 7 plus 8 Return c
[ "$(peak quiet)" = 0.000000 ] || fail "sound with sounds and speech off (peak $(peak quiet))"

# 5. The sound server dies while the program runs: keys go on, no box; it starts
#    again, and the clicks come back (the stream is opened again in the background).
quit_app
prefs "UseNumberSnd true"  # after the quit, which writes the program's own
start_app
kill "$pulse"
wait "$pulse" 2> /dev/null || true
xdotool key 7 8 9
sleep 0.5
alive "after the sound server died"
no_box "after the sound server died"
start_pulse
sleep 3.5
# The program looks for the server every 3 s in the background: on a busy machine the
# first look may come late, so three tries of three presses, 2 s apart.
clicks_back() {
  for _ in 1 2 3; do
    python3 "$here/key_sound_latency.py" --monitor tsink.monitor --key 7 --count 3 --quiet-ms 100 |
      tee "$work/back"
    grep -q 'heard=3/3' "$work/back" && return
    sleep 2
  done
  fail "no clicks once the sound server $1"
}
clicks_back "came back"
quit_app

# 6. No sound server and no speech service at start: the program starts, works and
#    writes one line about the sound server at most; a server that starts later is
#    heard.
kill "$pulse"
wait "$pulse" 2> /dev/null || true
SPEECHD_ADDRESS=unix_socket:$work/none.sock start_app
xdotool key 7 8 9 plus 1 Return
sleep 0.5
alive "without a sound server"
no_box "without a sound server"
start_pulse
sleep 3.5
clicks_back "started after the program"
quit_app
[ "$(grep -ci 'audio' "$work/app.log")" -le 1 ] || fail "more than one line about audio: $(cat "$work/app.log")"
echo "PASS: clicks heard after keys ($median ms median), speech in order, silence when off," \
  "no hang or box when the servers are missing or die"
