#!/usr/bin/env bash
# Starts the program on a display and a bus of their own, and asks it over the accessibility bus what a screen reader asks.
# Usage: screen_reader.sh ZERIMO PYTHON
. "$(dirname "$0")/display.sh"

start_display 1024 768
start_window_manager

export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
# shellcheck disable=SC2016
dbus-run-session -- bash -c '
  /usr/libexec/at-spi-bus-launcher --launch-immediately &
  bus=$!
  "$1" &
  program=$!
  status=0
  "$2" "$3/screen_reader.py" || status=$?
  kill $program $bus
  exit $status' screen_reader "$1" "$2" "$here" 2>"$work/errors" || fail "$(cat "$work/errors")"
