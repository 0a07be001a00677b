"""Every program that is released is signed, and only by whom it should be."""

import subprocess
from pathlib import Path

import pytest

from conftest import DIST, TEST_CERTIFICATE, Kind, programs_of, script, signed_by

PASSWORD = "a password, with a blank"


@pytest.fixture
def program(kind: Kind, tmp_path: Path) -> Path:
    """A copy of one that was built."""
    copy = tmp_path / "play16.exe"
    copy.write_bytes((kind.build / "play16.exe").read_bytes())
    return copy


@pytest.fixture(scope="module")
def real_certificate(tmp_path_factory: pytest.TempPathFactory) -> Path:
    """A folder with what stands in for the maker's: an authority in ca.pem, and its certificate
    with the key in own.p12."""
    folder = tmp_path_factory.mktemp("certificate")

    def openssl(*arguments: str) -> None:
        subprocess.run(["openssl", *arguments], cwd=folder, check=True, capture_output=True)

    openssl("req", "-x509", "-newkey", "rsa:2048", "-nodes", "-keyout", "ca.key", "-out", "ca.pem",
            "-subj", "/CN=An authority", "-days", "10000")
    openssl("req", "-newkey", "rsa:2048", "-nodes", "-keyout", "own.key", "-out", "own.csr",
            "-subj", "/CN=The maker")
    (folder / "use").write_text("extendedKeyUsage=codeSigning\n")
    openssl("x509", "-req", "-in", "own.csr", "-CA", "ca.pem", "-CAkey", "ca.key",
            "-CAcreateserial", "-extfile", "use", "-days", "10000", "-out", "own.pem")
    (folder / "password").write_text(PASSWORD)
    openssl("pkcs12", "-export", "-in", "own.pem", "-inkey", "own.key", "-out", "own.p12",
            "-passout", "file:password")
    return folder


def test_every_program_of_the_archive_is_signed(portable: Path) -> None:
    programs = programs_of(portable)
    assert len(programs) == 7
    assert [path.name for path in programs if not signed_by(TEST_CERTIFICATE, path)] == []


def test_every_program_in_the_installer_is_signed_and_so_is_the_uninstaller(
        kind: Kind, installed: Path) -> None:
    programs = programs_of(installed)
    assert len(programs) >= 8
    assert any("uninst" in path.name.lower() for path in programs)
    assert [path.name for path in programs if not signed_by(TEST_CERTIFICATE, path)] == []
    assert signed_by(TEST_CERTIFICATE, DIST / kind.setup)


def test_the_test_certificate_says_what_it_is() -> None:
    text = subprocess.run(["openssl", "x509", "-in", TEST_CERTIFICATE, "-noout", "-subject"],
                          check=True, stdout=subprocess.PIPE, text=True).stdout
    assert "TEST CERTIFICATE of Tonmira, never to be trusted" in text


def test_the_test_certificate_and_its_key_are_the_same_everywhere(tmp_path: Path) -> None:
    for name in ("a", "b"):
        assert script("make_test_certificate.sh", tmp_path / name).returncode == 0
    for name in ("certificate.pem", "key.pem"):
        assert (tmp_path / "a" / name).read_bytes() == (tmp_path / "b" / name).read_bytes()
    assert (tmp_path / "a" / "certificate.pem").read_bytes() == TEST_CERTIFICATE.read_bytes()


def test_the_certificate_that_the_environment_names_signs(
        program: Path, real_certificate: Path) -> None:
    own = {"TONMIRA_SIGN_PKCS12": str(real_certificate / "own.p12"),
           "TONMIRA_SIGN_PASSWORD_FILE": str(real_certificate / "password"),
           "TONMIRA_SIGN_CA": str(real_certificate / "ca.pem")}
    run = script("sign.sh", program, **own)
    assert (run.returncode, run.stderr) == (0, "")
    assert script("verify.sh", program, **own).returncode == 0
    assert signed_by(real_certificate / "ca.pem", program)
    assert not signed_by(TEST_CERTIFICATE, program)
    assert script("verify.sh", program).returncode == 1


def test_a_wrong_password_signs_nothing(program: Path, real_certificate: Path,
                                        tmp_path: Path) -> None:
    before = program.read_bytes()
    (tmp_path / "wrong").write_text("another")
    run = script("sign.sh", program, TONMIRA_SIGN_PKCS12=str(real_certificate / "own.p12"),
                 TONMIRA_SIGN_PASSWORD_FILE=str(tmp_path / "wrong"))
    assert run.returncode == 1 and f"not signed: {program}" in run.stderr
    assert program.read_bytes() == before
    assert sorted(path.name for path in tmp_path.iterdir()) == ["play16.exe", "wrong"]


def test_an_unsigned_program_fails(program: Path) -> None:
    run = script("verify.sh", program)
    assert run.returncode == 1 and f"not signed by us: {program}" in run.stderr


def test_a_program_that_was_changed_since_fails(program: Path) -> None:
    assert script("sign.sh", program).returncode == 0
    assert script("verify.sh", program).returncode == 0
    changed = bytearray(program.read_bytes())
    changed[3000] ^= 1
    program.write_bytes(changed)
    assert script("verify.sh", program).returncode == 1
