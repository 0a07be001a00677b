#!/bin/bash
# The real program and a user who does anything at all: scripts/random_user.sh [SECONDS [SEED...]],
# seven minutes of seeds 1, 2 and 3 where nothing is said.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

seconds=${1:-420}
seeds=("${@:2}")
((${#seeds[@]} > 0)) || seeds=(1 2 3)

export PYTHONDONTWRITEBYTECODE=1
failed=0
for seed in "${seeds[@]}"; do
  /usr/bin/python3 tests/real/random_user.py "$seed" "$seconds" || failed=1
done
exit "$failed"
