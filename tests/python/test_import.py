import lvdata
import pytest


def test_the_version_is_told() -> None:
    assert lvdata.__version__.count(".") == 2


def test_an_error_says_file_line_and_reason() -> None:
    error = lvdata.ParseError("mismatched element", 3, "a.xml")
    assert str(error) == "a.xml: line 3: mismatched element"
    assert (error.reason, error.line, error.file) == ("mismatched element", 3, "a.xml")
    with pytest.raises(ValueError):
        raise error
