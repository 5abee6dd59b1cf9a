#!/usr/bin/env python3
"""Times the Python module: one Band.frequency call, and 100,000 channels
converted in a loop, each the best of several runs.

    PYTHONPATH=build/python /usr/bin/python3 bench/python_frequency.py
"""

import timeit

import saiskuko

BAND = saiskuko.band("LTE:1")
CHANNELS = [ch % 600 for ch in range(100_000)]


def convert_all():
    frequency = BAND.frequency
    return [frequency(ch, "dl") for ch in CHANNELS]


def per_call(statement, calls=200_000, repeat=7):
    best = min(timeit.repeat(statement, globals=globals(), number=calls, repeat=repeat))
    return best / calls * 1e9


def main():
    print(f"saiskuko {saiskuko.__version__}")
    for label, statement in [
        ("Band.frequency(300, 'dl')", "BAND.frequency(300, 'dl')"),
        ("Band.frequency(300, Link.DOWN)", "BAND.frequency(300, saiskuko.Link.DOWN)"),
        ("Band.frequency(636666) (TDD, no link)", "NR78.frequency(636666)"),
        ("Band.channels_at(2140.0, 'dl')", "BAND.channels_at(2140.0, 'dl')"),
    ]:
        print(f"{label:40} {per_call(statement):8.0f} ns per call")
    loop = min(timeit.repeat(convert_all, number=1, repeat=7))
    print(f"{'100,000 channels in a loop':40} {loop * 1e3:8.1f} ms")


NR78 = saiskuko.band("NR:n78")

if __name__ == "__main__":
    main()
