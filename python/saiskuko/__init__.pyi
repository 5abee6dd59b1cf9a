"""Types of the saiskuko package, for editors and type checkers."""

import enum
from typing import List, Literal, Optional, Tuple, Union

__version__: str
ERROR_CODES: Tuple[str, ...]

class Error(ValueError):
    """Why a query has no answer; .code names the reason ('unknown_band', ...)."""

    code: str

class Link(enum.Enum):
    """A link direction."""

    DOWN = 0
    UP = 1

_LinkLike = Union[Link, Literal["dl", "ul", "down", "up", "DL", "UL", "DOWN", "UP"]]

class Record:
    """One sub-band record of a band: a run of channels of one link."""

    @property
    def link(self) -> Link: ...
    @property
    def first_channel(self) -> int: ...
    @property
    def last_channel(self) -> int: ...
    @property
    def low_edge_mhz(self) -> float: ...
    @property
    def high_edge_mhz(self) -> float: ...
    @property
    def first_mhz(self) -> float: ...
    @property
    def last_mhz(self) -> float: ...
    @property
    def step_mhz(self) -> float: ...
    @property
    def span_low_mhz(self) -> float: ...
    @property
    def span_high_mhz(self) -> float: ...

class Band:
    """A band of the band plan; link may be left out for one-link and TDD bands."""

    @property
    def code(self) -> int: ...
    @property
    def technology(self) -> str: ...
    @property
    def name(self) -> str: ...
    @property
    def standard(self) -> str: ...
    @property
    def short_name(self) -> str: ...
    @property
    def duplex(self) -> Literal["FDD", "TDD", "SDL", "SUL"]: ...
    @property
    def links(self) -> List[Link]: ...
    @property
    def records(self) -> List[Record]: ...
    def frequency(self, channel: int, link: Optional[_LinkLike] = None) -> float:
        """Centre frequency of a channel in MHz."""
    def channels_at(self, mhz: float, link: Optional[_LinkLike] = None) -> List[int]:
        """Every channel of the link centred at mhz."""
    def nearest_channel(self, mhz: float, link: Optional[_LinkLike] = None) -> int:
        """The channel of the link centred nearest to mhz."""
    def paired_channel(self, channel: int, link: Optional[_LinkLike] = None) -> int:
        """The channel of the other link paired with this one."""
    def __eq__(self, other: object) -> bool: ...
    def __hash__(self) -> int: ...

class Hit:
    """One answer of search(): a band and link holding a frequency."""

    @property
    def band(self) -> Band: ...
    @property
    def link(self) -> Link: ...
    @property
    def channel(self) -> int: ...
    @property
    def centre_mhz(self) -> float: ...
    @property
    def offset_mhz(self) -> float: ...
    @property
    def off_raster(self) -> bool: ...

def band(name: Union[str, int]) -> Band:
    """A band by name ('LTE:1', 'NR:n78') or code (201)."""

def bands(technology: Optional[str] = None) -> List[Band]:
    """Every band, or those of one technology ('NR')."""

def technologies() -> List[str]:
    """The technologies' names in slot order."""

def search(mhz: float) -> List[Hit]:
    """Every band and link holding a frequency, nearest channel first."""

def bands_with_channel(channel: int) -> List[Band]:
    """Every band with the channel in a record of either link."""
