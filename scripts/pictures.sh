#!/bin/bash
# Takes the pictures of every window for guide, site and README, in English and Dutch, of the program
# as it is built now: scripts/pictures.sh [FOLDER], without one where the guide has them. They are made
# small: a palette (without dithering), then the best packing.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/setup.sh

readonly folder=${1:-guide/pictures}

install_packages "${windows_packages[@]}" "${rig_packages[@]}" "${picture_packages[@]}"
heading 'Building Tonmira'
build windows

heading 'Taking the pictures'
taken=$(mktemp -d)
trap 'rm -rf "$taken"' EXIT
PYTHONPATH=tests "$python" -B -m rig.gallery "$taken"

heading 'Making them small'
mkdir -p "$folder"
for picture in "$taken"/*.png; do
  pngquant --nofs --strip --speed 1 --quality 95-100 --force --output "$picture" 128 "$picture"
  zopflipng -y "$picture" "$folder/$(basename "$picture")" >/dev/null
done
ls -l "$folder"
