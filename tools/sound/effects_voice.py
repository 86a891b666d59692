"""effects_voice.py -- the two voiced effects: the jump's 'hup' and the cry when a hazard hits.

Owns a small formant voice: a glottal source written as harmonics of a moving pitch, each harmonic
weighted by a cascade of vowel resonances evaluated at its own frequency (so the vowel follows the
formant tracks sample by sample), plus aspiration noise shaped by the same resonances frame by frame.
"""
import numpy as np

from dsp import (SR, samples, time_axis, envelope, filter_causal, filter_sweep, lowpass, highpass,
                 bandpass, chain, peaking)
from mixdown import room_impulse, reverb_linear

# Vowel formants (Hz) and bandwidths, adult voice.
VOWEL_A = [(800.0, 80.0), (1250.0, 90.0), (2650.0, 120.0), (3500.0, 200.0)]
VOWEL_UH = [(640.0, 80.0), (1190.0, 90.0), (2390.0, 120.0), (3400.0, 200.0)]


def _resonance_gain(freqs, formants):
    """Cascade of second-order resonators, unity at 0 Hz."""
    gain = np.ones_like(freqs)
    for centre, width in formants:
        gain = gain * centre ** 2 / np.sqrt((centre ** 2 - freqs ** 2) ** 2 + (width * freqs) ** 2)
    return gain


def _blend(a, b, x):
    return [(fa + (fb - fa) * x, wa + (wb - wa) * x) for (fa, wa), (fb, wb) in zip(a, b)]


def voiced(f0, vowel_at, rng, tilt=1.0, jitter=0.0, roughness=0.0):
    """Harmonic voice. f0: pitch per sample; vowel_at(t array) -> list of (formant, width) arrays."""
    n = len(f0)
    t = time_axis(n)
    if jitter > 0.0:
        wobble = filter_causal(rng.standard_normal(n), lowpass(25.0, 2))[:n]
        f0 = f0 * (1.0 + jitter * wobble / (np.std(wobble) + 1e-12))
    phase = 2.0 * np.pi * np.cumsum(f0) / SR
    formants = vowel_at(t)
    out = np.zeros(n)
    for k in range(1, 80):
        fk = k * f0
        if np.min(fk) > 7000.0:
            break
        weight = _resonance_gain(fk, formants) / k ** tilt * (fk < 0.45 * SR)
        out += weight * np.sin(k * phase)
    if roughness > 0.0:
        # Irregular vocal-fold closure: a fast random flutter of the amplitude.
        flutter = filter_causal(rng.standard_normal(n), bandpass(60.0, 0.8))[:n]
        out *= 1.0 + roughness * flutter / (np.max(np.abs(flutter)) + 1e-12)
    return out


def aspiration(n, vowel_at, rng):
    """Breath noise through the vocal tract, following the same formant tracks."""
    noise = filter_causal(rng.standard_normal(n), highpass(400.0, 1))[:n]
    return filter_sweep(noise, lambda t, freqs: _resonance_gain(freqs, vowel_at(np.array([t])))
                        * 0.15, frame=1024)


def _fixed_vowel(formants):
    return lambda t: [(np.full_like(t, f), np.full_like(t, w)) for f, w in formants]


def jump_hup(seed):
    """A short effortful 'hup': breathy onset, a rising voiced vowel, the lips closing on a soft p."""
    rng = np.random.default_rng(seed)
    n = samples(0.3)
    t = time_axis(n)
    f0 = envelope([(0.0, 175.0), (0.05, 205.0), (0.13, 250.0), (0.2, 235.0)], n)
    vowel = _fixed_vowel(VOWEL_UH)
    voice = voiced(f0, vowel, rng, tilt=1.1, jitter=0.006)
    voice_env = envelope([(0.0, 0.0), (0.035, 0.0), (0.06, 1.0), (0.13, 0.9), (0.165, 0.0)], n)
    breath = aspiration(n, vowel, rng)
    breath /= np.max(np.abs(breath)) + 1e-12
    breath_env = envelope([(0.0, 0.0), (0.015, 0.5), (0.05, 0.35), (0.09, 0.05), (0.17, 0.0)], n)
    # The p: a closure, then a little burst of released air.
    burst = filter_causal(rng.standard_normal(n), bandpass(900.0, 0.8))[:n]
    burst = burst * np.where(t > 0.19, 10.0 ** (-3.0 * np.maximum(t - 0.19, 0.0) / 0.04), 0.0)
    burst /= np.max(np.abs(burst)) + 1e-12
    out = voice / (np.max(np.abs(voice)) + 1e-12) * voice_env + 0.35 * breath * breath_env + 0.12 * burst
    # A faint pitched pop under the vowel gives it a playful bounce.
    pop_f = envelope([(0.03, 300.0), (0.09, 700.0)], n)
    pop = np.sin(2 * np.pi * np.cumsum(pop_f) / SR) * envelope([(0.03, 0.0), (0.04, 1.0), (0.1, 0.0)], n)
    out = out + 0.12 * pop
    out = filter_causal(out, highpass(90.0, 2))[:n]
    room = reverb_linear(np.stack([out, out]), room_impulse(rng, t60=0.35, predelay=0.005), wet=0.12)
    return room[:, :samples(0.42)] * _tail_fade(samples(0.42), 0.06)


def pained_cry(seed):
    """A short cry of pain: a sharp rise into a strained, rough 'aah' that sags and breaks off."""
    rng = np.random.default_rng(seed)
    n = samples(0.95)
    t = time_axis(n)
    # A scream sits high and strained: a pitch near 600 Hz, a bright spectrum with the edge of a
    # forced voice about 3 kHz, and hoarse noise in it, so it never reads as a hum.
    f0 = envelope([(0.0, 380.0), (0.05, 620.0), (0.12, 680.0), (0.4, 620.0), (0.7, 480.0),
                   (0.9, 400.0)], n)
    f0 *= 1.0 + 0.02 * np.sin(2 * np.pi * 7.0 * t) * np.clip((t - 0.15) / 0.2, 0.0, 1.0)

    def vowel(times):
        # From an open 'aah' toward a duller 'uh' as the breath runs out.
        return _blend(VOWEL_A, VOWEL_UH, np.clip((times - 0.35) / 0.5, 0.0, 1.0))

    voice = voiced(f0, vowel, rng, tilt=0.45, jitter=0.02, roughness=0.6)
    voice /= np.max(np.abs(voice)) + 1e-12
    env = envelope([(0.0, 0.0), (0.02, 0.8), (0.08, 1.0), (0.45, 0.85), (0.75, 0.45), (0.9, 0.0)], n)
    breath = aspiration(n, vowel, rng)
    breath /= np.max(np.abs(breath)) + 1e-12
    out = voice * env + 0.4 * breath * envelope([(0.0, 0.0), (0.01, 1.0), (0.1, 0.4), (0.9, 0.2),
                                                 (0.94, 0.0)], n)
    out = filter_causal(out, chain(highpass(250.0, 2), peaking(3000.0, 1.0, 8.0)))[:n]
    room = reverb_linear(np.stack([out, out]), room_impulse(rng, t60=0.8, predelay=0.01), wet=0.2)
    length = samples(1.3)
    return room[:, :length] * _tail_fade(length, 0.15)


def _tail_fade(n, seconds):
    fade = np.ones(n)
    m = samples(seconds)
    fade[-m:] = np.linspace(1.0, 0.0, m) ** 2
    return fade
