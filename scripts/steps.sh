# The steps of ./test: each has a name, a result and a time; a failure does not stop the others.
# Sourced from the project's folder after setup.sh.

readonly aside=build/steps # what the steps beside others print, and their results

step_results=() # a line for each step that has ended
passed_steps=0
failed_steps=0
beside_job= # the process that takes steps beside others, the leader of its own group
is_beside=  # set in that process

exec 3>&1 # where the steps beside others say at once how they ended

# record RESULT: a line that begins with "passed" or "FAILED".
record() {
  step_results+=("$1")
  if [[ $1 == passed* ]]; then
    passed_steps=$((passed_steps + 1))
  else
    failed_steps=$((failed_steps + 1))
  fi
  if [[ $is_beside ]]; then
    printf '%s\n' "$1" >>"$aside/results.txt"
    printf '\n%s, see %s\n' "$1" "$aside/log.txt" >&3
  fi
}

# step NAME COMMAND...: runs a step by itself. One that needs an earlier one's result finds it
# missing and fails, too.
step() {
  local name=$1 begin=$SECONDS result=passed
  shift
  heading "$name"
  "$@" </dev/null 3>&- || result=FAILED
  record "$result  $name ($((SECONDS - begin)) s)"
}

# skip NAME REASON: says aloud what cannot be done here.
skip() {
  heading "$1: skipped, $2"
  step_results+=("SKIPPED $1: $2")
}

# beside FUNCTION: takes the steps of a function beside those that follow, which go first. What they
# print is kept until "finish"; how each ended is said at once.
beside() {
  rm -rf "$aside"
  mkdir -p "$aside"
  touch "$aside/results.txt"
  set -m
  take_steps "$1" </dev/null >"$aside/log.txt" 2>&1 &
  set +m
  beside_job=$!
}

# take_steps FUNCTION
take_steps() {
  renice -n $(($(nice) + 10)) -p "$BASHPID" >/dev/null
  is_beside=1
  "$1"
  touch "$aside/ended"
}

# Waits for the steps beside, and shows what they printed.
finish() {
  local line
  [[ $beside_job ]] || return 0
  wait "$beside_job" || true
  beside_job=
  cat "$aside/log.txt"
  while read -r line; do record "$line"; done <"$aside/results.txt"
  [[ -e $aside/ended ]] || record "FAILED  The steps beside others broke off (0 s)"
}

# Nothing that was begun outlives the script.
end_beside() {
  if [[ $beside_job ]]; then kill -- "-$beside_job" 2>/dev/null || true; fi
}
trap end_beside EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

# Fails if a step did.
summary() {
  heading "Summary ($SECONDS s)"
  printf '%s\n' "${step_results[@]}"
  printf '%d passed, %d failed\n' "$passed_steps" "$failed_steps"
  ((failed_steps == 0))
}
