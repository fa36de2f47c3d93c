import lvdata
import pytest


def test_the_module_has_a_version() -> None:
    assert lvdata.__version__.count(".") == 2


def test_an_error_says_file_line_and_reason() -> None:
    error = lvdata.ParseError("mismatched element", 3, "a.xml")
    assert str(error) == "a.xml: line 3: mismatched element"
    assert (error.reason, error.line, error.file) == ("mismatched element", 3, "a.xml")
    with pytest.raises(ValueError):
        raise error


def test_a_class_says_that_it_is_of_the_module() -> None:
    own = [getattr(lvdata, name) for name in lvdata.__all__ if name not in lvdata._records.__all__]
    classes = [value for value in own if isinstance(value, type)]
    assert len(classes) == 8
    for each in classes:
        assert each.__module__ == "lvdata", each
        assert getattr(lvdata, each.__name__) is each
