# Shared by the tests on a real display: a display of their own with a window manager, ended and cleaned up at the end.
# Usage: . display.sh WIDTH HEIGHT
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
work=$(mktemp -d)
chmod 700 "$work"
started=()
finish() {
  # The last started ends first. Each is waited for: a display that ends late takes its successor's socket with it.
  for ((i = ${#started[@]} - 1; i >= 0; i--)); do
    kill "${started[i]}" 2>/dev/null || true
    wait "${started[i]}" 2>/dev/null || true
  done
  rm -rf "$work"
}
trap finish EXIT

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

has_window_manager() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }

# Without -noreset the display would drop a client that comes while the last other one leaves.
Xvfb -displayfd 3 -noreset -screen 0 "$1x$2x24" 3>"$work/display" 2>/dev/null &
started+=($!)
within 20 test -s "$work/display" || fail "the display does not start"
DISPLAY=:$(cat "$work/display")
export DISPLAY HOME=$work XDG_RUNTIME_DIR=$work QT_QPA_PLATFORM=xcb
export LSAN_OPTIONS=suppressions=$here/other_libraries.leaks:print_suppressions=0
openbox 2>/dev/null &
started+=($!)
within 20 has_window_manager || fail "the window manager does not start"
