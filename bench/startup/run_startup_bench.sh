#!/bin/sh
# Start-up benchmark: time to the main window being mapped, and resident memory
# 2 s later, for an empty Qt 6 Widgets window, tessarine (three times: as a new
# user, with the rate update and the version check on against a server that never
# answers, and with a sound server), SpeedCrunch and galculator, on a private Xvfb display with no window
# manager.
#
#   bench/startup/run_startup_bench.sh [-n ROUNDS] [-t TESSARINE | -i PREFIX] [-o RESULTS]
#                                      [-b] BUILD_DIR
#   bench/startup/run_startup_bench.sh -r RESULTS     (only the table of earlier runs)
#
# BUILD_DIR is a build with -DTESSARINE_BENCH=ON; the probe and the empty window
# are found through BUILD_DIR/bench/startup/startup_programs.env, tessarine there
# too (or -t PATH; -t none leaves it out; -i PREFIX takes the program installed
# under PREFIX by "cmake --install BUILD_DIR --prefix PREFIX"). -b runs only the
# empty window and tessarine's three runs. A program that is missing is skipped
# with a message.
#
# The run against a stalling server ("tessarine_stall"): before each such run
# stalling_server.py listens on a free loopback port, accepting connections and
# never answering; tessarine runs with "--server 127.0.0.1:PORT" (so that no other
# program on the machine meets that server) and a fresh HOME holding preferences
# with "UpdateExchangeRates" and "CheckForUpdates" on, written by BUILD_DIR's
# tessarine-drive. The connections the server accepted are the last field of the
# run's line. It is skipped with a message when the driver or python3 is missing.
#
# The run with a sound server ("tessarine_sound"): a private PulseAudio with a null
# sink, started once, listens on a socket of its own; tessarine runs with
# PULSE_SERVER pointing there, as on a desktop with sound, where it loads its sound
# output soon after start. It is skipped with a message when pulseaudio is missing.
#
# The programs run interleaved: one warm-up round that is not counted, then ROUNDS
# rounds (15 unless told) in which every program runs once, the order turning by
# one each round, so that whatever disturbs the machine meets all of them alike.
# Every run gets a fresh, empty HOME and XDG folders, no session bus, a plain PATH,
# LANG=C.UTF-8 and QT_QPA_PLATFORM=xcb (run_clean in startup_common.sh). The raw
# lines go to RESULTS (BUILD_DIR/bench/startup/startup_results.txt unless told);
# the table of medians and ratios goes to standard output.
set -eu

rounds=15
tessarine=
installed=
brief=
results=
report_only=
usage() {
  echo "usage: $0 [-n ROUNDS] [-t TESSARINE | -i PREFIX] [-o RESULTS] [-b] BUILD_DIR" >&2
  echo "       $0 -r RESULTS" >&2
  exit 2
}
while getopts n:t:i:o:r:b option; do
  case $option in
    n) rounds=$OPTARG ;;
    t) tessarine=$OPTARG ;;
    i) installed=$OPTARG ;;
    o) results=$OPTARG ;;
    r) report_only=$OPTARG ;;
    b) brief=1 ;;
    *) usage ;;
  esac
done
shift $((OPTIND - 1))

