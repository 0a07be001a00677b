#!/bin/bash
# The tests that listen to the program, while other work keeps every processor busy:
# scripts/loaded_tests.sh [ROUNDS] [pytest's options]. Ends at the first round that fails.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

rounds=${1:-1}
(($# == 0)) || shift

burners=()
end_burners() { kill "${burners[@]}"; }
trap end_burners EXIT
for ((i = 0; i < $(nproc); i++)); do
  /usr/bin/python3 -c 'while True: pass' &
  burners+=("$!")
done

for ((round = 1; round <= rounds; round++)); do
  echo "Round $round of $rounds ($SECONDS s)"
  scripts/real_tests.sh -m listening "$@"
  for burner in "${burners[@]}"; do kill -0 "$burner"; done
done
echo "$rounds rounds passed ($SECONDS s)"
