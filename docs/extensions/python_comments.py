"""The texts of the Python sources, which are plain, as the site needs them.

A star is a star. Python's own text for the fields of named tuples without a comment, "Alias for field number 0", is left
out.
"""


def prepare(app, what, name, found, options, lines):
    if lines and lines[0].startswith("Alias for field number"):
        lines.clear()
    lines[:] = [line.replace("*", r"\*") for line in lines]


def setup(app):
    app.setup_extension("sphinx.ext.autodoc")
    app.connect("autodoc-process-docstring", prepare)
    return {"parallel_read_safe": True}