# The stalling server of one run: started before the run, ended after it, so that
# no other run meets it.
stall_pid=
start_stalling_server() {
  rm -f "$work/stall.state"
  python3 "$(dirname "$0")/stalling_server.py" 127.0.0.1 "$work/stall.state" \
    2>> "$work/stall.log" &
  stall_pid=$!
  start_stalling_server_tries=0
  while [ ! -s "$work/stall.state" ]; do
    start_stalling_server_tries=$((start_stalling_server_tries + 1))
    if [ $start_stalling_server_tries -gt 100 ] || ! kill -0 "$stall_pid" 2> /dev/null; then
      stop_stalling_server
      return 1
    fi
    sleep 0.05
  done
}
# The sound server of the runs with sound: one for the whole benchmark.
pulse_pid=
sound_setup() {
  if ! command -v pulseaudio > /dev/null 2>&1; then
    echo "tessarine_sound: pulseaudio is missing; its column is skipped"
    return
  fi
  mkdir -p "$work/pulse-home"
  HOME=$work/pulse-home XDG_RUNTIME_DIR=$work/pulse-home pulseaudio -n --daemonize=no \
    --exit-idle-time=-1 --use-pid-file=no -L "module-null-sink sink_name=bench" \
    -L "module-native-protocol-unix socket=$work/pulse.sock auth-anonymous=1" \
    > "$work/pulse.log" 2>&1 &
  pulse_pid=$!
  sound_setup_tries=0
  while [ ! -S "$work/pulse.sock" ]; do
    sound_setup_tries=$((sound_setup_tries + 1))
    if [ $sound_setup_tries -gt 100 ] || ! kill -0 "$pulse_pid" 2> /dev/null; then
      echo "tessarine_sound: the sound server does not start; its column is skipped"
      cat "$work/pulse.log"
      stop_sound_server
      return
    fi
    sleep 0.05
  done
  add_program tessarine_sound "$tessarine"
}
stop_sound_server() {
  if [ -n "$pulse_pid" ]; then
    kill "$pulse_pid" 2> /dev/null || true
    wait "$pulse_pid" 2> /dev/null || true
    pulse_pid=
  fi
}
stop_stalling_server() {
  if [ -n "$stall_pid" ]; then
    kill "$stall_pid" 2> /dev/null || true
    wait "$stall_pid" 2> /dev/null || true
    stall_pid=
  fi
}

# Adds the run against a stalling server when everything it needs is there: the
# preferences written once by the driver, a server that listens.
stall_config=
stall_setup() {
  stall_driver=$(setting TESSARINE_DRIVE)
  if [ -z "$stall_driver" ] || [ ! -x "$stall_driver" ]; then
    echo "tessarine_stall: the driver tessarine-drive is not built; its column is skipped"
    return
  fi
  if ! command -v python3 > /dev/null 2>&1; then
    echo "tessarine_stall: python3 is missing; its column is skipped"
    return
  fi
  printf 'setpref boolean UpdateExchangeRates true\nsetpref boolean CheckForUpdates true\n' \
    > "$work/stall.drive"
  if ! "$stall_driver" --prefs-dir "$work/stall-config/Tessarine" "$work/stall.drive" \
       > "$work/stall.drive.log" 2>&1 || [ -z "$(ls -A "$work/stall-config/Tessarine" 2>/dev/null)" ]; then
    echo "tessarine_stall: the driver wrote no preferences; its column is skipped"
    cat "$work/stall.drive.log"
    return
  fi
  if ! start_stalling_server; then
    echo "tessarine_stall: the stalling server does not start; its column is skipped"
    cat "$work/stall.log"
    return
  fi
  stop_stalling_server
  stall_config=$work/stall-config
  add_program tessarine_stall "$tessarine"
}

