"""What the tests of the site stand on: the site, served, and a browser."""

import sys
from collections.abc import Iterator
from pathlib import Path

import pytest

sys.path.append(str(Path(__file__).resolve().parents[1]))

from browser import Browser, chromium  # noqa: E402
from rig.served_site import ServedSite, make_site, served_site  # noqa: E402


@pytest.fixture(scope="session")
def browser(tmp_path_factory: pytest.TempPathFactory) -> Iterator[Browser]:
    with chromium(tmp_path_factory.mktemp("browser")) as browser:
        yield browser


@pytest.fixture(scope="session")
def pages(tmp_path_factory: pytest.TempPathFactory) -> Path:
    """The site as files."""
    folder = tmp_path_factory.mktemp("pages") / "site"
    make_site(folder)
    return folder


@pytest.fixture
def site(tmp_path: Path) -> Iterator[ServedSite]:
    with served_site(tmp_path) as site:
        yield site
