"""loudness.py -- how loud a sound is, and bringing it to a target loudness under a peak ceiling.

Owns: the K-weighted loudness measure (the broadcast weighting: a high shelf and a low cut, then the
mean square of both channels), the look-ahead limiter (block-rate gain with instant attack ahead of each
peak and a smooth release) and the normalising loop that alternates gain and limiting until both hold.
The limiter can treat its input as a loop, so it keeps a looping track periodic.
"""
import numpy as np

from dsp import SR, undb

# K-weighting biquads (defined at 48 kHz; the response is evaluated, not run, so the rate only sets
# where the frequencies fall, which is close enough for comparing our own tracks).
_SHELF = ([1.53512485958697, -2.69169618940638, 1.19839281085285], [1.0, -1.69065929318241, 0.73248077421585])
_LOWCUT = ([1.0, -2.0, 1.0], [1.0, -1.99004745483398, 0.99007225036621])


def _biquad_gain(coeffs, freqs):
    b, a = coeffs
    z = np.exp(-1j * 2.0 * np.pi * freqs / 48000.0)
    num = b[0] + b[1] * z + b[2] * z * z
    den = a[0] + a[1] * z + a[2] * z * z
    return np.abs(num / den)


def loudness(sig):
    """K-weighted loudness of a stereo (2, n) or mono (n,) signal, in dB (LUFS-like, ungated)."""
    sig = np.atleast_2d(sig)
    n = sig.shape[1]
    freqs = np.fft.rfftfreq(n, 1.0 / SR)
    weight = _biquad_gain(_SHELF, freqs) * _biquad_gain(_LOWCUT, freqs)
    total = 0.0
    for ch in sig:
        spectrum = np.fft.rfft(ch) * weight
        # Parseval on the one-sided spectrum: mean square of the weighted signal.
        power = (np.abs(spectrum[0]) ** 2 + 2.0 * np.sum(np.abs(spectrum[1:]) ** 2)) / (n * n)
        total += power
    return -0.691 + 10.0 * np.log10(max(total, 1e-20))


def peak_db(sig):
    return 20.0 * np.log10(max(np.max(np.abs(sig)), 1e-12))


def _block_min_ahead(values, reach, circular):
    """Minimum over each block and `reach` blocks either side."""
    if circular:
        padded = np.concatenate([values[-reach:], values, values[:reach]])
    else:
        padded = np.concatenate([np.ones(reach), values, np.ones(reach)])
    out = padded[0:len(values)].copy()
    for shift in range(1, 2 * reach + 1):
        out = np.minimum(out, padded[shift:shift + len(values)])
    return out


def limit(sig, ceiling_db, circular, release=0.12, block=32, reach=4):
    """Hold every sample of a stereo signal under the ceiling with a smooth gain."""
    ceiling = undb(ceiling_db)
    n = sig.shape[1]
    level = np.max(np.abs(sig), axis=0)
    needed = np.minimum(1.0, ceiling / np.maximum(level, 1e-12))
    nb = (n + block - 1) // block
    padded = np.concatenate([needed, np.ones(nb * block - n)])
    block_need = _block_min_ahead(padded.reshape(nb, block).min(axis=1), reach, circular)
    step = 1.0 - np.exp(-block / (release * SR))
    gain = np.empty(nb)
    g = 1.0
    # Two passes round a loop so that the release state at its start is the one its end leaves.
    for _ in range(2 if circular else 1):
        for b in range(nb):
            g = min(block_need[b], g + (1.0 - g) * step)
            gain[b] = g
    centres = np.arange(nb) * block + block / 2.0
    per_sample = np.interp(np.arange(n), centres, gain)
    out = sig * per_sample
    return np.clip(out, -ceiling, ceiling)


def normalise(sig, target=-18.0, ceiling_db=-1.5, circular=True):
    """Scale to the target loudness, limiting peaks; a few rounds so both settle."""
    out = sig
    for _ in range(4):
        out = out * undb(target - loudness(out))
        out = limit(out, ceiling_db, circular)
    return out


def normalise_peak(sig, peak_target_db):
    """For effects: scale so the highest sample sits at the given level."""
    return sig * undb(peak_target_db - peak_db(sig))


def master(sig, target_lufs, ceiling_db, circular, rounds=6):
    """Bring a sound to a gated integrated loudness (EBU R128, see r128.py) with its peaks held under
    the ceiling by the limiter; a few rounds, as limiting takes off a little loudness each time."""
    import r128
    out = sig
    for _ in range(rounds):
        level = r128.integrated(out)
        if abs(target_lufs - level) < 0.05 and np.max(np.abs(out)) <= undb(ceiling_db):
            break
        out = limit(out * undb(target_lufs - level), ceiling_db, circular)
    return out


def strongest_start(sig, step_seconds, window_seconds=2.0):
    """The offset, a whole number of steps (bars), after which the next two seconds are loudest through a
    200 Hz high-pass (melody, chords and drums, not a bare drone): where a loop that has no beginning of
    its own should begin, so it sets its mood at once."""
    import r128
    n = sig.shape[1]
    step = int(round(step_seconds * SR))
    win = int(window_seconds * SR)
    best, best_level = 0, -1e9
    for start in range(0, n - win, step):
        level = r128.integrated(sig[:, start:start + win], speaker=True)
        if level > best_level + 0.05:
            best, best_level = start, level
    return best
