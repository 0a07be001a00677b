"""The pages of the site, as a browser shows them."""

import re
import subprocess
from pathlib import Path

import pytest
from selenium.webdriver.common.keys import Keys

from browser import Browser
from rig.paths import PROJECT
from rig.served_site import ServedSite, served_site

# Path that the program asks for -> heading of the page that it must lead to.
PAGES = {
    "/": "A small Windows program that makes tones",
    "/contact-us": "Contact",
    "/donate": "Donate",
    "/information.html": "Tonmira news",
    "/download": "Download",
    "/guide": "Guide",
    "/handleiding": "Handleiding",
}
DUTCH = ["/handleiding"]
FILES = ["index.html", "information.html", "contact-us/index.html", "donate/index.html",
         "download/index.html", "guide/index.html", "handleiding/index.html"]
SCREENS = PROJECT / "out" / "screens"
DESKTOP, PHONE = (1280, 800), (360, 740)
CURRENT_VERSION = "2.3.6"


@pytest.mark.parametrize("name", FILES)
def test_its_html_is_valid(pages: Path, name: str) -> None:
    # The attribute that marks the current page in a menu is younger than this checker.
    check = subprocess.run(
        ["tidy", "-e", "-q", "--warn-proprietary-attributes", "no", pages / name],
        stdin=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True, check=False)
    assert (check.returncode, check.stderr) == (0, "")


@pytest.mark.parametrize(("path", "heading"), PAGES.items())
def test_the_paths_that_the_program_opens_are_pages(
        site: ServedSite, browser: Browser, path: str, heading: str) -> None:
    browser.open(site.base_url + path)
    assert browser.ask("return [...document.querySelectorAll('h1')].map(h => h.innerText)") == [
        heading]
    assert f"Tonmira {CURRENT_VERSION}" in str(browser.ask("return document.body.innerText"))
    assert "Tonmira" in browser.driver.title
    language = "nl" if path in DUTCH else "en"
    assert browser.ask("return document.documentElement.lang") == language


def test_every_link_leads_to_a_page_of_the_site_and_every_page_is_reached(
        site: ServedSite, browser: Browser) -> None:
    seen, waiting, elsewhere = set(), {site.base_url + "/"}, set()
    places: set[str] = set()
    wanted_places: set[str] = set()
    while waiting:
        page = waiting.pop()
        browser.open(page)
        assert browser.driver.current_url == page
        assert browser.ask("return document.querySelectorAll('h1').length") == 1
        seen.add(page)
        places |= {f"{page}#{name}" for name in browser.addresses("[id]", "id")}
        links = set(browser.addresses("a", "href"))
        wanted_places |= {link for link in links if "#" in link}
        links = {link.split("#")[0] for link in links}
        elsewhere |= {link for link in links if not link.startswith(site.base_url + "/")}
        waiting |= links - elsewhere - seen
    assert wanted_places <= places
    assert {page.removeprefix(site.base_url) for page in seen} == {
        "/", "/contact-us/", "/donate/", "/information.html", "/download/", "/guide/",
        "/handleiding/"}
    assert elsewhere == {"mailto:support@tonmira.example"}
    # 304: the browser asked whether a page that it had kept is still the same.
    assert {status for _, _, status in site.requests()} <= {200, 304}
    assert browser.complaints() == []


@pytest.mark.parametrize("path", PAGES)
def test_a_page_needs_no_script_and_nothing_from_elsewhere(
        site: ServedSite, browser: Browser, path: str) -> None:
    browser.open(site.base_url + path)
    assert browser.ask("return document.scripts.length") == 0
    loaded = browser.ask("return performance.getEntriesByType('resource').map(r => r.name)")
    assert isinstance(loaded, list) and loaded
    assert [name for name in loaded if not name.startswith(site.base_url + "/")] == []
    assert browser.ask("return [...document.images].every(i => i.complete && i.naturalWidth > 0)")


