"""Records of a monitor-calibration application, and their analysis."""

from . import _records
from ._analysis import (
    Column,
    Diff,
    Difference,
    Finding,
    TableDescription,
    check,
    diff,
    figures,
    table,
    tables,
)
from ._errors import ParseError
from ._lvdata import version as __version__
from ._pictures import Picture, plot
from ._records import *
from ._reports import Report, report
from ._scan import documents, scan

__all__ = [
    "Column",
    "Diff",
    "Difference",
    "Finding",
    "ParseError",
    "Picture",
    "Report",
    "TableDescription",
    "__version__",
    "check",
    "diff",
    "documents",
    "figures",
    "plot",
    "report",
    "scan",
    "table",
    "tables",
]
__all__ += _records.__all__

for _each in (Column, Diff, Difference, Finding, ParseError, Picture, Report, TableDescription):
    _each.__module__ = __name__  # where tracebacks say, and pickles look, that it is
