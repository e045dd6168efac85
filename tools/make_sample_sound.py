#!/usr/bin/env python3
"""Makes the sample sound: seven bars of kick, hats, bass and bells, each in bands of its own.

usage: make_sample_sound.py [OUT.flac]     default: samples/groove.flac beside this folder

The same file comes out every time. Needs the ffmpeg command, for the packing.
"""

import array
import math
import pathlib
import random
import subprocess
import sys
import tempfile
import wave

RATE_HZ = 44100
BEAT_SECONDS = 0.5
BAR_SECONDS = 4 * BEAT_SECONDS
LENGTH_SECONDS = 15.75
FADE_SECONDS = 0.75
PEAK_DBFS = -3.0
KICK_SECONDS = 0.32
LAST_HIT_SECONDS = 7 * BAR_SECONDS

# Equal temperament, in Hz.
A2, C3, E3, G3 = 110.00, 130.81, 164.81, 196.00
A5, B5, C6, D6, E6, G6, A6 = 880.00, 987.77, 1046.50, 1174.66, 1318.51, 1567.98, 1760.00

# One bass note a bar, played behind every beat; bar 0 has none, and bar 6 closes on the first.
BASS_OF_BAR = {1: A2, 2: A2, 3: C3, 4: E3, 5: G3, 6: A2}
# The kick rests for bar 4, and comes back with the bass still going.
KICK_BARS = (0, 1, 2, 3, 5, 6)
# (bar, beat, pitch); the bells rest for bar 1 and for the halves of bars that answer them.
BELLS = (
    (2, 0.0, A5), (2, 0.5, C6), (2, 1.0, E6), (2, 2.5, D6),
    (3, 0.0, G6), (3, 0.75, E6), (3, 1.5, C6),
    (4, 0.0, B5), (4, 0.5, E6), (4, 1.0, G6), (4, 2.0, A6), (4, 3.0, G6),
    (5, 0.0, D6), (5, 0.75, B5), (5, 1.5, G6),
    (6, 2.0, E6), (6, 2.5, D6), (6, 3.0, C6), (6, 3.5, B5),
    (7, 0.0, A5),
)  # fmt: skip


class Track:
    """A mono voice over the whole length; samples are floats, full scale is 1."""

    def __init__(self):
        self.samples = array.array("d", bytes(8 * round(LENGTH_SECONDS * RATE_HZ)))

    def add(self, start_seconds, length_seconds, voice):
        """Adds voice(t), t in seconds from its start, and cuts what lies behind the end."""
        first = round(start_seconds * RATE_HZ)
        count = min(round(length_seconds * RATE_HZ), len(self.samples) - first)
        for i in range(count):
            self.samples[first + i] += voice(i / RATE_HZ)


def kick():
    """A sine that falls from 110 Hz to 48 Hz within a tenth of a second."""

    def voice(t):
        phase = 2 * math.pi * (48 * t + 62 / 30 * (1 - math.exp(-30 * t)))
        release = min(1, (KICK_SECONDS - t) / 0.05)
        return math.sin(phase) * math.exp(-5 * t) * (1 - math.exp(-900 * t)) * release

    return voice


def bass(pitch, length_seconds, decay):
    """A soft note with weak overtones, so that it stays clear of the bells."""

    def voice(t):
        turn = 2 * math.pi * pitch * t
        body = math.sin(turn) + 0.15 * math.sin(2 * turn) + 0.03 * math.sin(3 * turn)
        release = min(1, (length_seconds - t) / 0.04)
        return body * math.exp(-decay * t) * (1 - math.exp(-150 * t)) * release

    return voice


def bell(pitch, decay):
    """A struck sine; the overtone dies first."""

    def voice(t):
        turn = 2 * math.pi * pitch * t
        overtone = 0.15 * math.sin(2 * turn) * math.exp(-14 * t)
        return (math.sin(turn) * math.exp(-decay * t) + overtone) * (1 - math.exp(-400 * t))

    return voice


