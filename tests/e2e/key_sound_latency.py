#!/usr/bin/env python3
"""Key-to-sound latency: presses a key on the X display through XTest and reads the
sound server's monitor of the sink as it comes, timestamping both on one clock.

  key_sound_latency.py --monitor SOURCE [--key 7 | --click X,Y] [--reset-key c]
                       [--count 20] [--quiet-ms 400]

--key presses a key of the keyboard; --click presses and releases the left mouse
button at a point of the screen (a key of the keypad drawn there), timed from the
press.

Before each press it types the reset key (one that must stay silent, so that the
digits do not run past the display's length) and lets 300 ms pass.

Before each press it listens for quiet-ms and keeps the loudest sample heard (the
"before" level). After the press, the first sample above the threshold is the
onset: its time is the arrival time of its chunk, the moment it is known that the
server has mixed it. (The chunk's samples do not stand for the time before their
arrival: the server mixes ahead of the sink's clock, by up to the sink's latency,
which a real sound card adds before the sample is heard.) Prints one line per
press and a summary line:
  latency_ms median=... min=... max=... heard=N/COUNT before_peak=...
"""
import argparse
import ctypes
import os
import select
import statistics
import subprocess
import sys
import time

RATE = 48000
THRESHOLD = 0.02  # of full scale; the sounds peak far above, silence is exactly 0


def open_x():
    x11 = ctypes.CDLL("libX11.so.6")
    xtst = ctypes.CDLL("libXtst.so.6")
    x11.XOpenDisplay.restype = ctypes.c_void_p
    x11.XOpenDisplay.argtypes = [ctypes.c_char_p]
    x11.XStringToKeysym.restype = ctypes.c_ulong
    x11.XKeysymToKeycode.argtypes = [ctypes.c_void_p, ctypes.c_ulong]
    x11.XFlush.argtypes = [ctypes.c_void_p]
    xtst.XTestFakeKeyEvent.argtypes = [ctypes.c_void_p, ctypes.c_uint, ctypes.c_int, ctypes.c_ulong]
    xtst.XTestFakeButtonEvent.argtypes = [ctypes.c_void_p, ctypes.c_uint, ctypes.c_int,
                                          ctypes.c_ulong]
    xtst.XTestFakeMotionEvent.argtypes = [ctypes.c_void_p, ctypes.c_int, ctypes.c_int, ctypes.c_int,
                                          ctypes.c_ulong]
    display = x11.XOpenDisplay(None)
    if not display:
        sys.exit("no X display")
    return x11, xtst, display


class Monitor:
    """The monitor source, read raw (mono, 16 bit) in small fragments."""

    def __init__(self, source):
        self.proc = subprocess.Popen(
            ["parec", "-d", source, "--rate", str(RATE), "--channels", "1", "--format",
             "s16le", "--raw", "--latency-msec", "2"], stdout=subprocess.PIPE)
        self.fd = self.proc.stdout.fileno()
        self.carry = b""

    def read(self, timeout):
        """One chunk of samples and its arrival time, or (None, now) on timeout."""
        ready, _, _ = select.select([self.fd], [], [], timeout)
        now = time.monotonic()
        if not ready:
            return None, now
        data = self.carry + os.read(self.fd, 65536)
        cut = len(data) - len(data) % 2
        self.carry = data[cut:]
        samples = memoryview(data[:cut]).cast("h")
        return samples, now

    def close(self):
        self.proc.terminate()
        self.proc.wait()


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--monitor", required=True)
    parser.add_argument("--key", default="7")
    parser.add_argument("--click", help="X,Y on the screen, instead of a key")
    parser.add_argument("--reset-key", default="c")
    parser.add_argument("--count", type=int, default=20)
    parser.add_argument("--quiet-ms", type=int, default=400)
    args = parser.parse_args()

    x11, xtst, display = open_x()
    keycode = x11.XKeysymToKeycode(display, x11.XStringToKeysym(args.key.encode()))
    reset = x11.XKeysymToKeycode(display, x11.XStringToKeysym(args.reset_key.encode()))
    limit = int(THRESHOLD * 32768)
    if args.click:
        x, y = (int(v) for v in args.click.split(","))
        xtst.XTestFakeMotionEvent(display, -1, x, y, 0)
        x11.XFlush(display)

    def strike():
        if args.click:
            xtst.XTestFakeButtonEvent(display, 1, 1, 0)
            xtst.XTestFakeButtonEvent(display, 1, 0, 0)
        else:
            xtst.XTestFakeKeyEvent(display, keycode, 1, 0)
            xtst.XTestFakeKeyEvent(display, keycode, 0, 0)
        x11.XFlush(display)

    monitor = Monitor(args.monitor)
    latencies, before_peak = [], 0
    try:
        for press in range(args.count):
            xtst.XTestFakeKeyEvent(display, reset, 1, 0)
            xtst.XTestFakeKeyEvent(display, reset, 0, 0)
            x11.XFlush(display)
            end = time.monotonic() + 0.3
            while (left := end - time.monotonic()) > 0:
                monitor.read(left)  # the click before fades
            end = time.monotonic() + args.quiet_ms / 1000
            while (left := end - time.monotonic()) > 0:
                samples, _ = monitor.read(left)
                if samples is not None and len(samples):
                    before_peak = max(before_peak, max(abs(s) for s in samples))
            pressed = time.monotonic()
            strike()
            onset = None
            while onset is None and time.monotonic() - pressed < 1.0:
                samples, arrived = monitor.read(0.05)
                if samples is None:
                    continue
                if any(abs(s) > limit for s in samples):
                    onset = arrived
            if onset is None:
                print(f"press {press + 1}: nothing heard within 1 s")
            else:
                latencies.append((onset - pressed) * 1000)
                print(f"press {press + 1}: {latencies[-1]:.1f} ms")
    finally:
        monitor.close()
    summary = "median=%.1f min=%.1f max=%.1f" % (
        statistics.median(latencies), min(latencies), max(latencies)) if latencies else "none"
    print(f"latency_ms {summary} heard={len(latencies)}/{args.count} "
          f"before_peak={before_peak / 32768:.4f}")


if __name__ == "__main__":
    main()
