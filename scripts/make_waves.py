#!/usr/bin/env python3
"""Writes the wave files that the shipped configurations name: short 8-bit
mono clips at 8 kHz, synthesised here, so that the repository carries no
recorded sound. Run from the repository's top folder; the files go under
root/Sound/_CustomVesselsSounds/."""
import math
import random
import struct
from pathlib import Path

RATE = 8000
OUT = Path("root/Sound/_CustomVesselsSounds/Fleet/Korvan")


def tone(freq, seconds, decay=0.0, noise=0.0, wobble=0.0):
    rng = random.Random(freq * 1000 + seconds)
    samples = []
    for i in range(int(RATE * seconds)):
        t = i / RATE
        f = freq * (1.0 + wobble * math.sin(2 * math.pi * 6 * t))
        v = (1.0 - noise) * math.sin(2 * math.pi * f * t) + noise * rng.uniform(-1, 1)
        samples.append(v * math.exp(-decay * t))
    return samples


def write(name, samples):
    data = bytes(max(0, min(255, int(128 + 100 * s))) for s in samples)
    fmt = struct.pack("<HHIIHH", 1, 1, RATE, RATE, 1, 8)
    body = b"WAVE" + b"fmt " + struct.pack("<I", len(fmt)) + fmt + b"data" + struct.pack("<I", len(data)) + data
    if len(data) % 2:
        body += b"\0"
    OUT.mkdir(parents=True, exist_ok=True)
    (OUT / name).write_bytes(b"RIFF" + struct.pack("<I", len(body)) + body)


CLIPS = {
    "Thud.wav": tone(60, 0.4, decay=10, noise=0.5),
    "Engine.wav": tone(90, 1.0, noise=0.7),
    "Alarm.wav": tone(880, 0.6, wobble=0.2),
    "Gas.wav": tone(2000, 0.6, decay=3, noise=0.95),
    "Pyro.wav": tone(150, 0.3, decay=20, noise=0.9),
    "Motor.wav": tone(220, 0.6, wobble=0.05, noise=0.2),
    "Clang.wav": tone(1300, 0.4, decay=12, noise=0.1),
    "Radio.wav": tone(1000, 0.3, noise=0.3),
    "BlastLong.wav": tone(40, 1.0, decay=3, noise=0.8),
}

for name, clip in CLIPS.items():
    write(name, clip)
