# What the scripts of this folder know of the checkout. Sourced, with "set -euo pipefail".
#
# Every time that is stored in something released is SOURCE_DATE_EPOCH, by default that of the commit.
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
version=$(sed -nE 's/^project\(Tonmira VERSION ([0-9.]+) .*/\1/p' "$root/CMakeLists.txt")
if [[ -z ${SOURCE_DATE_EPOCH:-} ]]; then
  SOURCE_DATE_EPOCH=$(git -c safe.directory="$root" -C "$root" log -1 --format=%ct)
fi
export SOURCE_DATE_EPOCH TZ=UTC LC_ALL=C.UTF-8
