#!/usr/bin/env python3
"""A server that accepts connections and never answers.

    stalling_server.py HOST PORT STATE_FILE

Listens on HOST:PORT, accepts every connection, reads nothing, writes nothing and
keeps each one open until it is killed. STATE_FILE gets "listening 0" once it
listens, then "listening N" after the Nth connection: the benchmark reads the count
to show that the program under test did connect. Exits 1 when it cannot listen.
"""
import os
import socket
import sys


def write_state(path, accepted):
    # Written aside and renamed, so that a reader never sees half a line.
    with open(path + ".new", "w") as out:
        out.write(f"listening {accepted}\n")
    os.replace(path + ".new", path)


def main():
    if len(sys.argv) != 4:
        sys.exit("usage: stalling_server.py HOST PORT STATE_FILE")
    host, port, state = sys.argv[1], int(sys.argv[2]), sys.argv[3]
    listener = socket.socket(socket.AF_INET, socket.SOCK_STREAM)
    listener.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
    try:
        listener.bind((host, port))
        listener.listen(64)
    except OSError as error:
        sys.exit(f"stalling server: cannot listen on {host}:{port}: {error}")
    write_state(state, 0)
    held = []
    while True:
        connection, _ = listener.accept()
        held.append(connection)
        write_state(state, len(held))


if __name__ == "__main__":
    main()
