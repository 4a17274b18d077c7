#!/usr/bin/env bash
# Runs one driver script and compares what it prints with its golden file
# (name.drive -> name.out). Standard error and a non-zero exit status are part of
# the output, so scripts that must fail are tested the same way.
# A first line "# options: ..." passes options to the driver; @TMP@ in them stands
# for a fresh empty folder. The script runs from its own folder, so that it can
# name files beside it. UPDATE_GOLDEN=1 rewrites the golden file instead.
set -u
driver=$(realpath "$1")
script=$(realpath "$2")
golden=${script%.drive}.out

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
options=()
first=$(head -n 1 "$script")
if [[ $first == "# options: "* ]]; then
  read -r -a options <<< "${first#\# options: }"
  options=("${options[@]//@TMP@/$scratch/prefs}")
fi

actual=$scratch/actual
(cd "$(dirname "$script")" && timeout 60 "$driver" "${options[@]}" "$script") > "$actual" 2> "$actual.err"
status=$?
sed "s|$scratch|@TMP@|g; s/^/stderr: /" "$actual.err" >> "$actual"
[ "$status" -ne 0 ] && echo "exit: $status" >> "$actual"

if [ "${UPDATE_GOLDEN:-0}" = 1 ]; then cp "$actual" "$golden"; exit 0; fi
if ! diff -u --label expected "$golden" --label actual "$actual"; then
  echo "FAILED: $script" >&2
  exit 1
fi
