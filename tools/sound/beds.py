"""beds.py -- continuous layers that run through a whole loop: drones, air and slow envelopes.

Owns: signals that are periodic over the loop by construction. Every frequency is nudged to a whole
number of cycles per loop and every slow modulation completes whole cycles, and noise is shaped in the
frequency domain over exactly the loop's length, so the last sample leads into the first as if the
sound had never stopped.
"""
import numpy as np

from dsp import SR, time_axis, filter_circular


def snap(freq, n):
    """The nearest frequency with a whole number of cycles in n samples (never zero)."""
    cycles = max(1, int(round(freq * n / SR)))
    return cycles * SR / n


def loop_envelope(points, n):
    """Piecewise-linear envelope over a loop through (seconds, level) points; wraps from the last
    point back to the first."""
    length = n / SR
    times = [p[0] for p in points]
    levels = [p[1] for p in points]
    times = [times[-1] - length] + times + [times[0] + length]
    levels = [levels[-1]] + levels + [levels[0]]
    return np.interp(time_axis(n), times, levels)


def lfo(n, cycles, phase=0.0):
    """A sine that completes `cycles` whole turns over the loop, from -1 to 1."""
    return np.sin(2 * np.pi * cycles * np.arange(n) / n + phase)


def reed_drone(freq, n, rng, cutoff=1200.0, beat_cycles=23, harmonics=24, tilt=1.1):
    """Harmonium-like drone: two slightly detuned reeds, returned as a stereo pair."""
    out = np.zeros((2, n))
    f_a = snap(freq, n)
    f_b = snap(freq + beat_cycles * SR / n, n)
    t_cycles = np.arange(n) / n
    for ch, f in enumerate((f_a, f_b)):
        cycles = round(f * n / SR)
        for k in range(1, harmonics + 1):
            if k * f > min(0.45 * SR, 6.0 * cutoff):
                break
            amp = 1.0 / (k ** tilt * np.sqrt(1.0 + (k * f / cutoff) ** 4))
            out[ch] += amp * np.sin(2 * np.pi * k * cycles * t_cycles + rng.uniform(0, 6.28))
    return out


def sine_drone(freq, n, phase=0.0):
    cycles = max(1, int(round(freq * n / SR)))
    return np.sin(2 * np.pi * cycles * np.arange(n) / n + phase)


def air(n, rng, response):
    """Stereo noise shaped by a magnitude response, periodic over the loop."""
    out = np.stack([rng.standard_normal(n), rng.standard_normal(n)])
    out = filter_circular(out, response)
    return out / (np.std(out) + 1e-12)
