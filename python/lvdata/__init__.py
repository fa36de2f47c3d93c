"""Records of a monitor-calibration application, and what can be told of them."""

from . import _records
from ._errors import ParseError
from ._lvdata import version as __version__
from ._records import *

__all__ = ["ParseError", "__version__"]
__all__ += _records.__all__
