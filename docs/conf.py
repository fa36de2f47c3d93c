"""The configuration of the documentation site. CMake passes what is of the build: see docs/CMakeLists.txt."""

import sys
from pathlib import Path

SOURCES = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(SOURCES / "docs" / "extensions"))

project = "lvdata"
author = "The lvdata authors"
copyright = author  # no year: the same sources make the same site
language = "en"
root_doc = "index"
exclude_patterns = ["databases/*.py", "extensions"]

extensions = ["breathe", "myst_parser", "complete_theme", "python_comments", "source_links"]
myst_heading_anchors = 4
myst_enable_extensions = ["deflist"]
highlight_language = "none"
default_role = "literal"  # of the comments in the Python sources
smartquotes = False
primary_domain = "cpp"

breathe_default_project = "lvdata"
breathe_default_members = ("members",)
breathe_show_include = True

# The Python sources are read without the compiled part and without the packages that they use.
sys.path.insert(0, str(SOURCES / "python"))
autodoc_mock_imports = ["lvdata._lvdata", "dask", "distributed", "numpy", "pandas"]
autodoc_typehints = "signature"
autodoc_member_order = "bysource"

html_theme = "furo"
html_title = "lvdata"
html_static_path = ["static"]
html_css_files = ["lvdata.css"]
html_copy_source = False
html_show_sphinx = False
html_theme_options = {"navigation_with_keys": True}

# What the references name and do not describe: the standard libraries, parameters of templates, hidden types.
nitpick_ignore_regex = [
    ("cpp:identifier", r"(lv|std(::.*)?|detail(::.*)?)"),
    ("cpp:identifier", r"(T|Row|Target|Number|Records|uintptr_t|size_t)"),
    ("py:.*", r".*"),
]
suppress_warnings = [
    "ref.ref",  # names of headers, which Doxygen takes for links to their sources
    "misc.highlighting_failure",  # commands of psql in blocks of SQL
]
