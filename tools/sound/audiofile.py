"""audiofile.py -- getting samples onto disk and back.

Owns: 16-bit PCM WAV writing and reading (the standard `wave` module), Ogg Vorbis encoding through
oggenc with a fixed stream serial and no tags that depend on time or machine, and decoding any of our
files back to samples for checks. Every output is byte-for-byte the same on each run.
"""
import os
import subprocess
import tempfile
import wave

import numpy as np

from dsp import SR


def to_pcm16(sig):
    """Float samples in -1..1 to interleaved little-endian 16-bit bytes."""
    sig = np.atleast_2d(sig)
    ints = np.clip(np.round(sig * 32767.0), -32768, 32767).astype("<i2")
    return ints.T.tobytes()


def write_wav(path, sig, rate=SR):
    sig = np.atleast_2d(sig)
    with wave.open(path, "wb") as out:
        out.setnchannels(sig.shape[0])
        out.setsampwidth(2)
        out.setframerate(rate)
        out.writeframes(to_pcm16(sig))


def read_wav(path):
    """Returns (samples as float (channels, n), rate)."""
    with wave.open(path, "rb") as src:
        channels = src.getnchannels()
        rate = src.getframerate()
        if src.getsampwidth() != 2:
            raise ValueError(path + ": not 16-bit PCM")
        data = np.frombuffer(src.readframes(src.getnframes()), dtype="<i2")
    return data.reshape(-1, channels).T.astype(np.float64) / 32768.0, rate


def write_ogg(path, sig, quality, serial, rate=SR):
    """Encode through a temporary WAV; the fixed serial keeps the file identical between runs."""
    with tempfile.TemporaryDirectory() as tmp:
        wav_path = os.path.join(tmp, "in.wav")
        write_wav(wav_path, sig, rate)
        subprocess.run(["oggenc", "--quiet", "-q", str(quality), "-s", str(serial),
                        "-o", path, wav_path], check=True)


def read_any(path):
    """Decode a WAV or Ogg Vorbis file to float samples; Ogg goes through oggdec."""
    if path.lower().endswith(".wav"):
        return read_wav(path)
    with tempfile.TemporaryDirectory() as tmp:
        wav_path = os.path.join(tmp, "out.wav")
        subprocess.run(["oggdec", "--quiet", "-o", wav_path, path], check=True)
        return read_wav(wav_path)
