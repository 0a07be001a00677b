"""The program that sends the logs: where it sends them, and what bad servers can do to it."""

import hashlib
import socket
import ssl
import struct
import time
from collections.abc import Callable
from pathlib import Path

import pytest

from rig.bad_servers import babble, bad_server, drip, hang_up, silent
from rig.rig import Rig
from rig.served_site import ServedSite, served_site
from rig.uploading import ERROR, NOT_SENT, SENT, TOO_SLOW, Upsend
from rig.window import Driver


@pytest.mark.parametrize("form", ["ftp{rest}", "{address}", "http:{address}", "{base} ",
                                  "{base}?x=", "http://user:word@{address}",
                                  "h\uff54tp://{address}", "{base}/" + 200 * "a"])
def test_nonsense_for_a_site_reaches_no_server(
        upsend: Upsend, site: ServedSite, form: str) -> None:
    rest = site.base_url.removeprefix("http")
    upsend.hand_over("error.log", "4711error.log")
    assert upsend.run(form.format(base=site.base_url, rest=rest,
                                  address=rest.removeprefix("://"))) != SENT
    assert site.requests() == []


def test_a_site_in_a_folder_of_its_host_gets_the_log_there(rig: Rig, upsend: Upsend) -> None:
    rules = "location /tones/ { rewrite ^/tones(/.*)$ $1; }"
    with served_site(rig.folder, rules=rules) as site:
        upsend.hand_over("error.log", "4711error.log")
        assert upsend.run(site.base_url + "/tones/") == SENT
        assert site.received() == {"4711error.log": ERROR}
        assert site.requests() == [("PUT", "/tones/usage/4711error.log", 201)]


@pytest.mark.parametrize("status", [301, 302, 303, 307, 308])
def test_a_redirection_is_not_followed(
        rig: Rig, upsend: Upsend, site: ServedSite, status: int) -> None:
    # On this machine, "localhost" is another host than "127.0.0.1".
    target = site.base_url.replace("127.0.0.1", "localhost")
    with served_site(rig.folder, rules=f"location ~ ^/usage/ {{ return {status} "
                                       f"{target}$request_uri; }}") as redirecting:
        upsend.hand_over("error.log", "4711error.log")
        assert upsend.run(redirecting.base_url) == NOT_SENT
        assert redirecting.requests() == [("PUT", "/usage/4711error.log", status)]
    assert site.requests() == []


def test_a_name_that_is_taken_is_left_alone(upsend: Upsend, site: ServedSite) -> None:
    (site.uploads / "4711error.log").write_bytes(b"first")
    upsend.hand_over("error.log", "4711error.log")
    assert upsend.run(site.base_url) == NOT_SENT
    assert site.received() == {"4711error.log": b"first"}


def trust(rig: Rig, certificate: Path) -> None:
    """Puts a certificate among those that this user of Windows trusts."""
    der = ssl.PEM_cert_to_DER_cert(certificate.read_text())
    blob = struct.pack("<III", 32, 1, len(der)) + der  # one property: the certificate itself
    key = (r"HKEY_CURRENT_USER\Software\Microsoft\SystemCertificates\Root\Certificates" + "\\"
           + hashlib.sha1(der).hexdigest().upper())
    rig.run("wine", "reg", "add", key, "/v", "Blob", "/t", "REG_BINARY", "/d", blob.hex(), "/f")


def test_https_takes_a_good_certificate_and_no_other(rig: Rig, upsend: Upsend) -> None:
    with served_site(rig.folder, tls=True) as site:
        named = site.base_url.replace("127.0.0.1", "localhost")
        upsend.hand_over("error.log", "4711error.log")
        assert upsend.run(named) == NOT_SENT  # nobody vouches for it
        trust(rig, site.certificate)
        # Wine finds only host names in a certificate, no addresses: it is another host's.
        assert upsend.run(site.base_url) == NOT_SENT
        assert (site.received(), site.requests()) == ({}, [])
        assert upsend.run(named) == SENT
        assert site.received() == {"4711error.log": ERROR}


@pytest.mark.parametrize(("answer", "codes"), [
    (silent, [NOT_SENT, TOO_SLOW]), (drip, [NOT_SENT, TOO_SLOW]), (hang_up, [NOT_SENT]),
    # Wine takes what is no HTTP for a good answer of an ancient server.
    (babble, [NOT_SENT, SENT]),
])
def test_with_a_bad_server_it_ends_by_itself(
        upsend: Upsend, answer: Callable[[socket.socket], None], codes: list[int]) -> None:
    with bad_server(answer) as address:
        upsend.hand_over("error.log", "4711error.log")
        assert upsend.run(address) in codes


def test_with_nobody_listening_it_ends_by_itself(upsend: Upsend) -> None:
    with socket.socket() as unused:
        unused.bind(("127.0.0.1", 0))
        upsend.hand_over("error.log", "4711error.log")
        assert upsend.run(f"http://127.0.0.1:{unused.getsockname()[1]}") == NOT_SENT


def test_it_shows_no_window_while_it_waits(upsend: Upsend, driver: Driver) -> None:
    with bad_server(silent) as address:
        upsend.hand_over("error.log", "4711error.log")
        process = upsend.start(address)
        for _ in range(20):
            assert [w for w in driver.windows() if w.process == process and w.visible] == []
            time.sleep(0.05)
        assert driver.running(process)
        driver.ask("end", str(process))
        upsend.wait(process)
