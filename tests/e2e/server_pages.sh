#!/usr/bin/env bash
# End to end with the maker's server: the generator turns the bundled snapshot into
# pages (and refuses a stale or broken file without touching them), real nginx
# serves them on loopback, and the headless driver updates the rates and checks the
# version against it. Exit 77 (skipped) when nginx is missing or cannot start.
# Usage: server_pages.sh PAGES_PROGRAM DRIVER
set -u
pages=$(realpath "$1")
driver=$(realpath "$2")
here=$(cd "$(dirname "$0")" && pwd)
server=$here/../../server
snapshot=$server/data/eurofxref-daily-2024-06-28.xml
scratch=$(mktemp -d)
state=$scratch/serve
cleanup() { "$server/serve.sh" stop "$state"; rm -rf "$scratch"; }
trap cleanup EXIT
status=0
fail() { echo "FAILED: $*" >&2; status=1; }

# The generator: a fresh file within its age is taken; a stale or broken one is
# refused with a reason, and the pages already there stay as they were.
www=$scratch/www
"$pages" --input "$snapshot" --output "$www" --today 2024-07-01 > /dev/null ||
  fail "the snapshot was refused on 2024-07-01"
before=$(cat "$www/tessarine/exchange_rates.html" "$www/tessarine/tsrn_version.html" | md5sum)
printf '<Cube><Cube time=' > "$scratch/broken.xml"
for input in "stale:$snapshot" "broken:$scratch/broken.xml" "missing:$scratch/none.xml"; do
  if "$pages" --input "${input#*:}" --output "$www" --today 2024-07-30 --version 9.9.9 \
      2> "$scratch/err"; then
    fail "${input%%:*} input accepted"
  fi
  grep -q "the pages stay as they were" "$scratch/err" || fail "${input%%:*}: $(cat "$scratch/err")"
done
after=$(cat "$www/tessarine/exchange_rates.html" "$www/tessarine/tsrn_version.html" | md5sum)
[ "$before" = "$after" ] || fail "a refused input changed the pages"

if ! command -v nginx > /dev/null && [ ! -x /usr/sbin/nginx ]; then
  echo "SKIPPED: nginx is not installed (make deps installs it)"
  exit 77
fi
port=$(python3 -c 'import socket; s=socket.socket(); s.bind(("127.0.0.1", 0)); print(s.getsockname()[1])')
if ! base=$("$server/serve.sh" start "$state" "$port" "$pages" | tail -n 1); then
  echo "SKIPPED: nginx could not start on 127.0.0.1:$port"
  exit 77
fi
[ "$base" = "http://127.0.0.1:$port/" ] || fail "serve.sh printed $base"
again=$("$server/serve.sh" start "$state" "$port" "$pages" | tail -n 1)
[ "$again" = "$base" ] || fail "a second start printed $again"

actual=$scratch/actual
(cd "$scratch" && "$driver" --server "127.0.0.1:$port" "$here/server_rates.drive") > "$actual" 2>&1
if ! diff -u "$here/server_rates.out" "$actual"; then fail "server_rates.drive"; fi

# Another version served: the check by hand offers the download page.
"$pages" --input "$snapshot" --output "$state/www" --max-age-days 0 --version 4.6.0 > /dev/null
printf '%s\n' 'setpref boolean UpdateExchangeRates false' 'wait 100' 'menu CheckForUpdatesMenu' \
  'press VersionUpdateWindow.ButtonOK' 'net 5000' \
  'get VersionUpdateDownloadWindow.VersionMessage.Text' 'events none' \
  'press VersionUpdateDownloadWindow.ButtonDownload' 'events url' > "$scratch/newer.drive"
newer=$("$driver" --server "127.0.0.1:$port" "$scratch/newer.drive" 2>&1)
expected='VersionUpdateDownloadWindow.VersionMessage.Text = "A new version of Tessarine is now available!"
{"url":"http://127.0.0.1:'$port'/download"}'
[ "$newer" = "$expected" ] || fail "newer version: $newer"
exit $status
