#!/bin/bash
# Tests of the real program, each worker with a rig of its own: scripts/real_tests.sh [WORD] [pytest's
# options]. WORD chooses tests by a part of their names. TONMIRA_RIGS is the number of rigs.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

readonly rigs=${TONMIRA_RIGS:-2}
# These keep a processor busy for a minute, at the priority of a rig: nobody should listen beside them.
readonly busy=(tests/real/test_random_user.py tests/real/test_samples.py
  tests/real/test_surroundings.py)
# These compile installers, and listen to nothing.
readonly installer=(tests/real/test_setup.py tests/real/test_setup_by_hand.py
  tests/real/test_setup_cut.py)
# The longest begin, so that the rigs end together.
readonly longest=(tests/real/test_hearing.py tests/real/test_tones.py tests/real/test_player.py
  tests/real/test_display.py)
readonly no_tests_chosen=5

options=(-q -p no:cacheprovider --durations=5 --dist loadfile)
if [[ ${1:-} && $1 != -* ]]; then
  options+=(-k "$1")
fi
(($# == 0)) || [[ $1 == -* ]] || shift

# What judges does not wait for what else the machine does, where that is allowed.
ahead=(nice -n -10)
"${ahead[@]}" true 2>/dev/null || ahead=()

export PYTHONDONTWRITEBYTECODE=1
chosen=0
failed=0

# tests PYTEST_ARGUMENT...
tests() {
  local code=0
  "${ahead[@]}" /usr/bin/python3 -m pytest "${options[@]}" "$@" || code=$?
  if ((code != no_tests_chosen)); then
    chosen=1
    ((code == 0)) || failed=1
  fi
}

tests -n "$rigs" "${busy[@]/#/--ignore=}" "${installer[@]/#/--ignore=}" "${longest[@]}" \
  tests/rig tests/real "$@"
tests -n "${#busy[@]}" "${busy[@]}" "$@"
tests -n "$rigs" "${installer[@]}" "$@"
((chosen == 1 && failed == 0))
