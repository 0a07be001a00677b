"""Makes the site that is hosted: site/make_site.py FOLDER writes it into a new folder.

A page is frame.html around a text of pages/. In both, $version is the program's, and an address
within the site begins with ${root}, the way from the page's folder to the site's. The update file
is made of the version, too.
"""

import re
import shutil
import sys
from dataclasses import dataclass
from pathlib import Path
from string import Template
from textwrap import indent

HERE = Path(__file__).resolve().parent
PROJECT = HERE.parent
COPIED = ["icon.png", "style.css", "testcon.dat", "tonmira.png"]


@dataclass(frozen=True)
class Page:
    source: str  # in pages/
    address: str  # in the site; a folder's page is its index.html
    menu: str
    title: str
    description: str


PAGES = [
    Page("index.html", "", "Home", "Tonmira",
         "Tonmira is a small Windows program that makes tones from 4 Hz to 32000 Hz."),
    Page("information.html", "information.html", "News", "Tonmira news",
         "News about Tonmira, which the program shows when it starts."),
    Page("contact-us.html", "contact-us/", "Contact", "Contact - Tonmira",
         "How to reach the makers of Tonmira."),
    Page("donate.html", "donate/", "Donate", "Donate - Tonmira", "How to support Tonmira."),
]


def stated(source: str, pattern: str) -> str:
    """What a file of the project says where `pattern` has its group."""
    found = re.search(pattern, (PROJECT / source).read_text(), re.MULTILINE)
    if not found:
        raise ValueError(f"{source} has nothing like {pattern}")
    return found[1]


def menu(page: Page, root: str) -> str:
    here = ' class="here" aria-current="page"'
    return "\n".join(
        f'<li><a href="{root + entry.address or "./"}"{here if entry is page else ""}>'
        f"{entry.menu}</a></li>" for entry in PAGES)


def render(page: Page, version: str) -> str:
    root = "../" * page.address.count("/")
    body = Template((HERE / "pages" / page.source).read_text())
    return Template((HERE / "frame.html").read_text()).substitute(
        title=page.title, description=page.description, version=version, root=root,
        home=root or "./", menu=indent(menu(page, root), " " * 12),
        body=indent(body.substitute(version=version, root=root).rstrip(), " " * 8))


def make_site(folder: Path) -> None:
    """Writes the site into `folder`, which must not be there yet."""
    folder.mkdir(parents=True)
    for name in COPIED:
        shutil.copyfile(HERE / name, folder / name)
    version = stated("CMakeLists.txt", r"^project\(Tonmira VERSION (\d\.\d\.\d)\s")
    built_in_site = stated("online/addresses.h", r'kBuiltInSite\[\] = "(.*)";$')
    for page in PAGES:
        path = folder / page.address
        if not page.address.endswith(".html"):
            path = path / "index.html"
        path.parent.mkdir(exist_ok=True)
        path.write_bytes(render(page, version).encode("ascii"))
    update = f"{version.replace('.', '')}\r\n{built_in_site}/\r\n"
    (folder / "updatetonmira.txt").write_bytes(update.encode("ascii"))


def main(arguments: list[str]) -> int:
    if len(arguments) != 1 or Path(arguments[0]).exists():
        print("usage: make_site.py FOLDER, which is not there yet", file=sys.stderr)
        return 2
    make_site(Path(arguments[0]))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
