"""Makes the site that is hosted: site/make_site.py FOLDER [--downloads DIST] writes it into a new
folder.

A page is frame.html around a text: of pages/, or of the guide. In both, ${version} is the
program's, an address within the site begins with ${root}, the way from the page's folder to the
site's, and one of a picture with ${pictures}. The update file is made of the version, too. DIST is
what ./release has left: its files are offered on the download page, with size and sum, and copied.
Without it that page offers none.
"""

import argparse
import re
import shutil
import sys
from dataclasses import dataclass
from pathlib import Path
from string import Template
from textwrap import indent

from downloads import NONE_OFFERED, copy_downloads, offered

HERE = Path(__file__).resolve().parent
PROJECT = HERE.parent
GUIDE = PROJECT / "guide"
COPIED = ["icon.png", "style.css", "testcon.dat"]


@dataclass(frozen=True)
class Page:
    source: Path
    address: str  # in the site; a folder's page is its index.html
    menu: str
    title: str
    description: str
    language: str = "en"


PAGES = [
    Page(HERE / "pages/index.html", "", "Home", "Tonmira",
         "Tonmira is a small Windows program that makes tones."),
    Page(HERE / "pages/information.html", "information.html", "News", "Tonmira news",
         "News about Tonmira, which the program shows when it starts."),
    Page(HERE / "pages/download.html", "download/", "Download", "Download - Tonmira",
         "The files of Tonmira, their sizes and sums."),
    Page(GUIDE / "en.html", "guide/", "Guide", "Guide - Tonmira",
         "What Tonmira does and how it is used."),
    Page(GUIDE / "nl.html", "handleiding/", "Handleiding", "Handleiding - Tonmira",
         "Wat Tonmira doet en hoe u het gebruikt.", "nl"),
    Page(HERE / "pages/contact-us.html", "contact-us/", "Contact", "Contact - Tonmira",
         "How to reach the makers of Tonmira."),
    Page(HERE / "pages/donate.html", "donate/", "Donate", "Donate - Tonmira",
         "How to support Tonmira."),
]


def stated(source: str, pattern: str) -> str:
    """What a file of the project says where `pattern` has its group."""
    found = re.search(pattern, (PROJECT / source).read_text(), re.MULTILINE)
    if not found:
        raise ValueError(f"{source} has nothing like {pattern}")
    return found[1]


def menu(page: Page, root: str) -> str:
    def attributes(entry: Page) -> str:
        here = ' class="here" aria-current="page"' if entry is page else ""
        other = f' lang="{entry.language}"' if entry.language != page.language else ""
        return here + other

    return "\n".join(
        f'<li><a href="{root + entry.address or "./"}"{attributes(entry)}>{entry.menu}</a></li>'
        for entry in PAGES)


def render(page: Page, **values: str) -> str:
    root = "../" * page.address.count("/")
    body = Template(page.source.read_text()).substitute(
        values, root=root, pictures=root + "pictures/").rstrip()
    return Template((HERE / "frame.html").read_text()).substitute(
        values, title=page.title, description=page.description, language=page.language, root=root,
        home=root or "./", menu=indent(menu(page, root), " " * 12),
        # Blanks count in a preformatted text.
        body=body if "<pre>" in body else indent(body, " " * 8))


def make_site(folder: Path, dist: Path | None) -> None:
    """Writes the site into `folder`, which must not be there yet."""
    version = stated("CMakeLists.txt", r"^project\(Tonmira VERSION (\d\.\d\.\d)\s")
    built_in_site = stated("online/addresses.h", r'kBuiltInSite\[\] = "(.*)";$')
    downloads = offered(dist, version) if dist else NONE_OFFERED
    folder.mkdir(parents=True)
    for name in COPIED:
        shutil.copyfile(HERE / name, folder / name)
    shutil.copytree(GUIDE / "pictures", folder / "pictures")
    if dist:
        copy_downloads(dist, version, folder / "downloads")
    for page in PAGES:
        path = folder / page.address
        if not page.address.endswith(".html"):
            path = path / "index.html"
        path.parent.mkdir(exist_ok=True)
        path.write_bytes(render(page, version=version, downloads=downloads).encode("ascii"))
    update = f"{version.replace('.', '')}\r\n{built_in_site}/\r\n"
    (folder / "updatetonmira.txt").write_bytes(update.encode("ascii"))


def main(arguments: list[str]) -> int:
    parser = argparse.ArgumentParser(prog="make_site.py")
    parser.add_argument("folder", metavar="FOLDER", type=Path, help="is not there yet")
    parser.add_argument("--downloads", metavar="DIST", type=Path, help="what ./release has left")
    asked = parser.parse_args(arguments)
    if asked.folder.exists():
        parser.error(f"{asked.folder} is there already")
    try:
        make_site(asked.folder, asked.downloads)
    except (OSError, ValueError) as error:
        print(f"make_site.py: {error}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
