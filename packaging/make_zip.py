"""Makes the portable archive: packaging/make_zip.py FOLDER OUT

The archive holds one folder, by its name. The same files give the same bytes: names are sorted,
modes are fixed, and the time of everything is the environment's SOURCE_DATE_EPOCH, in UTC.
"""

import os
import sys
import time
import zipfile
from pathlib import Path

MODE = 0o100644  # a plain file, readable by all


def make_zip(folder: Path, out: Path, seconds: int) -> None:
    """`seconds` is the time of all files, since 1970."""
    moment = time.gmtime(seconds)[:6]
    files = sorted((path for path in folder.rglob("*") if path.is_file()),
                   key=lambda path: path.relative_to(folder).as_posix())
    with zipfile.ZipFile(out, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as archive:
        for path in files:
            name = f"{folder.name}/{path.relative_to(folder).as_posix()}"
            entry = zipfile.ZipInfo(name, moment)
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.create_system = 3  # Unix: the mode counts
            entry.external_attr = MODE << 16
            archive.writestr(entry, path.read_bytes(), compresslevel=9)


def main(arguments: list[str]) -> int:
    if len(arguments) != 2:
        print("usage: make_zip.py FOLDER OUT", file=sys.stderr)
        return 2
    make_zip(Path(arguments[0]), Path(arguments[1]), int(os.environ["SOURCE_DATE_EPOCH"]))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
