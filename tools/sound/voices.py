"""voices.py -- the pitched instruments of the soundtrack, each a function returning one mono note.

Owns: the oud-like plucked string (modal partials on a doubled course, high partials dying first, a
wooden body), the ney (a breathy end-blown reed flute with delayed vibrato and pitched breath noise),
the mizmar (a nasal double reed with formants), the warm ensemble pad, the bronze bell, the brass
section voice and the plucked synth bass. Every note starts from silence with a short ramp so that no
onset clicks, and its length is `hold` (the written note) plus its release.
"""
import numpy as np

from dsp import (SR, samples, time_axis, exp_decay, ar_envelope, envelope, filter_causal, chain,
                 lowpass, highpass, bandpass, peaking)

NYQUIST_GUARD = 0.45 * SR


def _phase(freq_curve):
    return 2.0 * np.pi * np.cumsum(freq_curve) / SR


def _onset_ramp(n, seconds=0.002):
    ramp = np.ones(n)
    m = min(n, samples(seconds))
    ramp[:m] = np.linspace(0.0, 1.0, m)
    return ramp


def _smooth_noise(rng, n, cutoff):
    noise = filter_causal(rng.standard_normal(n), lowpass(cutoff, 2))[:n]
    return noise / (np.std(noise) + 1e-12)


def pluck(f0, hold, rng, t60=1.8, bright=0.6, pos=0.13, release=0.12, course=1.0009, body=True):
    """Oud-like plucked note: a plectrum near the bridge, two strings of a course a hair apart.

    With course=1.0 and body=False the same model serves as a harp string."""
    n = samples(min(hold + release * 2.5, t60 * 1.2) + 0.02)
    t = time_axis(n)
    out = np.zeros(n)
    for k in range(1, 48):
        fk = k * f0 * np.sqrt(1.0 + 1.2e-4 * k * k)
        if fk > min(NYQUIST_GUARD, 9000.0):
            break
        amp = abs(np.sin(np.pi * k * pos)) / k ** (1.9 - bright)
        env = exp_decay(n, t60 / (1.0 + (k - 1) * 0.6 * (1.2 - bright)))
        p1, p2 = rng.uniform(0.0, 2.0 * np.pi, 2)
        out += amp * env * 0.5 * (np.sin(2 * np.pi * fk * t + p1) + np.sin(2 * np.pi * fk * course * t + p2))
    pick = rng.standard_normal(n) * exp_decay(n, 0.012)
    out += 0.15 * filter_causal(pick, highpass(1800.0, 2))[:n]
    damp = np.ones(n)
    after = t > hold
    damp[after] = 10.0 ** (-3.0 * (t[after] - hold) / release)
    out *= damp * _onset_ramp(n, 0.0015)
    if not body:
        return out * 0.6
    resonances = chain(peaking(115.0, 2.0, 6.0), peaking(290.0, 2.5, 4.0), peaking(2900.0, 1.2, -5.0))
    return filter_causal(out, resonances)[:n] * 0.6


def ney(f0, hold, rng, glide_from=None, vibrato=0.006, breath=0.35, attack=0.09, release=0.2):
    """End-blown reed flute: a soft, nearly pure tone wrapped in breath."""
    n = samples(hold + release * 2.0)
    t = time_axis(n)
    f = np.full(n, f0)
    if glide_from:
        g = min(n, samples(0.09))
        f[:g] = np.geomspace(glide_from, f0, g)
    vib_depth = vibrato * np.clip((t - 0.3) / 0.5, 0.0, 1.0)
    f = f * (1.0 + vib_depth * np.sin(2 * np.pi * 5.1 * t + rng.uniform(0, 6.28))
             + 0.0012 * _smooth_noise(rng, n, 3.0))
    ph = _phase(f)
    tone = np.zeros(n)
    for k, amp in enumerate([1.0, 0.2, 0.11, 0.05, 0.03, 0.018], start=1):
        if k * f0 < NYQUIST_GUARD:
            tone += amp * np.sin(k * ph)
    pitched = 0.3 * _smooth_noise(rng, n, 120.0) * np.sin(ph)
    air = filter_causal(rng.standard_normal(n), bandpass(2800.0, 0.7))[:n]
    air = air / (np.std(air) + 1e-12) * 0.05
    chiff = air * 3.0 * exp_decay(n, 0.15)
    env = ar_envelope(n, attack, hold, release, curve=1.5)
    return (tone + breath * (pitched + air + chiff)) * env * 0.55


def mizmar(f0, hold, rng, release=0.08, vibrato=0.007):
    """Nasal double reed: bright harmonics shaped by two formants, quick vibrato."""
    n = samples(hold + release * 2.0)
    t = time_axis(n)
    scoop = np.interp(t, [0.0, 0.05], [0.985, 1.0])
    vib = vibrato * np.clip((t - 0.15) / 0.3, 0.0, 1.0) * np.sin(2 * np.pi * 5.8 * t + rng.uniform(0, 6.28))
    f = f0 * scoop * (1.0 + vib)
    ph = _phase(f)
    formants = chain(peaking(1150.0, 1.6, 11.0), peaking(2700.0, 2.0, 6.0), lowpass(4200.0, 3))
    out = np.zeros(n)
    for k in range(1, 40):
        fk = k * f0
        if fk > 7000.0:
            break
        out += formants(np.array([fk]))[0] / k ** 0.9 * np.sin(k * ph + rng.uniform(0, 6.28))
    buzz = filter_causal(rng.standard_normal(n), bandpass(1500.0, 1.0))[:n] * 0.04
    env = ar_envelope(n, 0.025, hold, release, curve=1.2)
    return (out / 4.0 + buzz) * env


