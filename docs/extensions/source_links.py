"""Pages of the site from what works where the sources are browsed.

Links to files of the source tree that are not pages become the name of the file. The pages `contributing` and
`changelog` have the content of the files of that name in the topmost folder.
"""

import os
import re
from pathlib import Path

LINK = re.compile(r"(?<!!)\[([^\]]+)\]\(((?!https?:|#)[^)\s#]+)(#[^)\s]*)?\)")
FROM_TOP = {"contributing": "CONTRIBUTING.md", "changelog": "CHANGELOG.md"}
PAGES = {"CONTRIBUTING.md": "contributing.md", "CHANGELOG.md": "changelog.md", "README.md": "index.md"}


def rewritten(text, folder, docs, page_folder):
    """A text of that folder, for a page of the site in `page_folder`: its links lead only to pages."""

    def replacement(link):
        label, target, anchor = link.groups()
        path = (folder / target).resolve()
        in_tree = path.relative_to(docs.parent).as_posix()
        page = docs / PAGES[in_tree] if in_tree in PAGES else path
        if docs in page.parents and page.is_file():
            return f"[{label}]({os.path.relpath(page, page_folder)}{anchor or ''})"
        return f"`{in_tree}`" if label.strip("`/").endswith(path.name) else f"{label} (`{in_tree}`)"

    return LINK.sub(replacement, text)


def rewrite(app, name, source):
    docs = Path(app.srcdir).resolve()
    page_folder = (docs / name).parent
    if name in FROM_TOP:
        top = docs.parent / FROM_TOP[name]
        app.env.note_dependency(str(top))
        source[0] = rewritten(top.read_text(encoding="utf-8"), docs.parent, docs, page_folder)
    else:
        source[0] = rewritten(source[0], page_folder, docs, page_folder)


def setup(app):
    app.connect("source-read", rewrite)
    return {"parallel_read_safe": True}
