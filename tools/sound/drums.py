"""drums.py -- the percussion: frame drum, darbuka, taiko-like drums, toms, claps, shaker, finger
cymbals, sub booms and noise risers.

Owns: one membrane model (modes at the ratios of a circular membrane, a pitch that falls as the skin
relaxes, a noise layer for the strike) and the kit built from it. A kit holds a few rendered variants of
each hit so that repeated strokes are not identical; a track picks one per stroke from its own seeded
generator.
"""
import numpy as np

from dsp import (samples, time_axis, exp_decay, filter_causal, filter_sweep, lowpass, highpass, bandpass)

MEMBRANE_RATIOS = [1.0, 1.594, 2.136, 2.296, 2.653, 2.918, 3.156]


def _phase(freq_curve):
    return 2.0 * np.pi * np.cumsum(freq_curve) / 44100.0


def membrane(f0, seconds, rng, t60, drop=0.15, drop_time=0.035, brightness=0.5,
             noise=0.3, noise_response=None, noise_t60=0.04):
    """A struck skin: modal partials with a falling pitch plus a filtered noise strike."""
    n = samples(seconds)
    t = time_axis(n)
    ph = _phase(f0 * (1.0 + drop * np.exp(-t / drop_time)))
    out = np.zeros(n)
    for i, ratio in enumerate(MEMBRANE_RATIOS):
        amp = brightness ** i
        out += amp * exp_decay(n, t60 / (1.0 + 0.6 * i)) * np.sin(ratio * ph)
    if noise > 0.0:
        hit = rng.standard_normal(n) * exp_decay(n, noise_t60)
        hit = filter_causal(hit, noise_response or lowpass(800.0, 2))[:n]
        out += noise * hit / (np.max(np.abs(hit)) + 1e-12)
    ramp = min(n, samples(0.0008))
    out[:ramp] *= np.linspace(0.0, 1.0, ramp)
    return out / (np.max(np.abs(out)) + 1e-12)


def _jingle(rng, n, level):
    """The snare-like buzz of the frame drum's rattling rim."""
    buzz = filter_causal(rng.standard_normal(n), bandpass(3800.0, 0.7))[:n] * exp_decay(n, 0.16)
    return level * buzz / (np.max(np.abs(buzz)) + 1e-12)


def frame_dum(rng):
    f0 = 70.0 * rng.uniform(0.98, 1.02)
    out = membrane(f0, 0.9, rng, t60=0.6, drop=0.2, brightness=0.45, noise=0.25,
                   noise_response=lowpass(450.0, 2), noise_t60=0.05)
    return out + _jingle(rng, len(out), 0.06)


def frame_tek(rng):
    f0 = 330.0 * rng.uniform(0.97, 1.03)
    out = membrane(f0, 0.35, rng, t60=0.1, drop=0.05, brightness=0.7, noise=0.7,
                   noise_response=highpass(1500.0, 2), noise_t60=0.02)
    return (out + _jingle(rng, len(out), 0.12)) * 0.7


def darbuka_dum(rng):
    f0 = 96.0 * rng.uniform(0.98, 1.02)
    return membrane(f0, 0.6, rng, t60=0.4, drop=0.12, brightness=0.5, noise=0.2,
                    noise_response=lowpass(600.0, 2), noise_t60=0.03)


def darbuka_tek(rng, accent=1.0):
    f0 = 610.0 * rng.uniform(0.97, 1.03)
    out = membrane(f0, 0.2, rng, t60=0.07, drop=0.03, brightness=0.75, noise=0.9,
                   noise_response=bandpass(3200.0, 0.9), noise_t60=0.008)
    return out * (0.75 + 0.25 * accent)


def darbuka_ka(rng):
    f0 = 540.0 * rng.uniform(0.97, 1.03)
    return membrane(f0, 0.18, rng, t60=0.05, drop=0.03, brightness=0.7, noise=0.8,
                    noise_response=bandpass(2600.0, 0.9), noise_t60=0.007) * 0.55


def taiko(rng):
    f0 = 50.0 * rng.uniform(0.98, 1.02)
    return membrane(f0, 1.6, rng, t60=1.1, drop=0.25, drop_time=0.05, brightness=0.5, noise=0.45,
                    noise_response=lowpass(900.0, 2), noise_t60=0.07)


