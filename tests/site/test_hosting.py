"""What else the program asks of the host: the update file, the connection test, the uploads."""

import http.client
import re
from urllib.parse import urlsplit

import pytest

from rig.paths import PROJECT
from rig.served_site import ServedSite

MIB = 1024 * 1024
BUILT_IN_SITE = "https://www.tonmira.example"


def ask(site: ServedSite, method: str, path: str, body: bytes | None = None,
        headers: dict[str, str] | None = None) -> tuple[int, bytes]:
    """One request with the path exactly as it is written here."""
    connection = http.client.HTTPConnection(urlsplit(site.base_url).netloc, timeout=20)
    try:
        connection.request(method, path, body, headers or {})
        response = connection.getresponse()
        return response.status, response.read()
    finally:
        connection.close()


def test_the_update_file_offers_nothing_to_the_current_version(site: ServedSite) -> None:
    status, text = ask(site, "GET", "/updatetonmira.txt")
    assert (status, text) == (200, b"236\r\n" + BUILT_IN_SITE.encode() + b"/\r\n")
    version = re.search(r"project\(Tonmira VERSION ([0-9.]+)",
                        (PROJECT / "CMakeLists.txt").read_text())
    assert version and version[1] == "2.3.6"


def test_the_link_in_the_update_file_is_a_page(site: ServedSite) -> None:
    link = ask(site, "GET", "/updatetonmira.txt")[1].decode().splitlines()[1]
    status, page = ask(site, "GET", link.removeprefix(BUILT_IN_SITE))
    assert status == 200
    assert b"Getting Tonmira" in page


def test_the_connection_test_is_a_small_file(site: ServedSite) -> None:
    status, content = ask(site, "GET", "/testcon.dat")
    assert status == 200
    assert 0 < len(content) < 100


@pytest.mark.parametrize("name", ["1.txt", "32767.txt", "4711error.log"])
def test_a_log_is_taken_byte_for_byte(site: ServedSite, name: str) -> None:
    content = bytes(range(256)) * 3
    assert ask(site, "PUT", "/usage/" + name, content)[0] == 201
    assert site.received() == {name: content}


def test_a_log_is_never_replaced_read_back_or_removed(site: ServedSite) -> None:
    ask(site, "PUT", "/usage/4711.txt", b"first")
    assert ask(site, "PUT", "/usage/4711.txt", b"second")[0] == 409
    for method in ("GET", "HEAD", "POST", "DELETE", "COPY", "MOVE", "MKCOL", "PROPFIND"):
        headers = {"Destination": site.base_url + "/usage/4712.txt"}
        assert ask(site, method, "/usage/4711.txt", headers=headers)[0] == 405, method
        assert ask(site, method, "/usage/4713.txt", headers=headers)[0] == 405, method
    assert site.received() == {"4711.txt": b"first"}


@pytest.mark.parametrize("path", [
    "/usage/", "/usage", "/usage/.txt", "/usage/error.log", "/usage/123456.txt", "/usage/1.html",
    "/usage/1.txt/", "/usage/1.txt.exe", "/usage/a1.txt", "/usage/1/2.txt", "/usage/-1.txt",
    "/usage/1.TXT", "/usage/1.txt%00.html", "/usage/1.txt%0a", "/usage/%2e%2e/index.html",
    "/usage/../index.html", "/usage/..%2findex.html", "/index.html", "/1.txt", "/new.html",
    "/updatetonmira.txt", "/donate/1.txt",
])
def test_nothing_is_taken_under_any_other_name(site: ServedSite, path: str) -> None:
    pages = {file: file.read_bytes() for file in site.pages.rglob("*") if file.is_file()}
    assert ask(site, "PUT", path, b"<html>")[0] in (400, 403, 404, 405)
    assert site.received() == {}
    assert {file: file.read_bytes() for file in site.pages.rglob("*") if file.is_file()} == pages


def test_a_log_of_one_mebibyte_is_taken_and_a_larger_one_is_not(site: ServedSite) -> None:
    assert ask(site, "PUT", "/usage/1.txt", b"x" * MIB)[0] == 201
    assert ask(site, "PUT", "/usage/2.txt", b"x" * (MIB + 1))[0] == 413
    assert list(site.received()) == ["1.txt"]


def test_the_uploads_cannot_be_listed(site: ServedSite) -> None:
    ask(site, "PUT", "/usage/4711.txt", b"log")
    for path in ("/usage", "/usage/", "/usage/?C=M", "/uploads/usage/", "/usage/4711"):
        status, page = ask(site, "GET", path)
        assert (status, b"4711" in page) == (404, False), path