measure() {
  programs_file=$build/bench/startup/startup_programs.env
  if [ ! -f "$programs_file" ]; then
    echo "start-up benchmark: $programs_file is missing; configure $build with -DTESSARINE_BENCH=ON" \
         "(it needs Qt 6 Widgets and libxcb)" >&2
    exit 1
  fi
  . "$(dirname "$0")/startup_common.sh"
  setting() { startup_setting "$programs_file" "$1"; }
  probe=$(setting PROBE)
  empty_qt_window=$(setting EMPTY_QT_WINDOW)
  if [ -n "$installed" ]; then
    [ -z "$tessarine" ] || usage
    tessarine=$installed/bin/tessarine
  fi
  [ -n "$tessarine" ] || tessarine=$(setting TESSARINE)
  [ -n "$tessarine" ] || tessarine=$build/desktop/tessarine
  [ -n "$results" ] || results=$build/bench/startup/startup_results.txt
  programs_log=${results%.txt}.log
  work=$(mktemp -d "${TMPDIR:-/tmp}/tessarine-startup.XXXXXX")
  cleanup() {
    stop_stalling_server
    stop_sound_server
    stop_xvfb
    rm -rf "$work"
  }
  trap cleanup EXIT
  trap 'exit 130' HUP INT PIPE TERM
  for tool in Xvfb "$probe" "$empty_qt_window"; do
    if ! command -v "$tool" > /dev/null 2>&1; then
      echo "start-up benchmark: $tool is missing" >&2
      exit 1
    fi
  done

  # The programs measured, the baseline first: their names in "names", their paths
  # in path_NAME.
  names=
  add_program() {
    names="$names $1"
    eval "path_$1=\$2"
  }
  add_program empty_qt "$empty_qt_window"
  if [ "$tessarine" = none ]; then
    echo "tessarine: left out (-t none); its column is skipped"
  elif [ -x "$tessarine" ]; then
    add_program tessarine "$tessarine"
    stall_setup
    sound_setup
  else
    echo "tessarine: not built ($tessarine is missing); its column is skipped"
  fi
  for debian in speedcrunch galculator; do
    [ -z "$brief" ] || break
    if found=$(command -v "$debian"); then
      add_program "$debian" "$found"
    else
      echo "$debian: not installed (Debian package $debian); its column is skipped"
    fi
  done
  count=$(echo $names | wc -w)

  start_xvfb

  # One run: prints "round name map_ms rss_kib tree_rss_kib procs size", or a message
  # on standard error. sh has no local variables: those of this function begin run_.
  run_one() {
    run_round=$1
    run_name=$2
    eval "run_path=\$path_$run_name"
    run_accepted=
    set --
    if [ "$run_name" = tessarine_stall ]; then
      if ! start_stalling_server; then
        echo "$run_name: run skipped in round $run_round: the stalling server did not start" >&2
        return
      fi
      run_clean_config=$stall_config
      set -- --server "127.0.0.1:$(cut -d ' ' -f 1 "$work/stall.state")"
    fi
    if [ "$run_name" = tessarine_sound ]; then
      set -- "PULSE_SERVER=unix:$work/pulse.sock" "$run_path"
      run_path=$(command -v env)
    fi
    run_line=$(run_clean "$probe" --settle 2000 -- "$run_path" "$@" 2>> "$programs_log")
    run_clean_config=
    if [ "$run_name" = tessarine_stall ]; then
      run_accepted=$(cut -d ' ' -f 2 "$work/stall.state")
      stop_stalling_server
    fi
    case $run_line in
      map_ms=*)
        echo "$run_round $run_name $run_line $run_accepted" | sed 's/[a-z_]*=//g' |
          awk '{print $1, $2, $3, $4, $5, $6, $8, $10}'
        ;;
      *)
        echo "$run_name: run failed in round $run_round: ${run_line:-no output}" >&2
        ;;
    esac
    sleep 0.2
  }

  echo "Start-up benchmark on display $display: $count programs, 1 warm-up round + $rounds rounds"
  mkdir -p "$(dirname "$results")"
  : > "$programs_log"
  {
    echo "# round program map_ms rss_kib tree_rss_kib procs window_size"
    echo "# $(date -u '+%Y-%m-%d %H:%M UTC'), $(uname -sr), $(nproc) CPUs," \
         "$(sed -n 's/^model name[[:space:]]*: //p' /proc/cpuinfo | head -n 1)"
    echo "# load average before: $(cut -d ' ' -f 1-3 /proc/loadavg)"
    for name in $names; do
      eval "echo \"# \$name: \$path_$name\""
    done
    [ -z "$stall_config" ] ||
      echo "# tessarine_stall: against a stalling server; last field: the connections it accepted"
  } > "$results"
  round=0
  while [ $round -le "$rounds" ]; do
    # Turn the order by one each round.
    set -- $names
    turn=$((round % count))
    while [ $turn -gt 0 ]; do
      first=$1
      shift
      set -- "$@" "$first"
      turn=$((turn - 1))
    done
    for name in "$@"; do
      if [ $round -eq 0 ]; then
        run_one warmup "$name" > /dev/null
      else
        run_one "$round" "$name" >> "$results"
      fi
    done
    printf '.'
    round=$((round + 1))
  done
  echo
  echo "# load average after: $(cut -d ' ' -f 1-3 /proc/loadavg)" >> "$results"
}

