"""The Python module against the C++ API's own answers: frequencies to the bit,
round trips through every band, every error code, and the Python manners."""

import math
import os
import struct

import pytest
from hypothesis import given, settings
from hypothesis import strategies as st

import saiskuko

LTE1 = saiskuko.band("LTE:1")


def bits(mhz):
    return struct.pack(">d", mhz).hex()


def dump_lines():
    """(band, link, [(channel, formula bits)]) per record of the committed frequency dump."""
    with open(os.environ["SAISKUKO_FREQUENCY_DUMP"], encoding="utf-8") as dump:
        for line in dump:
            tech, name, _, rest = line.split(" hits=")[0].split("|")
            link, *fields = rest.split(" ")
            points = [(int(ch), value[:16]) for ch, value in (f.split(":") for f in fields)]
            yield saiskuko.band(f"{tech} - {name}"), saiskuko.Link(int(link)), points


def answering_range(band, link, channel):
    """Channels of the first record frequency() answers from: one of the link, or of a TDD band."""
    for r in band.records:
        if (r.link == link or band.duplex == "TDD") and r.first_channel <= channel <= r.last_channel:
            return r.first_channel, r.last_channel
    return None


def test_frequencies_are_the_cpp_doubles_to_the_bit():
    checked = 0
    for band, link, points in dump_lines():
        own = (points[0][0], points[-1][0])
        for channel, want in points:
            # Skipped: placeholders, and channels an earlier record answers for.
            if answering_range(band, link, channel) == own:
                assert bits(band.frequency(channel, link)) == want, (band, link, channel)
                checked += 1
    assert checked > 1500


@st.composite
def band_channels(draw):
    band = draw(st.sampled_from(saiskuko.bands()))
    record = draw(st.sampled_from(band.records))
    return band, record.link, draw(st.integers(record.first_channel, record.last_channel))


@settings(max_examples=2000, deadline=None)
@given(band_channels())
def test_every_channel_round_trips(case):
    band, link, channel = case
    mhz = band.frequency(channel, link)
    assert channel in band.channels_at(mhz, link)
    assert band.nearest_channel(mhz, link) in band.channels_at(mhz, link)
    assert band in saiskuko.bands_with_channel(channel) or band.name == "Band Global"


ERRORS = [
    ("unknown_technology", lambda: saiskuko.band("FOO:1"), 'unknown technology "FOO"'),
    ("unknown_band", lambda: saiskuko.band(999), "no band has code 999; codes: 0-10 CDMA"),
    ("ambiguous_name", lambda: saiskuko.bands("LTE"), "it matches: LTE-FDD, LTE-TDD"),
    ("bad_name", lambda: saiskuko.band("hello"), 'cannot read band "hello"'),
    ("link_not_served", lambda: saiskuko.band("LTE:32").frequency(9920, "ul"), "no uplink"),
    ("channel_not_in_band", lambda: LTE1.frequency(600, "dl"), "channels: 0-599"),
    ("frequency_not_in_band", lambda: LTE1.channels_at(5e3, "dl"), "(2110 to 2169.9 MHz)"),
    ("not_a_channel_centre", lambda: LTE1.channels_at(2140.05, "dl"), "2140.05 MHz is not"),
    ("no_paired_channel", lambda: saiskuko.band("NR:n78").paired_channel(636666), "is TDD"),
    ("not_finite", lambda: LTE1.nearest_channel(math.inf, "ul"), "not a finite number"),
]


def test_every_error_code_is_raised_with_its_message():
    assert [code for code, _, _ in ERRORS] == list(saiskuko.ERROR_CODES)
    for code, call, message in ERRORS:
        with pytest.raises(saiskuko.Error) as raised:
            call()
        assert raised.value.code == code and message in str(raised.value)
        assert isinstance(raised.value, ValueError)


def test_links_bands_and_hits_in_python_manners():
    for link in ("dl", "DOWN", "down", saiskuko.Link.DOWN):
        assert LTE1.frequency(300, link) == 2140.0
    assert LTE1.paired_channel(300, "dl") == 18300 and LTE1.paired_channel(18300, "up") == 300
    assert saiskuko.band("NR:n78").channels_at(3549.99) == [636666]  # TDD: link left out
    for bad, error in ((None, TypeError), ("sideways", ValueError), (0, TypeError)):
        with pytest.raises(error):
            LTE1.frequency(300, bad)
    assert saiskuko.band(201) == LTE1 and saiskuko.band("B1") != saiskuko.band("N1")
    assert len({LTE1, saiskuko.band("LTE-FDD - Band 1 (2100)")}) == 1 and LTE1 != 201
    assert repr(LTE1) == "<saiskuko.Band 201 LTE-FDD - Band 1 (2100)>"
    assert (LTE1.technology, LTE1.name, LTE1.duplex) == ("LTE-FDD", "Band 1 (2100)", "FDD")
    assert {b.technology for b in saiskuko.bands("nr")} == {"5G NR"}
    assert len(saiskuko.bands()) == len({b.code for b in saiskuko.bands()}) > 150
    hits = saiskuko.search(1950.0)
    assert len(hits) > 10 and hits == sorted(hits, key=lambda h: abs(h.offset_mhz))
    for hit in hits:
        assert hit.band.frequency(hit.channel, hit.link) == hit.centre_mhz
        assert hit.offset_mhz == hit.centre_mhz - 1950.0
        assert any(r.span_low_mhz <= 1950.0 <= r.span_high_mhz for r in hit.band.records)
    assert [h.band.code for h in saiskuko.search(2010.0) if h.off_raster] == [230, 235, 404, 404, 405, 405]
