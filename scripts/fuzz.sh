#!/bin/bash
# Fuzzes the tone program parser: scripts/fuzz.sh [SECONDS], a minute if nothing is said. Fails at a
# finding, which is left in out/fuzz/; "build/fuzz/tests/fuzz/tone_program_fuzzer FILE" shows it again.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/setup.sh

readonly seconds=${1:-60}
readonly findings=out/fuzz
readonly found=build/fuzz/found # what reaches new code beside the seeds

build fuzz
rm -rf "$found"
mkdir -p "$found" "$findings"
# Freed memory is soon used again: the tables' pages cost more than the parser.
export ASAN_OPTIONS=quarantine_size_mb=8
# A file of 2,001 lines needs no more bytes, and nothing should take seconds or much memory.
build/fuzz/tests/fuzz/tone_program_fuzzer -max_total_time="$seconds" -max_len=8192 -timeout=10 \
  -rss_limit_mb=256 -malloc_limit_mb=16 -dict=tests/fuzz/tone_program.dict \
  -artifact_prefix="$findings/" -print_final_stats=1 "$found" tests/fuzz/corpus resources/samples \
  2>&1 | grep -vE '^#[0-9]+\s+(NEW|REDUCE|RELOAD) | # Uses: '
