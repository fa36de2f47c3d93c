"""Makes the files of the theme work without a web server.

Debian's package of furo leaves three things to others: a style sheet that a web server is to have, dark pages where the
system is dark, and the joining of two scripts. All of it is done here, in the files of the site. Files of a furo that has
all this stay as they are.
"""

import re
from pathlib import Path

NORMALIZE = re.compile(r"@import url\((/javascript/[^)]+)\);")
DARK = re.compile(r'body\[data-theme="dark"\] (\{\s*--color[^}]*\})')
IMPORT = re.compile(r'^import Gumshoe from "\./([\w.-]+)";', re.M)


def complete_styles(path):
    styles = path.read_text(encoding="utf-8")
    found = NORMALIZE.search(styles)
    if found:
        styles = Path("/usr/share" + found[1]).read_text(encoding="utf-8") + styles.replace(found[0], "")
    dark = DARK.search(styles)
    if dark and "prefers-color-scheme" not in styles:
        styles += f'\n@media not print {{ @media (prefers-color-scheme: dark) {{ body[data-theme="auto"] {dark[1]} }} }}\n'
    path.write_text(styles, encoding="utf-8")


def complete_script(path):
    script = path.read_text(encoding="utf-8")
    found = IMPORT.search(script)
    if found:
        joined = (path.parent / found[1]).read_text(encoding="utf-8") + script.replace(found[0], "")
        path.write_text(joined, encoding="utf-8")


def complete(app, error):
    static = Path(app.outdir) / "_static"
    if error is None and app.builder.name == "html":
        complete_styles(static / "styles" / "furo.css")
        complete_script(static / "scripts" / "furo.js")


def setup(app):
    app.connect("build-finished", complete)
    return {"parallel_read_safe": True}
