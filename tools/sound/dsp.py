"""dsp.py -- the signal helpers every sound is built from.

Owns: the sample rate, time axes, envelopes, filters given by their magnitude response (applied either
circularly, which keeps a loop-length buffer periodic, or causally through a minimum-phase kernel so that
drum attacks do not ring before they start), a time-varying filter by short frames, and panning.
Signals are numpy float arrays: shape (n,) for mono, (2, n) for stereo.
"""
import collections
import functools

import numpy as np

SR = 44100
# Time axes and decays of note lengths are asked for again and again with the same arguments: up to this many
# samples they are kept, read-only, so the same array serves every note of that length.
_KEPT_LENGTH = 1 << 20


def samples(seconds):
    return int(round(seconds * SR))


def _kept(make):
    """Keeps what make returns for short lengths (see _KEPT_LENGTH), made read-only so no caller can change it."""
    kept = functools.lru_cache(maxsize=128)(lambda *args: _read_only(make(*args)))

    @functools.wraps(make)
    def wrapper(n, *args):
        return kept(n, *args) if n <= _KEPT_LENGTH else make(n, *args)
    return wrapper


def _read_only(array):
    array.setflags(write=False)
    return array


@_kept
def time_axis(n):
    return np.arange(n) / SR


@_kept
def exp_decay(n, t60):
    """Amplitude falling by 60 dB in t60 seconds."""
    return 10.0 ** (-3.0 * time_axis(n) / t60)


def envelope(points, n):
    """Piecewise-linear envelope through (seconds, level) points, holding the last level."""
    times, levels = zip(*points)
    return np.interp(time_axis(n), times, levels)


def ar_envelope(n, attack, hold, release, curve=2.0):
    """Rise over `attack` s, stay until `hold` s, fall over `release` s; smooth raised-power edges."""
    t = time_axis(n)
    rise = np.clip(t / max(attack, 1e-4), 0.0, 1.0)
    fall = np.clip(1.0 - (t - hold) / max(release, 1e-4), 0.0, 1.0)
    rise = 0.5 - 0.5 * np.cos(np.pi * rise)
    return (rise * fall ** curve)


# Magnitude responses: each returns a function of a frequency array (Hz) giving gains. Each carries a key, its
# kind and parameters, by which the causal filter keeps the kernels it has worked out.

def _keyed(response, *key):
    response.key = key
    return response


def lowpass(fc, order=2):
    return _keyed(lambda f: 1.0 / np.sqrt(1.0 + (f / fc) ** (2 * order)), "lowpass", fc, order)


def highpass(fc, order=2):
    return _keyed(lambda f: 1.0 / np.sqrt(1.0 + (fc / np.maximum(f, 1e-3)) ** (2 * order)), "highpass", fc, order)


def bandpass(fc, q):
    return _keyed(lambda f: 1.0 / np.sqrt(1.0 + (q * (f / fc - fc / np.maximum(f, 1e-3))) ** 2), "bandpass", fc, q)


def peaking(fc, q, gain_db):
    g = 10.0 ** (gain_db / 20.0) - 1.0
    bp = bandpass(fc, q)
    return _keyed(lambda f: 1.0 + g * bp(f) ** 2, "peaking", fc, q, gain_db)


def high_shelf(fc, gain_db):
    g = 10.0 ** (gain_db / 20.0) - 1.0
    return _keyed(lambda f: 1.0 + g * (f / fc) ** 2 / (1.0 + (f / fc) ** 2), "high_shelf", fc, gain_db)


def chain(*responses):
    def combined(f):
        out = np.ones_like(f)
        for r in responses:
            out = out * r(f)
        return out
    keys = [getattr(r, "key", None) for r in responses]
    return _keyed(combined, "chain", *keys) if None not in keys else combined


def filter_circular(x, response):
    """Zero-phase filtering over the whole buffer, wrapping at its ends (periodic in, periodic out)."""
    n = x.shape[-1]
    freqs = np.fft.rfftfreq(n, 1.0 / SR)
    return np.fft.irfft(np.fft.rfft(x, axis=-1) * response(freqs), n, axis=-1)


def _min_phase_spectrum(response, nfft):
    """Spectrum of the causal minimum-phase filter with the given magnitude (folded real cepstrum)."""
    freqs = np.fft.rfftfreq(nfft, 1.0 / SR)
    log_mag = np.log(np.maximum(response(freqs), 1e-7))
    cep = np.fft.irfft(log_mag, nfft)
    fold = np.zeros(nfft)
    fold[0] = 1.0
    fold[1:nfft // 2] = 2.0
    fold[nfft // 2] = 1.0
    return np.exp(np.fft.rfft(cep * fold))


# Kernels worked out, by response key and transform length, up to this many bytes in all (the oldest go first).
_KERNELS = collections.OrderedDict()
_KERNELS_LIMIT = 256 << 20
_KERNELS_KEPT = [0]


def _causal_spectrum(response, nfft):
    key = getattr(response, "key", None)
    if key is None:
        return _min_phase_spectrum(response, nfft)
    found = _KERNELS.get((key, nfft))
    if found is None:
        found = _read_only(_min_phase_spectrum(response, nfft))
        _KERNELS[(key, nfft)] = found
        _KERNELS_KEPT[0] += found.nbytes
        while _KERNELS_KEPT[0] > _KERNELS_LIMIT and len(_KERNELS) > 1:
            _KERNELS_KEPT[0] -= _KERNELS.popitem(last=False)[1].nbytes
    return found


def filter_causal(x, response, tail=0.0):
    """Causal filtering of a finite sound; `tail` seconds of ringing are kept after its end."""
    n = x.shape[-1] + samples(tail)
    nfft = 1 << int(np.ceil(np.log2(2 * n + 1024)))
    spectrum = _causal_spectrum(response, nfft)
    y = np.fft.irfft(np.fft.rfft(x, nfft, axis=-1) * spectrum, nfft, axis=-1)
    return y[..., :n]


def filter_sweep(x, gain_at, frame=2048, circular=False):
    """Time-varying filter: gain_at(t_seconds, freqs) gives each frame's magnitude response.

    Hann frames at a quarter-frame hop, overlap-added. With circular=True the buffer is treated as a
    loop and gain_at must be periodic over its length.
    """
    hop = frame // 4
    n = x.shape[-1]
    if circular:
        padded = np.concatenate([x[-frame:], x, x[:frame]])
    else:
        padded = np.concatenate([np.zeros(frame), x, np.zeros(frame)])
    count = (len(padded) - frame) // hop + 1
    window = 0.5 - 0.5 * np.cos(2 * np.pi * np.arange(frame) / frame)
    freqs = np.fft.rfftfreq(frame, 1.0 / SR)
    out = np.zeros(len(padded) + frame)
    for i in range(count):
        start = i * hop
        seg = padded[start:start + frame] * window
        centre = (start + frame / 2 - frame) / SR
        if circular:
            centre = centre % (n / SR)
        spectrum = np.fft.rfft(seg) * gain_at(centre, freqs)
        out[start:start + frame] += np.fft.irfft(spectrum, frame)
    # A periodic Hann window at a quarter hop sums to 2.
    return out[frame:frame + n] / 2.0


def pan(mono, position):
    """Constant-power pan: position -1 is hard left, +1 hard right."""
    angle = (np.clip(position, -1.0, 1.0) + 1.0) * np.pi / 4.0
    return np.stack([mono * np.cos(angle), mono * np.sin(angle)])


def db(gain):
    return 20.0 * np.log10(max(gain, 1e-12))


def undb(level_db):
    return 10.0 ** (level_db / 20.0)
