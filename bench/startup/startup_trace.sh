#!/bin/sh
# Where a program's start-up goes, next to the empty Qt window's.
#
#   bench/startup/startup_trace.sh [-n RUNS] [-k] BUILD_DIR [PROGRAM]
#
# PROGRAM (tessarine from BUILD_DIR unless told) and the empty Qt window run RUNS
# times each (5 unless told), alternately, on a private Xvfb with a fresh HOME, as
# in run_startup_bench.sh, but under strace. strace stops the program only at
# execve, openat and connect (through seccomp), so it runs at nearly full speed;
# still, the times are longer than without it: compare the two columns, not the
# figures with the benchmark's.
#
# For every run it takes, in milliseconds after the program's exec: landmarks of
# a Qt start-up (Qt's plugins looked up, X connection, font configuration read,
# first font file, ...) and the moment the main window was mapped (from the
# probe). It prints the medians side by side, then every file, socket and program
# that PROGRAM opened and the empty window did not, with the median time of its
# first opening: this is what the program itself adds to a bare Qt start-up.
# -k keeps the strace logs and prints where they are.
set -eu

runs=5
keep=0
usage() {
  echo "usage: $0 [-n RUNS] [-k] BUILD_DIR [PROGRAM]" >&2
  exit 2
}
while getopts n:k option; do
  case $option in
    n) runs=$OPTARG ;;
    k) keep=1 ;;
    *) usage ;;
  esac
