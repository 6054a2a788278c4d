# Shared by the tests on a real display. Usage: . display.sh
. "$(dirname "${BASH_SOURCE[0]}")/../support/checks.sh"

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
mkdir -m 700 "$work/home"
export HOME=$work/home XDG_RUNTIME_DIR=$work/home
export LSAN_OPTIONS=suppressions=$here/other_libraries.leaks:print_suppressions=0

has_window_manager() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }

start_window_manager() {
  openbox >/dev/null 2>&1 &
  started+=($!)
  within 20 has_window_manager || fail "the window manager does not start"
}
