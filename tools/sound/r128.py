"""r128.py -- the broadcast loudness meter: integrated loudness (LUFS), true peak (dBTP) and loudness
through a laptop speaker, measured the way EBU R128 asks.

Owns: the K-weighting pre-filter designed for the file's own sample rate (the standard's high shelf of
+4 dB above about 1.7 kHz and its high-pass at 38 Hz), the gated integration (400 ms blocks every 100 ms,
an absolute gate at -70 LUFS and a relative gate 10 LU under the mean of what passes it), the true peak
from four-times oversampling, and the same loudness after a 200 Hz high-pass: what a small speaker, which
gives nothing below that, still lets through.
Filters are applied in the frequency domain with each biquad's complex response; a sound is padded with
silence first, so nothing wraps round. Agrees with ffmpeg's ebur128 filter to about 0.1 LU.
Read by: build.py (mastering, the loudness report) and check.py (the targets).
"""
import functools

import numpy as np


def _shelf(fs):
    g, q, fc = 3.99984385397, 0.7071752369554193, 1681.9744509555319
    a = 10.0 ** (g / 40.0)
    w0 = 2.0 * np.pi * fc / fs
    alpha = np.sin(w0) / (2.0 * q)
    c = np.cos(w0)
    b = [a * ((a + 1) + (a - 1) * c + 2 * np.sqrt(a) * alpha), -2 * a * ((a - 1) + (a + 1) * c),
         a * ((a + 1) + (a - 1) * c - 2 * np.sqrt(a) * alpha)]
    den = [(a + 1) - (a - 1) * c + 2 * np.sqrt(a) * alpha, 2 * ((a - 1) - (a + 1) * c),
           (a + 1) - (a - 1) * c - 2 * np.sqrt(a) * alpha]
    return b, den


def _highpass(fs, fc, q):
    w0 = 2.0 * np.pi * fc / fs
    alpha = np.sin(w0) / (2.0 * q)
    c = np.cos(w0)
    return [(1 + c) / 2, -(1 + c), (1 + c) / 2], [1 + alpha, -2 * c, 1 - alpha]


def _response(coeffs, n, fs):
    b, a = coeffs
    z = np.exp(-1j * 2.0 * np.pi * np.fft.rfftfreq(n, 1.0 / fs) / fs)
    return (b[0] + b[1] * z + b[2] * z * z) / (a[0] + a[1] * z + a[2] * z * z)


@functools.lru_cache(maxsize=16)
def _weighting(m, fs, speaker):
    """The whole pre-filter's response on an m-point transform: the mastering measures many sounds of the same
    padded length, so each is worked out once."""
    h = _response(_shelf(fs), m, fs) * _response(_highpass(fs, 38.13547087613982, 0.5003270373253953), m, fs)
    if speaker:
        hp = _response(_highpass(fs, 200.0, 0.7071), m, fs)
        h = h * hp * hp
    h.setflags(write=False)
    return h


def _filtered(sig, fs, speaker):
    """K-weighted channels (and high-passed at 200 Hz, twice, when speaker is set), silence-padded."""
    sig = np.atleast_2d(np.asarray(sig, dtype=np.float64))
    n = sig.shape[1]
    pad = int(0.5 * fs)
    m = 1 << int(np.ceil(np.log2(n + pad)))
    h = _weighting(m, fs, speaker)
    out = np.empty((sig.shape[0], n))
    for i, ch in enumerate(sig):
        out[i] = np.fft.irfft(np.fft.rfft(ch, m) * h, m)[:n]
    return out


def integrated(sig, fs=44100, speaker=False):
    """Gated integrated loudness in LUFS of a (channels, n) or (n,) signal; -70 or lower means silence.
    A sound shorter than one 400 ms block is measured as one block of its own length."""
    y = _filtered(sig, fs, speaker) ** 2
    n = y.shape[1]
    block, step = int(0.4 * fs), int(0.1 * fs)
    if n <= block:
        powers = np.array([y.mean(axis=1).sum()])
    else:
        csum = np.concatenate([np.zeros((y.shape[0], 1)), np.cumsum(y, axis=1)], axis=1)
        starts = np.arange(0, n - block + 1, step)
        powers = ((csum[:, starts + block] - csum[:, starts]) / block).sum(axis=0)
    loud = -0.691 + 10.0 * np.log10(np.maximum(powers, 1e-20))
    kept = powers[loud > -70.0]
    if kept.size == 0:
        return -70.0
    relative = -0.691 + 10.0 * np.log10(kept.mean()) - 10.0
    kept = powers[loud > max(-70.0, relative)]
    return float(-0.691 + 10.0 * np.log10(kept.mean()))


def true_peak(sig, chunk=1 << 18):
    """The highest level between samples, in dBTP, from four-times oversampling (in overlapping chunks)."""
    sig = np.atleast_2d(np.asarray(sig, dtype=np.float64))
    top = 0.0
    edge = 256
    for ch in sig:
        n = len(ch)
        for s in range(0, n, chunk):
            lo, hi = max(0, s - edge), min(n, s + chunk + edge)
            part = ch[lo:hi]
            m = len(part)
            spectrum = np.fft.rfft(part)
            up = np.fft.irfft(spectrum, 4 * m) * 4.0
            keep = up[4 * (s - lo):4 * (min(n, s + chunk) - lo)]
            top = max(top, float(np.max(np.abs(keep))) if keep.size else 0.0)
    return 20.0 * np.log10(max(top, 1e-12))