done
shift $((OPTIND - 1))
[ $# -eq 1 ] || [ $# -eq 2 ] || usage
build=$1

programs_file=$build/bench/startup/startup_programs.env
if [ ! -f "$programs_file" ]; then
  echo "$programs_file is missing; configure $build with -DTESSARINE_BENCH=ON" >&2
  exit 1
fi
. "$(dirname "$0")/startup_common.sh"
probe=$(startup_setting "$programs_file" PROBE)
empty_qt_window=$(startup_setting "$programs_file" EMPTY_QT_WINDOW)
program=${2:-$(startup_setting "$programs_file" TESSARINE)}
[ -n "$program" ] || program=$build/desktop/tessarine
for tool in Xvfb strace "$probe" "$empty_qt_window" "$program"; do
  if ! command -v "$tool" > /dev/null 2>&1; then
    echo "$tool is missing" >&2
    exit 1
  fi
done
name=$(basename "$program")
[ "$name" != empty_qt_window ] || name=program

work=$(mktemp -d "${TMPDIR:-/tmp}/tessarine-trace.XXXXXX")
cleanup() {
  stop_xvfb
  if [ $keep -eq 1 ]; then
    rm -rf "$work"/home.*
  else
    rm -rf "$work"
  fi
}
trap cleanup EXIT
trap 'exit 130' HUP INT PIPE TERM
start_xvfb

# The events of one strace log as "kind key ms" lines: "mark NAME ms" for the
# landmarks, "open PATH ms" for the first opening of each file, socket or program
# (failed lookups left out; the exec of the program itself too), the scratch
# HOME written as ~.
events() {
  awk -v map="$2" '
    function mark(what) {
      if (!(what in marked)) { marked[what] = 1; printf "mark %s %.1f\n", what, t }
    }
    NR == 1 { t0 = $2 }
    { t = ($2 - t0) * 1000 }
    /plugins\/platforms"/ { mark("qt_plugins_looked_up") }
    /connect\(.*X11-unix/ { mark("x_server_connected") }
    /plugins\/platformthemes"/ { mark("platform_theme_looked_up") }
    /home\.[A-Za-z0-9]+\/\.config\// && !/fontconfig/ { mark("settings_read") }
    /plugins\/imageformats\// { mark("image_format_plugins") }
    /libQt6Multimedia|plugins\/multimedia\// { mark("multimedia_loaded") }
    /libQt6PrintSupport|plugins\/printsupport\// { mark("print_support_loaded") }
    /connect\(.*(pulse|pipewire)/ { mark("sound_server_connected") }
    /connect\(.*cups/ { mark("print_server_connected") }
    /\/etc\/fonts\/fonts\.conf"/ { mark("font_configuration_read") }
    /\.(ttf|otf|ttc|pfb|pcf|pcf\.gz)"/ { mark("first_font_file") }
    / = -1 E[A-Z]+ / { next }
    NR > 1 && /execve\(|openat\(|connect\(/ {
      if (!match($0, /"[^"]*"/)) next
      path = substr($0, RSTART + 1, RLENGTH - 2)
      sub(/^.*\/home\.[A-Za-z0-9]+/, "~", path)
      kind = /execve\(/ ? "exec:" : /connect\(/ ? "connect:" : ""
      if (/\.so[.0-9]*"/) shared++
      key = kind path
      if (!(key in opened)) { opened[key] = 1; printf "open %s %.1f\n", key, t }
    }
    END {
      printf "mark shared_objects_opened %d\n", shared
      if (map != "") printf "mark window_mapped %.1f\n", (map - t0) * 1000
    }' "$1"
}

echo "Tracing $name and the empty Qt window, $runs runs each, on display $display..."
: > "$work/events"
run=0
while [ $run -le "$runs" ]; do
  for who in empty_qt "$name"; do
    if [ "$who" = empty_qt ]; then path=$empty_qt_window; else path=$program; fi
    log=$work/strace.$who.$run
    line=$(run_clean "$probe" --settle 300 -- strace --seccomp-bpf -f -ttt \
             -e trace=execve,openat,connect -o "$log" "$path" 2>> "$work/programs.log")
    map=$(echo "$line" | sed -n 's/.*map_unix=\([0-9.]*\).*/\1/p')
    if [ -z "$map" ]; then
      echo "$who: run $run failed: ${line:-no output}" >&2
      continue
    fi
    # Run 0 warms the caches and is not counted.
    [ $run -eq 0 ] || events "$log" "$map" | sed "s/^/$who $run /" >> "$work/events"
  done
  run=$((run + 1))
done

awk -v name="$name" -v runs="$runs" '
  function median(list,    n, v, i, j, x) {
    n = split(list, v, " ")
    for (i = 2; i <= n; i++) { x = v[i]; for (j = i - 1; j >= 1 && v[j] > x; j--) v[j + 1] = v[j]; v[j + 1] = x }
    return n % 2 ? v[(n + 1) / 2] : (v[n / 2] + v[n / 2 + 1]) / 2
  }
  function cell(who, key) {
    if (!((who, key) in values)) return "-"
    return sprintf("%.1f%s", median(values[who, key]), count[who, key] < runs ? " (" count[who, key] "/" runs ")" : "")
  }
  {
    who = $1; kind = $3; key = $4; ms = $5
    values[who, kind SUBSEP key] = values[who, kind SUBSEP key] " " ms
    count[who, kind SUBSEP key]++
    if (kind == "mark" && !(key in mark_seen)) { mark_seen[key] = 1; marks[++nmarks] = key }
    if (kind == "open") opened[who, key] = 1
    if (kind == "open" && who == name && !(key in own_seen)) { own_seen[key] = 1; own[++nown] = key }
  }
  END {
    printf "\nLandmarks, ms after exec (median of %d runs under strace)\n", runs
    printf "%-28s %14s %14s\n", "", "empty_qt", name
    # The landmarks in the order the program reached them, the count of shared
    # objects first.
    for (i = 1; i <= nmarks; i++) {
      k = marks[i]
      if (k == "shared_objects_opened") order[k] = -1
      else if ((name, "mark" SUBSEP k) in values) order[k] = median(values[name, "mark" SUBSEP k])
      else order[k] = median(values["empty_qt", "mark" SUBSEP k])
    }
    for (i = 2; i <= nmarks; i++) {
      x = marks[i]
      for (j = i - 1; j >= 1 && order[marks[j]] > order[x]; j--) marks[j + 1] = marks[j]
      marks[j + 1] = x
    }
    for (i = 1; i <= nmarks; i++) {
      k = marks[i]
      printf "%-28s %14s %14s\n", k, cell("empty_qt", "mark" SUBSEP k), cell(name, "mark" SUBSEP k)
    }
    printf "\nOpened by %s and not by the empty Qt window (first opening, median ms after exec)\n", name
    n = 0
    for (i = 1; i <= nown; i++) {
      if (("empty_qt", own[i]) in opened) continue
      line[++n] = sprintf("%10.1f  %s%s", median(values[name, "open" SUBSEP own[i]]), own[i],
                          count[name, "open" SUBSEP own[i]] < runs ? "  (" count[name, "open" SUBSEP own[i]] "/" runs " runs)" : "")
    }
    for (i = 2; i <= n; i++) { x = line[i]; for (j = i - 1; j >= 1 && line[j] + 0 > x + 0; j--) line[j + 1] = line[j]; line[j + 1] = x }
    for (i = 1; i <= n; i++) print line[i]
    if (n == 0) print "  (nothing)"
  }' "$work/events"
if [ $keep -eq 1 ]; then
  echo
  echo "strace logs kept in $work"
fi