def hat(noise, decay):
    """Noise without its low end: each sample less its two neighbours."""
    last = [0.0, 0.0]

    def voice(t):
        value = noise.uniform(-1, 1)
        top = value - 2 * last[0] + last[1]
        last[1], last[0] = last[0], value
        return top / 4 * math.exp(-decay * t)

    return voice


def play_drums(kicks, hats):
    noise = random.Random(1)
    for bar in range(7):
        for beat in range(4):
            start = bar * BAR_SECONDS + beat * BEAT_SECONDS
            if bar in KICK_BARS:
                kicks.add(start, KICK_SECONDS, kick())
            # From bar 3 on the hat behind the beat rings.
            hats.add(start, 0.1, hat(noise, 40))
            hats.add(start + BEAT_SECONDS / 2, 0.24, hat(noise, 40 if bar < 3 else 14))
    kicks.add(LAST_HIT_SECONDS, KICK_SECONDS, kick())


def play_tones(basses, bells):
    for bar, pitch in BASS_OF_BAR.items():
        for beat in range(4):
            start = bar * BAR_SECONDS + (beat + 0.5) * BEAT_SECONDS
            basses.add(start, 0.24, bass(pitch, 0.24, 1.5))
    basses.add(LAST_HIT_SECONDS, 1.75, bass(A2, 1.75, 2.5))
    for bar, beat, pitch in BELLS:
        bells.add(bar * BAR_SECONDS + beat * BEAT_SECONDS, 1.5, bell(pitch, 5 if bar < 7 else 3))


def echo(samples, delay_seconds, level):
    """The samples later and softer: one reflection."""
    delay = round(delay_seconds * RATE_HZ)
    return [0.0] * delay + [level * sample for sample in samples[:-delay]]


def mix():
    """Left and right as lists of floats, faded out at the end, at PEAK_DBFS."""
    kicks, hats, basses, bells = Track(), Track(), Track(), Track()
    play_drums(kicks, hats)
    play_tones(basses, bells)
    left_echo = echo(bells.samples, 0.75 * BEAT_SECONDS, 0.3)
    right_echo = echo(bells.samples, 1.5 * BEAT_SECONDS, 0.2)
    sides = ([], [])
    for i in range(len(kicks.samples)):
        fade = min(1.0, (len(kicks.samples) - 1 - i) / (FADE_SECONDS * RATE_HZ))
        middle = 1.3 * kicks.samples[i] + 0.6 * basses.samples[i] + 0.4 * bells.samples[i]
        left = middle + 0.4 * left_echo[i] + 0.45 * hats.samples[i]
        right = middle + 0.4 * right_echo[i] + 0.6 * hats.samples[i]
        # The curve holds the few peaks down where voices meet, so that all of it can be louder.
        sides[0].append(fade * math.tanh(left))
        sides[1].append(fade * math.tanh(right))
    peak = max(abs(sample) for side in sides for sample in side)
    gain = 10 ** (PEAK_DBFS / 20) / peak
    return [[gain * sample for sample in side] for side in sides]


def write_wav(path, left, right):
    samples = array.array("h")
    for pair in zip(left, right):
        samples.extend(round(32767 * sample) for sample in pair)
    if sys.byteorder == "big":
        samples.byteswap()
    with wave.open(str(path), "wb") as out:
        out.setnchannels(2)
        out.setsampwidth(2)
        out.setframerate(RATE_HZ)
        out.writeframes(samples.tobytes())


def pack(wav, flac):
    """Without the encoder's name and version, which would differ from machine to machine."""
    command = ["ffmpeg", "-loglevel", "error", "-y", "-i", wav]
    command += ["-bitexact", "-compression_level", "12", flac]
    subprocess.run(command, check=True)


def main():
    default = pathlib.Path(__file__).resolve().parent.parent / "samples" / "groove.flac"
    target = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else default
    with tempfile.TemporaryDirectory() as folder:
        wav = pathlib.Path(folder) / "groove.wav"
        write_wav(wav, *mix())
        pack(wav, target)


if __name__ == "__main__":
    main()
