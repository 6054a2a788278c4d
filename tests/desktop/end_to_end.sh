#!/usr/bin/env bash
# Starts the program on a display of its own with a window manager, types a line with real key events, and compares what
# is on the screen with the picture that the batch runner draws for the same line.
# Usage: end_to_end.sh ZERIMO ZERIMO-BATCH
zerimo=$1
batch=$2
width=1024
height=768
# The part of the surface that the title bar and the rows are sure to leave free.
part=1000x560+0+0
lines=('CS' 'HT' 'REPEAT 36 [REPEAT 4 [FD 40 RT 90] RT 10]')
. "$(dirname "$0")/display.sh"

start_program() {
  "$zerimo" &
  program=$!
  started+=("$program")
  within 20 find_window || fail "the window does not appear"
  within 20 has_focus || fail "the window does not get the focus"
}

find_window() {
  window=$(xdotool search --onlyvisible --name '^Zerimo' 2>/dev/null | tail -1)
  [ -n "$window" ]
}

has_focus() { [ "$(xdotool getwindowfocus 2>/dev/null)" = "$window" ]; }

type_line() {
  xdotool type --delay 12 -- "$1"
  xdotool key Return
}

shows_details() { xdotool getwindowname "$window" | grep -q 'Pen State:Pen Down'; }

draw_with_batch() {
  printf '%s\n' "${lines[@]}" >"$work/session"
  "$batch" --screen "${width}x${height}" --picture "$work/expected.png" "$work/session" >/dev/null
  convert "$work/expected.png" -crop "$part" +repage "$work/expected_part.png"
}

screen_is_as_expected() {
  import -silent -window "$window" "$work/screen.png"
  convert "$work/screen.png" -crop "$part" +repage "$work/screen_part.png"
  differing=$(compare -metric AE "$work/expected_part.png" "$work/screen_part.png" null: 2>&1 || true)
  [ "$differing" = 0 ]
}

start_display $width $height
start_window_manager
start_program
for line in "${lines[@]}"; do type_line "$line"; done
type_line 'SHOW DETAILS'
within 30 shows_details || fail "the line does not come to its end"
draw_with_batch
[ "$(convert "$work/expected_part.png" -format %k info:)" -gt 1 ] || fail "the batch runner has drawn nothing"
within 10 screen_is_as_expected || fail "$differing pixels differ from the expected picture"

type_line 'BYE'
sleep 0.5
xdotool key Return
status=0
wait "$program" || status=$?
[ "$status" = 0 ] || fail "the program ended with status $status"
echo "the screen shows the expected picture, and the program ended as asked"
