#!/usr/bin/env python3
"""Writes the three sounds of the cluster window into data/: 16-bit mono WAV, 22.05 kHz.

    ringout.wav   a spot that a filter lets through: two short bells, rising
    ringin.wav    the site has sent an empty page: two bells, falling
    tada.wav      a load has failed: a broken chord that ends on its root
"""

import argparse
import math
import struct
import sys
import wave
from pathlib import Path

DATA = Path(__file__).resolve().parent.parent.parent / "data"
RATE = 22050
PEAK = 0.6

# Partials of a small bell against its note: frequency, loudness, and how fast it dies away.
PARTIALS = ((1.0, 1.0, 1.0), (2.0, 0.45, 1.6), (3.01, 0.2, 2.6), (4.1, 0.1, 4.0))

# Start in seconds, frequency in hertz, time in seconds after which a third is left.
SOUNDS = {
    "ringout.wav": (0.40, ((0.00, 1046.5, 0.09), (0.11, 1318.5, 0.11))),
    "ringin.wav": (0.60, ((0.00, 880.0, 0.14), (0.17, 659.3, 0.16))),
    "tada.wav": (0.95, ((0.00, 523.3, 0.16), (0.10, 415.3, 0.18), (0.20, 349.2, 0.28), (0.20, 174.6, 0.30))),
}


def bell(time, note, decay):
    if time < 0:
        return 0.0
    # Without a rise of a few milliseconds each note begins with a click.
    rise = min(1.0, time / 0.004)
    return rise * sum(
        loud * math.exp(-time * fade / decay) * math.sin(2 * math.pi * note * ratio * time)
        for ratio, loud, fade in PARTIALS
    )


def samples(length, notes):
    values = [
        sum(bell(n / RATE - start, note, decay) for start, note, decay in notes) for n in range(round(length * RATE))
    ]
    loudest = max(abs(value) for value in values)
    end = len(values)
    fade = round(0.03 * RATE)
    return [
        round(value / loudest * PEAK * 32767 * min(1.0, (end - 1 - n) / fade)) for n, value in enumerate(values)
    ]


def write(path, data):
    with wave.open(str(path), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(struct.pack(f"<{len(data)}h", *data))


def same(path, data):
    """Whether the file holds these samples; another machine's sine may round the last bit differently."""
    with wave.open(str(path), "rb") as file:
        form = (file.getnchannels(), file.getsampwidth(), file.getframerate(), file.getnframes())
        if form != (1, 2, RATE, len(data)):
            return False
        found = struct.unpack(f"<{len(data)}h", file.readframes(len(data)))
    return all(abs(one - other) <= 1 for one, other in zip(found, data))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--check", action="store_true", help="compare only, write nothing")
    check = parser.parse_args().check
    status = 0
    for name, (length, notes) in SOUNDS.items():
        data = samples(length, notes)
        if not check:
            write(DATA / name, data)
        elif not same(DATA / name, data):
            print(f"{name} differs from what is computed", file=sys.stderr)
            status = 1
    return status


if __name__ == "__main__":
    sys.exit(main())
