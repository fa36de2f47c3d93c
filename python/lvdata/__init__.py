"""Records of a monitor-calibration application, and what can be told of them."""

from ._errors import ParseError
from ._lvdata import version as __version__

__all__ = ["ParseError", "__version__"]
