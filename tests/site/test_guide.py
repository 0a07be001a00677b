"""The guide in both languages, and the help that is made of it: whole, true to the program's names,
readable by itself."""

import html
import re
import shutil
import struct
import subprocess
from pathlib import Path

import pytest
from selenium.webdriver.common.keys import Keys

from browser import Browser
from rig.paths import PROJECT

GUIDE = PROJECT / "guide"
SCREENS = PROJECT / "out" / "screens"
LANGUAGES = ["en", "nl"]
DESKTOP, PHONE = (1280, 800), (360, 740)
CHAPTERS = ["start", "modes", "high", "sound", "slider", "microphone", "morse", "programs",
            "hearing", "settings", "commands", "files", "privacy", "problems", "removal"]
PICTURES = ["about", "custom", "error", "first-run", "hearing-first", "hearing-question",
            "hearing-result", "help", "main", "morse", "player", "playing", "update"]
# What the guide sets in bold and Windows says, or nobody.
NOT_THE_PROGRAMS = {
    "en": {"Mind your ears.", "Apps", "Uninstall", "Properties", "Compatibility"},
    "nl": {"Denk aan uw oren.", "Apps", "Verwijderen", "Eigenschappen", "Compatibiliteit"},
}
# Where the program has its words, beside its language files.
WORDS = ["lang/languages.cpp", "hearing/texts.cpp", "program_files/form9.h", "settings/form6.h",
         "app/form1_controls.h", "app/form2.h"]


def text_of(language: str) -> str:
    return (GUIDE / f"{language}.html").read_text()


def plain(fragment: str) -> str:
    return " ".join(html.unescape(re.sub("<[^>]*>", "", fragment)).split())


@pytest.fixture(scope="module")
def helps(tmp_path_factory: pytest.TempPathFactory) -> Path:
    """A folder with the help as it ships."""
    folder = tmp_path_factory.mktemp("help")
    for language in LANGUAGES:
        subprocess.run(
            ["cmake", f"-DGUIDE={GUIDE}", f"-DSTYLE={PROJECT / 'site' / 'style.css'}",
             f"-DLANGUAGE={language}", "-DVERSION=2.3.6",
             f"-DTARGET={folder / f'guide_{language}.html'}",
             "-P", PROJECT / "cmake" / "make_help.cmake"], check=True)
    shutil.copytree(GUIDE / "pictures", folder / "pictures")
    return folder


@pytest.mark.parametrize("language", LANGUAGES)
def test_its_chapters_are_those_of_the_other_language(language: str) -> None:
    headings = re.findall(r'<h2 id="(.*?)">(.*?)</h2>', text_of(language))
    assert [name for name, _ in headings] == CHAPTERS
    contents = re.findall(r'<li><a href="#(.*?)">(.*?)</a></li>', text_of(language))
    assert contents == headings
    assert len(set(re.findall(r' id="(.*?)"', text_of(language)))) == len(CHAPTERS)


def test_each_language_has_what_the_other_has() -> None:
    def shape(language: str) -> list[str]:
        text = re.sub(rf"-{language}\.png", ".png", text_of(language))
        return re.findall(r"<(?:h[123]|li|dt|pre|p)\b|pictures}[a-z-]+\.png", text)

    assert shape("en") == shape("nl")


@pytest.mark.parametrize("language", LANGUAGES)
def test_links_within_it_lead_to_a_chapter(language: str) -> None:
    links = re.findall(r'href="(.*?)"', text_of(language))
    assert [link for link in links if link.removeprefix("#") not in CHAPTERS] == []


@pytest.mark.parametrize("language", LANGUAGES)
def test_names_in_bold_are_the_programs(language: str) -> None:
    words = (PROJECT / "resources" / "languages" / f"{language}.txt").read_text().splitlines()
    words = [word.strip('"').replace("&", "") for word in words]
    for source in WORDS:
        words += re.findall(r'"([^"\n]*)"', (PROJECT / source).read_text())
    # Of a longer caption, as "Pitch (Hertz):", the guide gives the beginning.
    words += [re.split(r"[,(]", word)[0] for word in words]
    known = {word.rstrip(".:, ") for word in words} | NOT_THE_PROGRAMS[language]
    named = {plain(name) for name in re.findall("<b>(.*?)</b>", text_of(language), re.DOTALL)}
    assert {name for name in named if name.rstrip(".") not in known and name not in known} == set()
    modes = re.findall("<dt>(.*?)</dt>", text_of(language))[:9]
    start = words.index("<1>")
    assert modes == [word for word in words[start + 1:] if word and not word.startswith("#")][:9]


@pytest.mark.parametrize("language", LANGUAGES)
def test_messages_in_quotation_marks_are_the_programs(language: str) -> None:
    sources = "".join(path.read_text() for folder in ("app", "display", "online", "program_files",
                                                      "settings")
                      for path in sorted((PROJECT / folder).iterdir())
                      if path.suffix in (".cpp", ".h"))
    # A literal of several lines is one text; the quotation marks in texts are escaped.
    sources = re.sub(r'"\s+"', "", sources).replace('\\"', '"')
    text = re.sub("<pre>.*?</pre>|<code>.*?</code>", "", text_of(language), flags=re.DOTALL)
    quoted = {plain(message) for message in re.findall("&quot;(.*?)&quot;", text, re.DOTALL)}
    assert len(quoted) >= 8
    assert {message for message in quoted - {"ANSI"} if message not in sources} == set()


