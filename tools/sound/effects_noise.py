"""effects_noise.py -- the unvoiced effects: the gravity flip's pass-by, a stone wall landing, and the
crackle of a battery being picked up.

Owns their synthesis. Each returns a finite stereo sound that starts and ends in silence.
"""
import numpy as np

from dsp import (SR, samples, time_axis, envelope, exp_decay, filter_causal, filter_sweep, lowpass,
                 highpass, bandpass, pan, chain, peaking)
from drums import membrane
from mixdown import add_linear, room_impulse, reverb_linear
import voices


def _norm(x):
    return x / (np.max(np.abs(x)) + 1e-12)


def _fade_out(sig, seconds):
    m = samples(seconds)
    sig[..., -m:] *= np.linspace(1.0, 0.0, m) ** 2
    return sig


def gravity_whoosh(seed):
    """Something vast sweeping past: a swelling band of air that rises to the pass and falls away,
    a tone that drops as it goes by (Doppler), from left to right, with a low thump at the pass."""
    rng = np.random.default_rng(seed)
    length = 1.4
    passing = 0.55
    n = samples(length)
    t = time_axis(n)
    approach = np.tanh((t - passing) / 0.12)

    def band_at(when, freqs):
        centre = 1400.0 * 2.0 ** (1.3 * np.exp(-((when - passing) / 0.22) ** 2)) \
            * 2.0 ** (-0.8 * np.tanh((when - passing) / 0.25))
        return (bandpass(centre, 1.4)(freqs) + 0.25 * lowpass(500.0, 1)(freqs)) * lowpass(9000.0, 2)(freqs)

    wind = _norm(filter_sweep(rng.standard_normal(n), band_at, frame=1024))
    level = np.exp(-((t - passing) / 0.2) ** 2 * np.where(t < passing, 1.0, 0.45))
    tone_f = 620.0 * 2.0 ** (-0.6 * approach)
    phase = 2 * np.pi * np.cumsum(tone_f) / SR
    tone = (np.sin(phase) + 0.35 * np.sin(2 * phase) + 0.15 * np.sin(3.01 * phase)) \
        * (1.0 + 0.3 * np.sin(2 * np.pi * 23.0 * t))
    thump = membrane(55.0, length, rng, t60=0.5, drop=0.4, drop_time=0.06, brightness=0.3, noise=0.0)
    thump = np.roll(thump, samples(passing - 0.02))
    thump[:samples(passing - 0.02)] = 0.0
    mono_parts = [(0.8 * wind * level, 1.0), (0.22 * _norm(tone) * level, 0.9), (0.35 * thump, 0.2)]
    out = np.zeros((2, n))
    for part, spread in mono_parts:
        # Pan each sample along the path: left while approaching, right once past.
        left, right = pan(np.ones(n), spread * approach)
        out += np.stack([part * left, part * right])
    out[:, :samples(0.01)] *= np.linspace(0.0, 1.0, samples(0.01))
    room = reverb_linear(out, room_impulse(rng, t60=0.7, predelay=0.01), wet=0.15)[:, :n]
    return _fade_out(room, 0.25)


def _debris(rng, n, start, count):
    """Small stones skittering: short bright pings scattered after the impact, thinning out."""
    out = np.zeros((2, n))
    for i in range(count):
        when = start + rng.exponential(0.18)
        if when > n / SR - 0.15:
            continue
        f = rng.uniform(1800.0, 5200.0)
        m = samples(0.06)
        tt = time_axis(m)
        ping = np.sin(2 * np.pi * f * tt) * exp_decay(m, rng.uniform(0.015, 0.04))
        click = filter_causal(rng.standard_normal(m) * exp_decay(m, 0.004), highpass(2500.0, 2))[:m]
        grain = (0.5 * ping + _norm(click)) * rng.uniform(0.2, 1.0) * np.exp(-(when - start) * 2.5)
        add_linear(out, pan(grain, rng.uniform(-0.7, 0.7)), samples(when))
    return out


