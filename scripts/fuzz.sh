#!/bin/bash
# Fuzzes the parsers, one after the other, and fails at a finding, which is left in out/fuzz/:
#   scripts/fuzz.sh [SECONDS]             all of them for so long together, a minute if not said
#   scripts/fuzz.sh runs COUNT [NAME...]  each, or the named ones, for so many executions
# "build/fuzz/tests/fuzz/NAME_fuzzer FILE" shows a finding again.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/setup.sh

readonly findings=out/fuzz

# The longest input worth making: a link of 1,500 characters, a hand-over file one byte too long.
declare -rA longest=(
  [check]=512 [field_reader]=512 [hand_over]=1100 [hearing]=64 [language_file]=2048 [rtttl]=512
  [settings]=1024 [tone_program]=512 [update_file]=2048 [wave_file]=512)

# Most faults are found with small tone programs, many times as quickly; one of 2,001 lines is this
# long and gets a run of its own.
readonly longest_program=8192

# More seeds than those in tests/fuzz/corpus/NAME.
declare -rA further_seeds=([check]=tests/fuzz/corpus/tone_program [tone_program]=resources/samples)

# fuzz NAME LIMIT MOST_BYTES
fuzz() {
  local name=$1 limit=$2 most_bytes=$3
  local found=build/fuzz/found/$name # what reaches new code beside the seeds
  heading "Fuzzing: $name, at most $most_bytes bytes"
  rm -rf "$found"
  mkdir -p "$found" "$findings"
  # Nothing should take much memory, nor seconds; a busy machine may stop for some.
  build/fuzz/tests/fuzz/"$name"_fuzzer "$limit" -max_len="$most_bytes" -timeout=60 \
    -rss_limit_mb=256 -malloc_limit_mb=16 -dict="tests/fuzz/$name.dict" \
    -artifact_prefix="$findings/$name-" -print_final_stats=1 \
    "$found" "tests/fuzz/corpus/$name" ${further_seeds[$name]:+"${further_seeds[$name]}"} \
    2>&1 | grep -vE '^#[0-9]+\s+(NEW|REDUCE|RELOAD) | # Uses: |^stat::(slowest|peak|new_units)' |
    sed '/^###### Recommended/,/^###### End/d'
}

# limit DIVISOR: what ends a run, where executions are counted after a DIVISOR-th of them.
limit() {
  if [[ -n $runs ]]; then
    echo "-runs=$((runs / $1))"
  else
    echo "-max_total_time=$(((seconds + ${#names[@]}) / (${#names[@]} + 1)))"
  fi
}

mapfile -t names < <(printf '%s\n' "${!longest[@]}" | sort)
seconds=60
runs=
if [[ ${1:-} == runs ]]; then
  runs=${2:?COUNT}
  if (($# > 2)); then names=("${@:3}"); fi
elif (($# > 0)); then
  seconds=$1
fi

build fuzz
# Freed memory is soon used again, and where it was taken is not kept: both cost more than the
# parsers.
export ASAN_OPTIONS=quarantine_size_mb=8:malloc_context_size=0
for name in "${names[@]}"; do
  fuzz "$name" "$(limit 1)" "${longest[$name]}"
  if [[ $name == tone_program ]]; then
    fuzz "$name" "$(limit 100)" "$longest_program"
  fi
done
