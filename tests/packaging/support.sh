# Shared by the checks of the packages: a temporary folder, removed at the end, and failing with a message.
set -euo pipefail

work=$(mktemp -d)
started=
display=
finish() {
  end_process "$started"
  end_process "$display"
  rm -rf "$work"
}
trap finish EXIT

# end_process PROCESS: ends the process, if there is one, and waits for it.
end_process() {
  [ -n "$1" ] || return 0
  kill "$1" 2>/dev/null || true
  wait "$1" 2>/dev/null || true
}

fail() {
  echo "$1" >&2
  exit 1
}

# the_one PATTERN: the only file that matches.
the_one() {
  local found=($1)
  [ ${#found[@]} -eq 1 ] && [ -f "${found[0]}" ] || fail "not one file: $1"
  printf '%s\n' "${found[0]}"
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

# A display for the windows that are started from now on. Without -noreset it would drop a client that comes while the
# last other one leaves.
start_display() {
  Xvfb -displayfd 3 -noreset -screen 0 1024x768x24 3>"$work/display" 2>/dev/null &
  display=$!
  within 30 test -s "$work/display" || fail "the display does not start"
  DISPLAY=:$(cat "$work/display")
  export DISPLAY QT_QPA_PLATFORM=xcb DBUS_SESSION_BUS_ADDRESS=disabled:
}

# windows_stand NUMBER: whether that many windows and boxes of the program are visible.
windows_stand() { [ "$(xdotool search --onlyvisible --name '^Zerimo' 2>/dev/null | wc -l)" -eq "$1" ]; }

# links_lead_somewhere FOLDER: the pictures and files that its documents name are there.
links_lead_somewhere() {
  local page link links=0
  for page in "$1"/*.md; do
    for link in $(grep -oE '\]\([^)#:]+[)#]' "$page" | sed 's/^](//; s/.$//'); do
      [ -e "$1/$link" ] || fail "$page names $link, which is not there"
      links=$((links + 1))
    done
  done
  [ "$links" -gt 50 ] || fail "there are only $links links in $1"
}
