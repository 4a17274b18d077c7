#!/usr/bin/env python3
"""A server that accepts connections and never answers.

    stalling_server.py HOST STATE_FILE

Listens on a free port of HOST, accepts every connection, reads nothing, writes
nothing and keeps each one open until it is killed. STATE_FILE gets "PORT 0" once
it listens, then "PORT N" after the Nth connection: the benchmark reads the port to
point the program at, and the count to show that the program did connect. Exits 1
when it cannot listen.
"""
import os
import socket
import sys


def write_state(path, port, accepted):
    # Written aside and renamed, so that a reader never sees half a line.
    with open(path + ".new", "w") as out:
        out.write(f"{port} {accepted}\n")
    os.replace(path + ".new", path)


def main():
    if len(sys.argv) != 3:
        sys.exit("usage: stalling_server.py HOST STATE_FILE")
    host, state = sys.argv[1], sys.argv[2]
    listener = socket.socket(socket.AF_INET, socket.SOCK_STREAM)
    try:
        listener.bind((host, 0))
        listener.listen(64)
    except OSError as error:
        sys.exit(f"stalling server: cannot listen on {host}: {error}")
    port = listener.getsockname()[1]
    write_state(state, port, 0)
    held = []
    while True:
        connection, _ = listener.accept()
        held.append(connection)
        write_state(state, port, len(held))


if __name__ == "__main__":
    main()