def rock_impact(seed):
    """A heavy stone block landing: a deep thud, the crunch of stone on stone, a rumble that rolls
    on under it, and grit settling."""
    rng = np.random.default_rng(seed)
    length = 2.2
    n = samples(length)
    t = time_axis(n)
    thud = membrane(46.0, length, rng, t60=0.7, drop=0.5, drop_time=0.03, brightness=0.35, noise=0.5,
                    noise_response=lowpass(300.0, 2), noise_t60=0.08)
    crunch_src = rng.standard_normal(n) * (exp_decay(n, 0.09) + 0.3 * exp_decay(n, 0.35))
    # Grainy crackle: the noise is gated by sparse random grains for a crumbling texture.
    grains = (rng.random(n) < 0.02).astype(float)
    grains = filter_causal(grains, lowpass(400.0, 1))[:n]
    crunch = filter_causal(crunch_src * (0.4 + 3.0 * _norm(grains)),
                           chain(bandpass(1100.0, 0.7), peaking(2600.0, 1.5, 4.0)))[:n]
    rumble_src = rng.standard_normal(n) * envelope([(0.0, 0.0), (0.03, 1.0), (0.4, 0.6), (length, 0.0)], n)
    rumble = filter_causal(rumble_src, lowpass(140.0, 3))[:n]
    rumble *= 1.0 + 0.4 * np.sin(2 * np.pi * 9.0 * t)
    # The crack of stone on stone carries the landing on a small speaker, which gives nothing of the
    # thud and the rumble: it stands level with the thud, and a knock in the low mids backs it.
    knock = membrane(210.0, length, rng, t60=0.12, drop=0.3, drop_time=0.02, brightness=0.8, noise=0.6,
                     noise_response=bandpass(900.0, 0.8), noise_t60=0.05)
    thud = filter_causal(thud, highpass(70.0, 2))[:n]
    mono = 0.3 * _norm(thud) + 1.0 * _norm(crunch) + 0.08 * _norm(rumble) + 0.7 * _norm(knock)
    out = pan(mono, 0.0) * np.sqrt(2.0)
    out += 0.18 * _debris(rng, n, 0.08, 28)
    out[:, :samples(0.0015)] *= np.linspace(0.0, 1.0, samples(0.0015))
    room = reverb_linear(out, room_impulse(rng, t60=1.4, predelay=0.02, brightness=3000.0), wet=0.25)[:, :n]
    return _fade_out(room, 0.4)


def _crackle(rng, n, rate_at):
    """Electric crackle: random sharp discharges, `rate_at(t)` per second."""
    t = time_axis(n)
    hits = rng.random(n) < rate_at(t) / SR
    impulses = hits * rng.uniform(0.2, 1.0, n) * np.sign(rng.standard_normal(n))
    snap = filter_causal(impulses, chain(highpass(1800.0, 2), peaking(4500.0, 1.0, 6.0)))[:n]
    fizz = filter_causal(rng.standard_normal(n), highpass(5000.0, 2))[:n] * 0.06
    return snap + fizz * (rate_at(t) / np.max(rate_at(t)))


def spark_pickup(seed):
    """Taking a battery: a crackling zap that charges up into a bright rising tone and a chime."""
    rng = np.random.default_rng(seed)
    length = 1.1
    n = samples(length)
    t = time_axis(n)
    crackle = _crackle(rng, n, lambda tt: 2500.0 * np.exp(-tt / 0.12) + 60.0 * (tt < 0.6))
    crackle *= envelope([(0.0, 0.0), (0.004, 1.0), (0.6, 0.3), (0.8, 0.0)], n)
    hum_phase = 2 * np.pi * np.cumsum(envelope([(0.0, 110.0), (0.3, 140.0)], n)) / SR
    hum = sum(np.sin(k * hum_phase) / k for k in range(1, 18)) * envelope(
        [(0.0, 0.0), (0.005, 1.0), (0.18, 0.4), (0.32, 0.0)], n)
    hum = filter_causal(hum, bandpass(900.0, 0.6))[:n]
    rise_f = envelope([(0.05, 420.0), (0.55, 1700.0)], n) * (1.0 + 0.015 * np.sin(2 * np.pi * 28.0 * t))
    rise_phase = 2 * np.pi * np.cumsum(rise_f) / SR
    rise = (np.sin(rise_phase) + 0.4 * np.sin(2 * rise_phase) + 0.2 * np.sin(3 * rise_phase)) \
        * envelope([(0.0, 0.0), (0.06, 0.0), (0.15, 0.6), (0.5, 1.0), (0.6, 0.5), (0.75, 0.0)], n)
    chime = np.zeros(n)
    ring = voices.bell(1760.0, 0.9, rng, strike=0.6, brightness=0.9)
    chime[samples(0.5):samples(0.5) + len(ring)] = ring[:n - samples(0.5)]
    left = 0.55 * _norm(crackle) + 0.3 * _norm(hum) + 0.3 * _norm(rise) + 0.35 * _norm(chime)
    right = 0.55 * _norm(np.roll(crackle, 37)) + 0.3 * _norm(hum) + 0.3 * _norm(rise) \
        + 0.35 * _norm(chime)
    out = np.stack([left, right])
    out[:, :samples(0.002)] *= np.linspace(0.0, 1.0, samples(0.002))
    room = reverb_linear(out, room_impulse(rng, t60=0.6, predelay=0.008), wet=0.15)[:, :n]
    return _fade_out(room, 0.2)
