#!/usr/bin/env bash
# The maker's server on loopback, for a build from source and the tests:
#   serve.sh start STATE_DIR PORT PAGES_PROGRAM   pages from the bundled snapshot, nginx
#                                                 as the current user; prints the base
#                                                 address last; harmless when running
#   serve.sh stop STATE_DIR                       stops the nginx started there
set -eu
here=$(cd "$(dirname "$0")" && pwd)
command=$1
state=$(realpath -m "$2")
pid_file=$state/nginx.pid
nginx=$(command -v nginx || echo /usr/sbin/nginx)

running() { [ -s "$pid_file" ] && kill -0 "$(cat "$pid_file")" 2>/dev/null; }

case $command in
start)
  port=$3
  pages=$4
  if running; then
    echo "http://127.0.0.1:$(cat "$state/port")/"
    exit 0
  fi
  if [ ! -x "$nginx" ]; then
    echo "serve.sh: nginx is not installed (make deps installs it)" >&2
    exit 3
  fi
  mkdir -p "$state/www" "$state/logs" "$state/tmp"
  cp -r "$here/www/." "$state/www/"
  "$pages" --input "$here/data/eurofxref-daily-2024-06-28.xml" --output "$state/www" \
    --max-age-days 0 > /dev/null
  # Workers of a master started by root would otherwise run as nobody.
  user_line=
  [ "$(id -u)" = 0 ] && user_line="user root;"
  sed -e "s|@STATE@|$state|g" -e "s|@PORT@|$port|g" -e "s|@SERVER@|$here|g" \
    -e "s|@USER@|$user_line|" "$here/nginx/local.conf.in" > "$state/nginx.conf"
  if ! "$nginx" -p "$state" -e "$state/logs/error.log" -c "$state/nginx.conf" 2> "$state/logs/start.log"; then
    echo "serve.sh: nginx did not start on 127.0.0.1:$port:" >&2
    cat "$state/logs/start.log" >&2
    exit 3
  fi
  echo "$port" > "$state/port"
  for _ in $(seq 50); do
    (exec 3<> "/dev/tcp/127.0.0.1/$port") 2> /dev/null && break
    sleep 0.1
  done
  echo "http://127.0.0.1:$port/"
  ;;
stop)
  if running; then
    pid=$(cat "$pid_file")
    kill -QUIT "$pid"
    for _ in $(seq 50); do kill -0 "$pid" 2> /dev/null || break; sleep 0.1; done
  fi
  ;;
*)
  echo "usage: serve.sh start STATE_DIR PORT PAGES_PROGRAM | serve.sh stop STATE_DIR" >&2
  exit 2
  ;;
esac
