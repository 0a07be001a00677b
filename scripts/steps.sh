# The steps of ./test: each has a name, a result and a time; a failure does not stop the others.
# Sourced from the project's folder after setup.sh.

readonly steps_folder=build/steps # what the steps beside each other print
readonly side_by_side=2

step_results=() # a line for each step that has ended
begun=()        # the names of the steps that were begun and not yet shown
begun_jobs=()   # their processes, each the leader of its own group
passed_steps=0
failed_steps=0

# record NAME EXIT_CODE SECONDS
record() {
  if (($2 == 0)); then
    passed_steps=$((passed_steps + 1))
    step_results+=("passed  $1 ($3 s)")
  else
    failed_steps=$((failed_steps + 1))
    step_results+=("FAILED  $1 ($3 s)")
  fi
}

# step NAME COMMAND...: runs a step by itself. One that needs an earlier one's result finds it
# missing and fails, too.
step() {
  local name=$1 begin=$SECONDS code=0
  shift
  heading "$name"
  "$@" </dev/null || code=$?
  record "$name" "$code" $((SECONDS - begin))
}

# skip NAME REASON: says aloud what cannot be done here.
skip() {
  heading "$1: skipped, $2"
  step_results+=("SKIPPED $1: $2")
}

# begin NAME COMMAND...: starts a step beside another, as soon as there is room for it. What it
# prints is kept until "finish".
begin() {
  local name=$1 log
  shift
  while (($(jobs -pr | wc -l) >= side_by_side)); do wait -n || true; done
  mkdir -p "$steps_folder"
  log=$steps_folder/${#begun[@]}
  set -m
  timed "$log" "$@" </dev/null >"$log.txt" 2>&1 &
  set +m
  begun+=("$name")
  begun_jobs+=("$!")
}

# timed LOG COMMAND...: leaves the exit code and the seconds in LOG.result.
timed() {
  local log=$1 begin=$SECONDS code=0
  shift
  rm -f "$log.result"
  "$@" || code=$?
  echo "$code $((SECONDS - begin))" >"$log.result"
}

# Waits for the steps that were begun, and shows them in their order.
finish() {
  local index code seconds
  for index in "${!begun[@]}"; do
    wait "${begun_jobs[index]}" || true
    heading "${begun[index]}"
    cat "$steps_folder/$index.txt"
    code=1 seconds=0
    read -r code seconds <"$steps_folder/$index.result" || true
    record "${begun[index]}" "$code" "$seconds"
  done
  begun=()
  begun_jobs=()
}

# Nothing that was begun outlives the script.
end_begun() {
  local job
  for job in "${begun_jobs[@]}"; do kill -- "-$job" 2>/dev/null || true; done
}
trap end_begun EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

# Fails if a step did.
summary() {
  heading "Summary ($SECONDS s)"
  printf '%s\n' "${step_results[@]}"
  printf '%d passed, %d failed\n' "$passed_steps" "$failed_steps"
  ((failed_steps == 0))
}
