"""The manifests are what winget's schema 1.12.0 asks for, and describe what is released.

The schema is at https://aka.ms/winget-manifest.installer.1.12.0.schema.json, and so on by type;
what of it concerns these manifests is written down here.
"""

import hashlib
import re

import pytest
import yaml

from conftest import DIST, KINDS, PACKAGING, VERSION

WINGET = DIST / "winget"
NAME = "ZevrinSoftware.Tonmira"
SITE = "https://www.tonmira.example"

IDENTIFIER = r"[^\s\\/:*?\"<>|.\x01-\x1f]{1,32}(\.[^\s\\/:*?\"<>|.\x01-\x1f]{1,32}){1,7}"
LOCALE = r"[a-zA-Z]{2,3}(-[a-zA-Z]{1,8})*"
URL = r"[Hh][Tt][Tt][Pp][Ss]?://.{1,2040}"
TEXT = r"(?s:.{3,256})"
TAG = r".{1,40}"
# Name of a field -> what its text, or each of its texts, must match.
COMMON = {"PackageIdentifier": IDENTIFIER, "PackageVersion": r"[^\\/:*?\"<>|\x01-\x1f]{1,128}",
          "ManifestVersion": r"1\.12\.0"}
LOCAL = COMMON | {
    "PackageLocale": LOCALE, "Publisher": TEXT, "PublisherUrl": URL, "PublisherSupportUrl": URL,
    "PackageName": TEXT, "PackageUrl": URL, "License": TEXT, "Copyright": TEXT,
    "ShortDescription": TEXT, "Description": r"(?s:.{3,10000})", "Tags": TAG,
    "ReleaseNotesUrl": URL}
# End of the file's name -> its fields, and those of them that must be there.
MANIFESTS = {
    "": (COMMON | {"DefaultLocale": LOCALE, "ManifestType": "version"},
         {*COMMON, "DefaultLocale", "ManifestType"}),
    ".installer": (
        COMMON | {
            "ManifestType": "installer", "Platform": r"Windows\.(Desktop|Universal)",
            "InstallerType": "nullsoft", "Scope": "user|machine",
            "InstallModes": "interactive|silent|silentWithProgress",
            "InstallerSwitches": {"Silent": r"/\S.*", "SilentWithProgress": r"/\S.*",
                                  "InstallLocation": r"/D=<INSTALLPATH>"},
            "UpgradeBehavior": "install|uninstallPrevious|deny",
            "FileExtensions": r"[^.\\/:]{1,64}",
            "ProductCode": r".{1,255}",
            "AppsAndFeaturesEntries": {"DisplayName": TEXT, "Publisher": TEXT,
                                       "DisplayVersion": r"\S{1,128}", "ProductCode": r".{1,255}"},
            "ReleaseDate": r"\d{4}-\d\d-\d\d",
            "ExpectedReturnCodes": {
                "InstallerReturnCode": r"[1-9]\d*",
                "ReturnResponse": "packageInUse|installInProgress|cancelledByUser"},
            "Installers": {"Architecture": "x86|x64", "InstallerUrl": URL,
                           "InstallerSha256": r"[A-Fa-f0-9]{64}"}},
        {*COMMON, "ManifestType", "InstallerType", "Installers"}),
    ".locale.en-US": (
        LOCAL | {"ManifestType": "defaultLocale", "Moniker": TAG},
        {*COMMON, "ManifestType", "PackageLocale", "Publisher", "PackageName", "License",
         "ShortDescription"}),
    ".locale.nl-NL": (
        LOCAL | {"ManifestType": "locale"}, {*COMMON, "ManifestType", "PackageLocale"}),
}


def load(end: str) -> dict:
    # Every scalar stays the text that is written there.
    return yaml.load((WINGET / f"{NAME}{end}.yaml").read_text("utf-8"), yaml.BaseLoader)


def complaints(value: object, rule: str | dict, name: str = "") -> list[str]:
    if isinstance(value, list):
        return [text for entry in value for text in complaints(entry, rule, name)] + (
            [] if value and len(value) == len({str(entry) for entry in value})
            else [f"{name}: empty, or something twice"])
    if isinstance(value, dict):
        if not isinstance(rule, dict):
            return [f"{name}: has fields"]
        return [text for field, inner in value.items()
                for text in (complaints(inner, rule[field], f"{name}.{field}")
                             if field in rule else [f"{name}.{field}: unknown"])]
    if not isinstance(rule, str) or not re.fullmatch(rule, str(value)):
        return [f"{name}: {value!r}"]
    return []


def test_there_is_a_manifest_of_each_type() -> None:
    assert {path.name for path in WINGET.iterdir()} == {f"{NAME}{end}.yaml" for end in MANIFESTS}


@pytest.mark.parametrize("end", MANIFESTS)
def test_a_manifest_has_the_fields_of_its_type(end: str) -> None:
    fields, required = MANIFESTS[end]
    manifest = load(end)
    assert complaints(manifest, fields) == []
    assert required - manifest.keys() == set()
    assert (manifest["PackageIdentifier"], manifest["PackageVersion"]) == (NAME, VERSION)


@pytest.mark.parametrize("end", MANIFESTS)
def test_its_first_line_names_the_schema(end: str) -> None:
    kind = MANIFESTS[end][0]["ManifestType"]
    assert (WINGET / f"{NAME}{end}.yaml").read_text("utf-8").splitlines()[0] == (
        "# yaml-language-server: "
        f"$schema=https://aka.ms/winget-manifest.{kind}.1.12.0.schema.json")


def test_the_installers_are_the_ones_of_this_release() -> None:
    assert load(".installer")["Installers"] == [
        {"Architecture": name, "InstallerUrl": f"{SITE}/downloads/{kind.setup}",
         "InstallerSha256": hashlib.sha256((DIST / kind.setup).read_bytes()).hexdigest().upper()}
        for name, kind in KINDS.items()]


@pytest.mark.parametrize(("field", "value"), [
    ("Scope", "everybody"), ("Surprise", "yes"), ("FileExtensions", [".tnf"]),
    ("FileExtensions", ["tnf", "tnf"]), ("InstallModes", []),
    ("Installers", [{"Architecture": "x64", "InstallerSha256": "12"}]),
    ("InstallerSwitches", {"Quiet": "/S"})])
def test_a_wrong_field_is_seen(field: str, value: object) -> None:
    assert complaints({field: value}, MANIFESTS[".installer"][0]) != []


def test_the_installer_does_what_the_manifest_says() -> None:
    """winget knows the program again by its entry in the list of programs, and what went wrong
    by the exit code."""
    texts = "\n".join(path.read_text("utf-8") for path in PACKAGING.glob("*.ns[hi]"))
    defined = dict(re.findall(r'^!define (\w+) "?([^"\n]*?)"?$', texts, re.MULTILINE))
    manifest = load(".installer")
    assert manifest["ProductCode"] == defined["APPS_KEY"].rsplit("\\", 1)[1]
    assert manifest["AppsAndFeaturesEntries"] == [
        {"DisplayName": "Tonmira", "Publisher": defined["PUBLISHER"],
         "DisplayVersion": VERSION, "ProductCode": manifest["ProductCode"]}]
    assert {code["ReturnResponse"]: code["InstallerReturnCode"]
            for code in manifest["ExpectedReturnCodes"]} == {
        "cancelledByUser": "1", "packageInUse": defined["IN_USE"],
        "installInProgress": defined["OTHER_SETUP"]}
