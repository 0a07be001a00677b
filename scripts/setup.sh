# Shared by ./run and ./test: headings, the packages that a job needs, and the builds.
# Sourced from the project's folder; expects "set -euo pipefail".

readonly python=/usr/bin/python3

# What only looks at portable code.
readonly portable_packages=(clang cmake libclang-rt-dev libcli11-dev libgtest-dev make python3)

# What builds tnf, and looks at its manual page and completion.
readonly tools_packages=(bash-completion cmake g++ groff-base libcli11-dev make)

# What fuzzes it: Clang with libFuzzer.
readonly fuzz_packages=(clang cmake libclang-rt-dev make)

# What builds the program for Windows.
readonly windows_packages=(cmake g++-multilib g++-mingw-w64-i686-win32 g++-mingw-w64-x86-64-win32
  libcli11-dev make)

# What packs and signs it for those who use it, and looks at the result.
readonly release_packages=(7zip git gnutls-bin nsis openssl osslsigncode python3 python3-pytest
  python3-yaml)

# What runs it, listens to it and looks at it.
readonly rig_packages=(fonts-liberation imagemagick locales nsis openbox pulseaudio pulseaudio-utils
  python3-numpy python3-pytest python3-pytest-xdist wine wine64 xdotool xvfb)

# What makes pictures of it small.
readonly picture_packages=(pngquant zopfli)

# What is measured besides, and beside it.
readonly bench_packages=(ebook2cw libbenchmark-dev libsox-fmt-mp3 sox)

# What serves the site and looks at it.
readonly site_packages=(chromium chromium-driver cmake fonts-liberation nginx openssl python3-pytest
  python3-selenium tidy)

# What looks at the sources without running them.
readonly lint_packages=(clang clang-format clang-tidy cmake flake8 g++-mingw-w64-x86-64-win32 git
  libcli11-dev make shellcheck)

# What makes root filesystems, for other kinds of Wine.
readonly root_packages=(debootstrap)

heading() {
  printf '\n== %s\n' "$*"
}

fail() {
  printf 'error: %s\n' "$*" >&2
  exit 1
}

# Prints those of the named packages that are not installed.
missing_packages() {
  local package
  for package in "$@"; do
    if [[ $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) != installed ]]; then
      printf '%s\n' "$package"
    fi
  done
}

install_packages() {
  command -v dpkg-query >/dev/null || fail "this needs Debian's packages: $*"
  local missing
  mapfile -t missing < <(missing_packages "$@")
  if ((${#missing[@]} == 0)); then
    return
  fi
  heading "Installing ${missing[*]}"
  if ((EUID != 0)); then
    fail "not root; please install: apt-get install --no-install-recommends ${missing[*]}"
  fi
  export DEBIAN_FRONTEND=noninteractive
  apt-get update -qq
  apt-get install -y -qq --no-install-recommends "${missing[@]}" </dev/null
}

# Configures and builds one of the presets.
build() {
  cmake --preset "$1" && cmake --build --preset "$1"
}

# Whether there is a header of that name.
compiles() {
  echo "#if !__has_include(<$1>)
#error
#endif" | clang++ -fsyntax-only -x c++ - 2>/dev/null
}

# Prints what the portable build lacks, on any system, in one line; nothing when all is there.
missing_portable_tools() {
  local missing=()
  command -v cmake >/dev/null || missing+=(cmake)
  command -v make >/dev/null || missing+=(make)
  [[ -x $python ]] || missing+=(python3)
  if ! command -v clang++ >/dev/null; then
    missing+=(clang libclang-rt-dev)
  else
    compiles gtest/gtest.h || missing+=(libgtest-dev)
    compiles CLI/CLI.hpp || missing+=(libcli11-dev)
  fi
  echo "${missing[*]}"
}
