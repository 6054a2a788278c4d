# Shared by the tests that are shell scripts: a temporary folder, processes that end with the test, failing with a message,
# and a display of its own. Usage: . checks.sh
set -euo pipefail

work=$(mktemp -d)
chmod 755 "$work"
# The processes that end with the test: started+=($!) after each.
started=()
finish() {
  # The last started ends first.
  for ((i = ${#started[@]} - 1; i >= 0; i--)); do end_process "${started[i]}"; done
  rm -rf "$work"
}
trap finish EXIT

# end_process PROCESS: ends the process and waits for it: a display that ends late takes its successor's socket with it.
end_process() {
  kill "$1" 2>/dev/null || true
  wait "$1" 2>/dev/null || true
}

fail() {
  echo "$1" >&2
  exit 1
}

# within SECONDS COMMAND...: repeats the command until it succeeds.
within() {
  local end=$((SECONDS + $1))
  shift
  until "$@"; do
    [ "$SECONDS" -lt "$end" ] || return 1
    sleep 0.1
  done
}

# start_display WIDTH HEIGHT: for the windows that are started from now on. Without -noreset it would drop a client that
# comes while the last other one leaves.
start_display() {
  rm -f "$work/display"
  Xvfb -displayfd 3 -noreset -screen 0 "$1x$2x24" 3>"$work/display" 2>/dev/null &
  started+=($!)
  within 30 test -s "$work/display" || fail "the display does not start"
  DISPLAY=:$(cat "$work/display")
  # No session bus: what is on the screen must not depend on the desktop that the test is started from.
  export DISPLAY QT_QPA_PLATFORM=xcb DBUS_SESSION_BUS_ADDRESS=disabled:
}
