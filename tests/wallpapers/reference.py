# SPDX-License-Identifier: MIT
"""The arithmetic of random numbers, noise and ridges once more, written apart from the program: one line per value, the
bits of a number in hexadecimal. ReferenceTest computes the same lines and compares them."""

import math
import struct

MASK = (1 << 64) - 1
SEEDS = [0, 1, 2, 5381, MASK, 1 << 63] + [(k * 0x2545F4914F6CDD1D + 11) & MASK for k in range(60)]
BOUNDS = [1, 2, 3, 10, 256, (1 << 32) + 1, (1 << 53) + 1, (1 << 63) + 12345, MASK]
RANGES = [(0.0, 1.0), (-3.5, 7.25), (0.08, 0.5), (5.0, 5.0), (-1e300, 1e-300)]
WORDS = ["", "paper", "neon", "fieldDark", "K\u014dbe"]


class Random:
    def __init__(self, seed):
        self.state = seed

    def next(self):
        self.state = (self.state + 0x9E3779B97F4A7C15) & MASK
        z = self.state
        z = ((z ^ (z >> 30)) * 0xBF58476D1CE4E5B9) & MASK
        z = ((z ^ (z >> 27)) * 0x94D049BB133111EB) & MASK
        return z ^ (z >> 31)

    def below(self, bound):
        product = self.next() * bound
        if product & MASK < bound:
            threshold = ((1 << 64) - bound) % bound
            while product & MASK < threshold:
                product = self.next() * bound
        return product >> 64

    def within(self, low, high):
        k = self.below((1 << 53) + 1)
        return high if k == 1 << 53 else low + (high - low) * math.ldexp(k, -53)


def lerp(a, b, t):
    return a + (b - a) * t


def fade(t):
    return t * t * t * (t * (6 * t - 15) + 10)


def grad(h, x, y):
    return [x + y, -x + y, x - y, -x - y, x, -x, y, -y][h & 7]


class Perlin:
    def __init__(self, seed):
        random = Random(seed)
        table = list(range(256))
        for i in range(255):
            j = i + random.below(256 - i)
            table[i], table[j] = table[j], table[i]
        self.p = table + table

    def noise(self, x, y):
        p = self.p
        column, row = math.floor(x) & 255, math.floor(y) & 255
        x, y = x - math.floor(x), y - math.floor(y)
        a, b = p[column] + row, p[column + 1] + row
        u = fade(x)
        low = lerp(grad(p[a], x, y), grad(p[b], x - 1, y), u)
        high = lerp(grad(p[a + 1], x, y - 1), grad(p[b + 1], x - 1, y - 1), u)
        return lerp(low, high, fade(y))

    def fbm(self, x, y, octaves, lacunarity, gain):
        total, amplitude, frequency = 0.0, 0.5, 1.0
        for _ in range(octaves):
            total += amplitude * self.noise(frequency * x, frequency * y)
            frequency *= lacunarity
            amplitude *= gain
        return min(max(total * 0.9 + 0.5, 0.0), 1.0)

    def ridged(self, x, y, octaves):
        total, amplitude, frequency, weight = 0.0, 0.5, 1.0, 1.0
        for _ in range(octaves):
            s = 1 - abs(self.noise(frequency * x, frequency * y))
            s = s * s * weight
            weight = min(max(2 * s, 0.0), 1.0)
            total += amplitude * s
            frequency *= 2
            amplitude *= 0.5
        return min(total, 1.0)


def ridge(random, n, roughness):
    h = [0.0] * n
    h[0] = random.within(0.0, 1.0) - 0.5
    h[-1] = random.within(0.0, 1.0) - 0.5
    step, amplitude = n - 1, 1.0
    while n >= 3:
        half = step // 2
        for i in range(half, n, step):
            h[i] = (h[i - half] + h[i + half]) / 2 + (2 * amplitude * random.within(0.0, 1.0) - amplitude)
        amplitude *= roughness
        if step <= 3:
            break
        step = half
    return h


def smoothed(h, radius):
    windows = [h[max(0, i - radius) : i + radius + 1] for i in range(len(h))]
    return [sum(window, 0.0) / len(window) for window in windows]


def djb2(text):
    h = 5381
    for byte in text.encode():
        h = (h * 33 + byte) & MASK
    return h


def say(name, *values):
    bits = (struct.unpack(">Q", struct.pack(">d", v))[0] if isinstance(v, float) else v for v in values)
    print(name, *(f"{b:x}" for b in bits))


for word in WORDS:
    say("seedOf", djb2(word))
for seed in SEEDS:
    random = Random(seed)
    say("next", *(random.next() for _ in range(4)))
    say("below", *(random.below(bound) for bound in BOUNDS))
    say("in", *(random.within(low, high) for low, high in RANGES))
    perlin = Perlin(random.next())
    for _ in range(6):
        x, y = random.within(-300.0, 300.0), random.within(-4.0, 4.0)
        say("noise", perlin.noise(x, y), perlin.noise(float(math.floor(x)), y), perlin.noise(x * 1e12, float(math.floor(y))))
        for octaves in range(5):
            say("fbm", perlin.fbm(x, y, octaves, 2.0, 0.5), perlin.fbm(x, y, octaves, 2.17, 0.6))
            say("ridged", perlin.ridged(x, y, octaves))
    for points in (2, 3, 5, 65):
        heights = ridge(random, points, 0.55)
        say("ridge", *heights)
        for radius in (0, 3):
            say("smoothed", *smoothed(heights, radius))