@pytest.mark.parametrize("name", FILES)
def test_what_someone_slips_into_a_page_is_neither_run_nor_fetched(
        tmp_path: Path, pages: Path, browser: Browser, name: str) -> None:
    with served_site(tmp_path) as other:
        foreign = (f'<script>document.title = "run"</script><script src="{other.base_url}/s.js">'
                   f'</script><img alt="" src="{other.base_url}/icon.png" onload="document.title='
                   f"'run'\"><link rel=\"stylesheet\" href=\"{other.base_url}/style.css\"></body>")
        page = (pages / name).read_text().replace("</body>", foreign)
        with served_site(tmp_path, {name: page.encode()}) as site:
            browser.open(f"{site.base_url}/{name}")
            assert "Tonmira" in browser.driver.title
        assert other.requests() == []
    assert len(browser.complaints()) >= 4


@pytest.mark.parametrize("path", PAGES)
@pytest.mark.parametrize("size", [PHONE, DESKTOP], ids=["phone", "desktop"])
@pytest.mark.parametrize("scheme", ["light", "dark"])
def test_a_page_is_readable_without_scrolling_sideways(
        site: ServedSite, browser: Browser, path: str, size: tuple[int, int],
        scheme: str) -> None:
    browser.look(*size, scheme)
    browser.open(site.base_url + path)
    name = path.strip("/").removesuffix(".html") or "home"
    browser.picture(SCREENS / f"site-{name}-{'phone' if size == PHONE else 'desktop'}-{scheme}.png")
    assert browser.ask("return document.documentElement.scrollWidth") == size[0]
    rightmost = browser.ask(
        "return Math.max(...[...document.querySelectorAll('body *')]"
        ".map(element => element.getBoundingClientRect().right))")
    assert rightmost <= size[0]
    small = browser.ask(
        "return [...document.querySelectorAll('p, li, a')].map(element =>"
        " parseFloat(getComputedStyle(element).fontSize)).filter(size => size < 14)")
    assert small == []
    contrast, text = browser.lowest_contrast()
    assert contrast >= 4.5, text


def test_light_and_dark_differ(site: ServedSite, browser: Browser) -> None:
    browser.open(site.base_url + "/")
    grounds = []
    for scheme in ("light", "dark"):
        browser.look(*DESKTOP, scheme)
        grounds.append(browser.ask("return getComputedStyle(document.body).backgroundColor"))
    assert grounds == ["rgb(243, 243, 243)", "rgb(32, 33, 36)"]


def test_the_tab_key_goes_through_every_link_and_shows_where_it_is(
        site: ServedSite, browser: Browser) -> None:
    browser.open(site.base_url + "/information.html")
    links = browser.addresses("a", "href")
    reached = []
    for _ in links:
        browser.driver.switch_to.active_element.send_keys(Keys.TAB)
        reached.append(browser.ask("return document.activeElement.href"))
        outline = browser.ask("return getComputedStyle(document.activeElement).outlineStyle")
        assert outline == "solid"
    assert reached == links


@pytest.mark.parametrize("path", PAGES)
def test_the_menu_marks_the_page_one_is_on(site: ServedSite, browser: Browser, path: str) -> None:
    browser.open(site.base_url + path)
    marked = browser.addresses("nav a[aria-current=page]", "href")
    assert marked == [browser.driver.current_url]


def test_pictures_have_a_text_and_keep_their_shape(site: ServedSite, browser: Browser) -> None:
    browser.look(*PHONE, "light")
    browser.open(site.base_url + "/")
    assert browser.ask("return [...document.images].every(i => i.hasAttribute('alt'))")
    shapes = browser.ask("return [...document.images].map(i =>"
                         " [i.naturalWidth / i.naturalHeight, i.width / i.height])")
    assert isinstance(shapes, list) and len(shapes) == 2
    for natural, shown in shapes:
        assert shown == pytest.approx(natural, rel=0.01)


@pytest.mark.parametrize("name", [*FILES, "style.css"])
def test_an_embedded_browser_of_old_can_read_it(pages: Path, name: str) -> None:
    text = (pages / name).read_bytes().decode("ascii")
    # The layout stands without what Internet Explorer 6 to 10 do not know, and no link begins at
    # the host's root: the site may lie in a folder.
    assert re.findall(r"var\(|display:\s*(?:grid|flex)|<script|href=\"/", text) == []
