#!/usr/bin/env bash
# Runs a validator (its command and arguments follow), skipped when it is missing.
command -v "$1" > /dev/null || { echo "$1 is not installed: skipped"; exit 77; }
exec "$@"