median() {
  sort -n | awk '{ v[NR] = $1 }
    END { if (NR == 0) print "nan"; else if (NR % 2) print v[(NR + 1) / 2];
          else print (v[NR / 2] + v[NR / 2 + 1]) / 2 }'
}
column() {  # the values of one field for one program
  awk -v name="$1" -v field="$2" '!/^#/ && $2 == name { print $field }' "$results"
}

if [ -n "$report_only" ]; then
  [ $# -eq 0 ] || usage
  results=$report_only
  programs_log=${results%.txt}.log
  names=
  for name in empty_qt tessarine tessarine_stall tessarine_sound speedcrunch galculator; do
    if awk -v name="$name" '!/^#/ && $2 == name { found = 1 } END { exit !found }' "$results"; then
      names="$names $name"
    fi
  done
  rounds=$(awk '!/^#/ && $1 > n { n = $1 } END { print n + 0 }' "$results")
else
  [ $# -eq 1 ] || usage
  build=$1
  measure
fi

base_ms=$(column empty_qt 3 | median)
base_rss=$(column empty_qt 5 | median)
echo
echo "Medians of $rounds interleaved runs; ratios to the empty Qt 6 window"
grep '^# load' "$results" | sed 's/^# /(/; s/$/)/'

# The round ratio: in each round, the program's time over the empty window's in
# the same round; its median. Noise that slows a whole round cancels out of it.
round_ratio() {
  awk -v name="$1" '!/^#/ && $2 == "empty_qt" { base[$1] = $3 }
    !/^#/ && $2 == name { ms[$1] = $3 }
    END { for (r in ms) if ((r in base) && base[r] > 0) print ms[r] / base[r] }' "$results" | median
}

printf '%-15s %4s %11s %14s %7s %7s %9s %7s\n' program runs "start-up ms" "(min-max)" ratio \
  "round" "RSS MiB" ratio
for name in $names; do
  runs=$(column "$name" 3 | wc -l)
  ms=$(column "$name" 3 | median)
  low=$(column "$name" 3 | sort -n | head -n 1)
  high=$(column "$name" 3 | sort -n | tail -n 1)
  rss=$(column "$name" 5 | median)
  paired=$(round_ratio "$name")
  awk -v name="$name" -v runs="$runs" -v ms="$ms" -v low="${low:-nan}" -v high="${high:-nan}" \
      -v rss="$rss" -v base_ms="$base_ms" -v base_rss="$base_rss" -v paired="$paired" 'BEGIN {
    if (runs == 0) { printf "%-15s %4d   (every run failed)\n", name, runs; exit }
    if (base_ms + 0 > 0 && base_rss + 0 > 0) {
      printf "%-15s %4d %11.1f %6.1f-%-7.1f %6.2fx %6.2fx %9.1f %6.2fx\n", name, runs, ms, low, high,
             ms / base_ms, paired, rss / 1024, rss / base_rss
    } else {
      printf "%-15s %4d %11.1f %6.1f-%-7.1f %7s %7s %9.1f %7s\n", name, runs, ms, low, high,
             "-", "-", rss / 1024, "-"
    }
  }'
done
if awk '!/^#/ && $2 == "tessarine_stall" { found = 1 } END { exit !found }' "$results"; then
  awk '!/^#/ && $2 == "tessarine_stall" { n++; c = $8 + 0; if (n == 1 || c < low) low = c; if (c > high) high = c }
    END { printf "(tessarine_stall: the stalling server accepted %d-%d connections per run)\n", low, high }' \
    "$results"
fi
echo "(ratio: of the medians; round: median of the ratios within each round. RSS is that"
echo " of the process and its descendants, read 2 s after the window was mapped.)"
echo "Raw runs: $results; what the programs printed: $programs_log"
