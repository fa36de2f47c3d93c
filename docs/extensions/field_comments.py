"""Python's own text for the fields of named tuples without a comment, "Alias for field number 0", is left out."""


def remove_alias(app, what, name, found, options, lines):
    if lines and lines[0].startswith("Alias for field number"):
        lines.clear()


def setup(app):
    app.setup_extension("sphinx.ext.autodoc")
    app.connect("autodoc-process-docstring", remove_alias)
    return {"parallel_read_safe": True}