def pad(f0, hold, rng, cutoff=900.0, attack=1.0, release=1.5, voices=3, detune_cents=8.0, drift=0.0):
    """Warm ensemble: detuned saw-like voices, dark above `cutoff`, slow edges."""
    n = samples(hold + release)
    t = time_axis(n)
    out = np.zeros(n)
    lp = lowpass(cutoff, 2)
    for v in range(voices):
        spread = (v - (voices - 1) / 2.0) / max((voices - 1) / 2.0, 1.0)
        fv = f0 * 2.0 ** (detune_cents * spread / 1200.0)
        ph = _phase(fv * (1.0 + drift * np.sin(2 * np.pi * (0.05 + 0.03 * v) * t + rng.uniform(0, 6.28))))
        for k in range(1, 64):
            fk = k * fv
            if fk > min(6.0 * cutoff, NYQUIST_GUARD):
                break
            amp = lp(np.array([fk]))[0] / k
            out += amp * np.sin(k * ph + rng.uniform(0, 6.28))
    env = ar_envelope(n, attack, hold, release, curve=1.0)
    return out * env / voices


BELL_PARTIALS = [(0.5, 0.55, 1.0), (1.0, 1.0, 0.8), (1.183, 0.45, 0.55), (1.506, 0.4, 0.45),
                 (2.0, 0.32, 0.35), (2.514, 0.25, 0.25), (2.662, 0.22, 0.22), (3.011, 0.18, 0.18),
                 (4.166, 0.1, 0.1), (5.433, 0.06, 0.07)]


def bell(f0, t60, rng, strike=0.4, brightness=1.0):
    """Bronze bell or struck bowl: inharmonic partials, the hum note lasting longest."""
    n = samples(t60 * 1.05)
    t = time_axis(n)
    out = np.zeros(n)
    for ratio, amp, life in BELL_PARTIALS:
        fk = f0 * ratio
        if fk > NYQUIST_GUARD:
            continue
        amp = amp * brightness ** (ratio - 1.0) if ratio > 1.0 else amp
        beat = 1.0 + 0.002 * rng.uniform(-1, 1)
        out += amp * exp_decay(n, t60 * life) * 0.5 * (
            np.sin(2 * np.pi * fk * t + rng.uniform(0, 6.28)) +
            np.sin(2 * np.pi * fk * beat * t + rng.uniform(0, 6.28)))
    hit = filter_causal(rng.standard_normal(n) * exp_decay(n, 0.02), bandpass(f0 * 3.0, 0.8))[:n]
    out += strike * hit / (np.std(hit[:samples(0.02)]) + 1e-9) * 0.05
    return out * _onset_ramp(n, 0.003) * 0.5


def brass(f0, hold, rng, bright=1.0, voices=2):
    """Brass section: the tone opens up as the note speaks, with a small scoop into pitch."""
    release = 0.15
    n = samples(hold + release * 2.0)
    t = time_axis(n)
    cutoff = envelope([(0.0, 250.0), (0.035, 3200.0 * bright), (0.25, 1700.0 * bright),
                       (hold, 1400.0 * bright), (hold + release, 350.0)], n)
    out = np.zeros(n)
    for v in range(voices):
        cents = 5.0 * (v - (voices - 1) / 2.0)
        fv = f0 * 2.0 ** (cents / 1200.0) * np.interp(t, [0.0, 0.06], [0.97, 1.0])
        ph = _phase(fv)
        for k in range(1, 48):
            if k * f0 > 7500.0:
                break
            amp = 1.0 / (k * np.sqrt(1.0 + (k * f0 / cutoff) ** 4))
            out += amp * np.sin(k * ph + rng.uniform(0, 6.28))
    env = ar_envelope(n, 0.018, hold, release, curve=1.0)
    return out * env / voices * 0.7


def bass_pluck(f0, hold, rng, bright=1.0):
    """Synth bass for ostinati: a saw whose filter snaps shut, over a sine an octave below."""
    release = 0.04
    n = samples(hold + release * 2.0)
    t = time_axis(n)
    cutoff = 300.0 + 2000.0 * bright * exp_decay(n, 0.35)
    out = np.zeros(n)
    for k in range(1, 40):
        fk = k * f0
        if fk > 5000.0:
            break
        amp = 1.0 / (k * np.sqrt(1.0 + (fk / cutoff) ** 4))
        out += amp * np.sin(2 * np.pi * fk * t + rng.uniform(0, 0.3))
    out += 0.8 * np.sin(2 * np.pi * f0 * 0.5 * t)
    env = ar_envelope(n, 0.003, hold, release, curve=1.0)
    return out * env * 0.45