def tom(f0, rng):
    return membrane(f0 * rng.uniform(0.98, 1.02), 0.8, rng, t60=0.45, drop=0.2, brightness=0.5,
                    noise=0.35, noise_response=bandpass(1200.0, 0.7), noise_t60=0.03)


def clap(rng):
    """Hands together: a few quick bursts, then a short tail."""
    n = samples(0.35)
    t = time_axis(n)
    src = rng.standard_normal(n)
    env = 0.7 * exp_decay(n, 0.14)
    for delay in (0.0, 0.009, 0.019):
        env = env + np.where(t >= delay, 10.0 ** (-3.0 * np.maximum(t - delay, 0.0) / 0.012), 0.0)
    out = filter_causal(src * env, bandpass(1300.0, 1.1))[:n]
    return out / (np.max(np.abs(out)) + 1e-12)


def shaker(rng):
    n = samples(0.14)
    t = time_axis(n)
    env = np.clip(t / 0.012, 0.0, 1.0) * 10.0 ** (-3.0 * np.maximum(t - 0.012, 0.0) / 0.07)
    out = filter_causal(rng.standard_normal(n) * env, highpass(5500.0, 2))[:n]
    return out / (np.max(np.abs(out)) + 1e-12)


def sagat(rng):
    """Finger cymbals: a few high inharmonic partials that ring."""
    n = samples(1.5)
    t = time_axis(n)
    out = np.zeros(n)
    base = 2310.0 * rng.uniform(0.99, 1.01)
    for ratio, amp, life in [(1.0, 1.0, 1.3), (1.54, 0.7, 1.0), (2.16, 0.5, 0.8), (2.87, 0.35, 0.6),
                             (3.57, 0.25, 0.45)]:
        out += amp * exp_decay(n, life) * np.sin(2 * np.pi * base * ratio * t)
    strike = filter_causal(rng.standard_normal(n) * exp_decay(n, 0.01), highpass(4000.0, 2))[:n]
    out += 0.5 * strike / (np.max(np.abs(strike)) + 1e-12)
    return out / (np.max(np.abs(out)) + 1e-12)


def boom(rng, f0=42.0, t60=1.8):
    """A deep, soft sub drum with no bright strike, for distant pulses."""
    out = membrane(f0, t60 * 1.1, rng, t60=t60, drop=0.3, drop_time=0.08, brightness=0.3, noise=0.2,
                   noise_response=lowpass(200.0, 2), noise_t60=0.12)
    return filter_causal(out, lowpass(400.0, 2))[:len(out)]


def riser(seconds, rng, low=250.0, high=6000.0):
    """Noise whose band sweeps upward while it grows louder."""
    n = samples(seconds)
    noise = rng.standard_normal(n)

    def gain_at(t, freqs):
        centre = low * (high / low) ** np.clip(t / seconds, 0.0, 1.0)
        return bandpass(centre, 2.5)(freqs)

    out = filter_sweep(noise, gain_at) * (time_axis(n) / seconds) ** 2
    return out / (np.max(np.abs(out)) + 1e-12)


def make_kit(rng, variants=4):
    """Rendered variants of every stroke, keyed by name."""
    kit = {
        "frame_dum": [frame_dum(rng) for _ in range(variants)],
        "frame_tek": [frame_tek(rng) for _ in range(variants)],
        "darbuka_dum": [darbuka_dum(rng) for _ in range(variants)],
        "darbuka_tek": [darbuka_tek(rng) for _ in range(variants)],
        "darbuka_ka": [darbuka_ka(rng) for _ in range(variants)],
        "taiko": [taiko(rng) for _ in range(variants)],
        "tom_high": [tom(170.0, rng) for _ in range(2)],
        "tom_mid": [tom(125.0, rng) for _ in range(2)],
        "tom_low": [tom(88.0, rng) for _ in range(2)],
        "clap": [clap(rng) for _ in range(variants)],
        "shaker": [shaker(rng) for _ in range(variants)],
        "sagat": [sagat(rng) for _ in range(2)],
    }
    return kit


def stroke(kit, name, rng):
    """One of the rendered variants of a stroke."""
    choices = kit[name]
    return choices[int(rng.integers(len(choices)))]
