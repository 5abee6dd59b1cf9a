"""The band plans of cellular and wireless standards: channel numbers and centre frequencies.

>>> import saiskuko
>>> band = saiskuko.band("LTE:1")
>>> band.frequency(300, "dl")
2140.0
>>> band.channels_at(1950.0, "ul")
[18300]

Every answer comes from the shared library, so the frequencies are the C++
API's doubles to the bit. A query without an answer raises saiskuko.Error, a
ValueError whose .code names the reason.
"""

from ._saiskuko import (
    ERROR_CODES,
    Band,
    Error,
    Hit,
    Link,
    Record,
    __version__,
    band,
    bands,
    bands_with_channel,
    search,
    technologies,
)

__all__ = [
    "ERROR_CODES",
    "Band",
    "Error",
    "Hit",
    "Link",
    "Record",
    "__version__",
    "band",
    "bands",
    "bands_with_channel",
    "search",
    "technologies",
]
