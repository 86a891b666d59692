"""mixdown.py -- putting sounds together: loop buffers and reverb.

Owns: the loop buffer (a stereo array whose end leads straight into its start: whatever rings past the
end is folded onto the start, so a track loops without a seam), plain buffers for effects, and
convolution reverb with a synthetic stone room (circular for loops, linear for effects).
"""
import numpy as np

from dsp import samples, exp_decay, filter_causal, lowpass, bandpass, highpass, pan


def new_loop(n):
    return np.zeros((2, n))


def add_wrapped(buf, sig, start):
    """Mix a stereo sound into a loop buffer at `start`, folding anything past the end onto the start."""
    n = buf.shape[1]
    m = sig.shape[1]
    pos = start % n
    done = 0
    while done < m:
        take = min(m - done, n - pos)
        buf[:, pos:pos + take] += sig[:, done:done + take]
        done += take
        pos = 0


def place(buf, mono, start, gain=1.0, position=0.0):
    add_wrapped(buf, pan(mono * gain, position), start)


def add_linear(buf, sig, start):
    """Mix into a plain (non-looping) buffer, dropping what falls past its end."""
    m = min(sig.shape[-1], buf.shape[-1] - start)
    if m > 0:
        buf[..., start:start + m] += sig[..., :m]


def room_impulse(rng, t60, predelay=0.02, brightness=4000.0, length=None):
    """Stereo impulse response of a stone room: decorrelated noise, high bands dying sooner."""
    length = length or t60 * 1.1
    n = samples(length)
    out = np.zeros((2, n + samples(predelay)))
    bands = [(lowpass(350.0, 2), 1.0), (bandpass(900.0, 0.8), 0.8),
             (bandpass(2500.0, 0.8), 0.55), (highpass(5000.0, 2), 0.3)]
    for ch in range(2):
        noise = rng.standard_normal(n)
        wet = np.zeros(n)
        for response, t60_scale in bands:
            band = filter_causal(noise, response)[:n]
            wet += band * exp_decay(n, t60 * t60_scale)
        wet = filter_causal(wet, lowpass(brightness, 1))[:n]
        # Soft onset so the tail swells slightly instead of starting as a click.
        wet[:samples(0.01)] *= np.linspace(0.0, 1.0, samples(0.01))
        out[ch, samples(predelay):] = wet
    return out / np.sqrt(np.sum(out ** 2) / 2.0)


def reverb_circular(buf, impulse, wet):
    """Reverb of a loop buffer; the tail of the end rings on into the start."""
    n = buf.shape[1]
    out = np.empty_like(buf)
    for ch in range(2):
        ir = np.zeros(n)
        m = min(n, impulse.shape[1])
        ir[:m] = impulse[ch, :m]
        out[ch] = np.fft.irfft(np.fft.rfft(buf[ch]) * np.fft.rfft(ir), n)
    return buf * (1.0 - 0.5 * wet) + out * wet


def reverb_linear(sig, impulse, wet):
    """Reverb of a finite stereo sound; the result is longer by the impulse's length."""
    n = sig.shape[1] + impulse.shape[1]
    nfft = 1 << int(np.ceil(np.log2(n)))
    out = np.zeros((2, n))
    for ch in range(2):
        conv = np.fft.irfft(np.fft.rfft(sig[ch], nfft) * np.fft.rfft(impulse[ch], nfft), nfft)
        out[ch] = conv[:n]
    dry = np.zeros((2, n))
    dry[:, :sig.shape[1]] = sig
    return dry * (1.0 - 0.5 * wet) + out * wet
