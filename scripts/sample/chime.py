"""The sound of the way to the procedures: a soft two-tone cabin chime, computed, not recorded."""

import math
import struct
import wave

RATE = 44100  # samples a second
SECONDS = 1.2
PEAK = 0.6  # of full scale, so that nothing clips
TONES = ((0.0, 698.46), (0.34, 523.25))  # start in seconds, pitch in hertz: F5 falling to C5
PARTIALS = ((1.0, 1.0, 4.2), (2.0, 0.28, 6.5), (3.01, 0.12, 9.0), (5.4, 0.04, 16.0))  # ratio, strength, decay


def tone(age, pitch):
    """A struck bar, `age` seconds after the stroke."""
    attack = min(1.0, age / 0.006)
    return attack * sum(strength * math.exp(-decay * age) * math.sin(2 * math.pi * pitch * ratio * age)
                        for ratio, strength, decay in PARTIALS)


def samples():
    count = round(RATE * SECONDS)
    sound = []
    for i in range(count):
        now = i / RATE
        value = sum(tone(now - start, pitch) for start, pitch in TONES if now >= start)
        sound.append(value * min(1.0, (count - 1 - i) / (0.12 * RATE)))  # the last 0.12 s fade to silence
    loudest = max(abs(value) for value in sound)
    return [round(32767 * PEAK * value / loudest) for value in sound]


def write(path):
    """Writes the chime as PCM, 16 bits, one channel."""
    sound = samples()
    with wave.open(str(path), "wb") as out:
        out.setnchannels(1)
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(struct.pack(f"<{len(sound)}h", *sound))