@pytest.mark.parametrize("language", LANGUAGES)
def test_pictures_are_there_as_large_as_the_text_says_and_described(language: str) -> None:
    found = re.findall(r'<img src="\${pictures}(.*?)" width="(\d+)" height="(\d+)"\s+alt="(.*?)">',
                       text_of(language))
    assert len(found) == text_of(language).count("<img")
    for name, width, height, description in found:
        assert name.endswith(f"-{language}.png")
        picture = (GUIDE / "pictures" / name).read_bytes()
        assert struct.unpack(">II", picture[16:24]) == (int(width), int(height)), name
        assert len(description) > 30, name


def test_there_is_a_picture_of_every_window_in_both_languages_and_all_are_small() -> None:
    pictures = {path.name: path.stat().st_size for path in (GUIDE / "pictures").iterdir()}
    assert sorted(pictures) == sorted(
        f"{name}-{language}.png" for name in PICTURES for language in LANGUAGES)
    assert {name: size for name, size in pictures.items() if size > 12000} == {}


@pytest.mark.parametrize("language", LANGUAGES)
def test_the_help_is_valid_and_says_its_version(helps: Path, language: str) -> None:
    path = helps / f"guide_{language}.html"
    check = subprocess.run(["tidy", "-e", "-q", path], stdin=subprocess.DEVNULL,
                           stderr=subprocess.PIPE, text=True, check=False)
    assert (check.returncode, check.stderr) == (0, "")
    text = path.read_bytes().decode("ascii")
    assert text.count("Tonmira 2.3.6") >= 3
    assert "${" not in text
    assert text_of(language).split("\n", 3)[3].split("</ul>")[0].replace(
        "${pictures}", "pictures/") in text


@pytest.mark.parametrize("scheme", ["light", "dark"])
@pytest.mark.parametrize("size", [PHONE, DESKTOP], ids=["phone", "desktop"])
@pytest.mark.parametrize("language", LANGUAGES)
def test_the_help_is_readable_without_a_network(
        helps: Path, browser: Browser, language: str, size: tuple[int, int], scheme: str) -> None:
    browser.look(*size, scheme)
    address = (helps / f"guide_{language}.html").as_uri()
    browser.open(address)
    browser.picture(SCREENS / f"help-{language}-{'phone' if size == PHONE else 'desktop'}"
                              f"-{scheme}.png")
    assert browser.ask("return document.documentElement.lang") == language
    assert browser.ask("return document.scripts.length") == 0
    fetched = browser.ask("return [...document.querySelectorAll('[src], link, iframe, object')]"
                          ".map(element => element.src || element.tagName)")
    assert isinstance(fetched, list) and len(fetched) == 12
    assert [name for name in fetched if not name.startswith(helps.as_uri() + "/pictures/")] == []
    assert re.findall(r"url\(|@import", browser.driver.page_source) == []
    assert browser.ask("return [...document.images].every(i => i.complete && i.naturalWidth > 0)")
    assert browser.ask("return document.documentElement.scrollWidth") == size[0]
    contrast, text = browser.lowest_contrast()
    assert contrast >= 4.5, text
    levels = browser.ask("return [...document.querySelectorAll('h1, h2, h3')]"
                         ".map(h => Number(h.tagName[1]))")
    assert isinstance(levels, list) and levels.count(1) == 1
    assert all(after - before <= 1 for before, after in zip(levels, levels[1:]))
    assert browser.complaints() == []


def test_the_contents_are_reached_by_the_keyboard(helps: Path, browser: Browser) -> None:
    browser.open((helps / "guide_en.html").as_uri())
    for chapter in CHAPTERS:
        browser.driver.switch_to.active_element.send_keys(Keys.TAB)
        assert browser.ask("return document.activeElement.hash") == "#" + chapter
        outline = browser.ask("return getComputedStyle(document.activeElement).outlineStyle")
        assert outline == "solid"
    browser.driver.switch_to.active_element.send_keys(Keys.ENTER)
    assert browser.ask("return location.hash") == "#removal"


def test_it_prints_as_dark_text_on_white(helps: Path, browser: Browser) -> None:
    browser.look(*DESKTOP, "dark")
    browser.open((helps / "guide_en.html").as_uri())
    browser.driver.execute_cdp_cmd("Emulation.setEmulatedMedia", {
        "media": "print", "features": [{"name": "prefers-color-scheme", "value": "dark"}]})
    try:
        assert browser.ask("return getComputedStyle(document.body).backgroundColor") == (
            "rgb(255, 255, 255)")
        assert browser.ask("return getComputedStyle(document.body).color") == "rgb(26, 26, 26)"
    finally:
        browser.driver.execute_cdp_cmd("Emulation.setEmulatedMedia", {"media": ""})
