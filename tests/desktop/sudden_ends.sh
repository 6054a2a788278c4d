#!/usr/bin/env bash
# Ends the real window in every way that leaves it no time, with a text in its editor. What had been kept before the end
# is offered at the next start, whole; a disk that is full changes nothing about it.
# Usage: sudden_ends.sh ZERIMO
. "$(dirname "$0")/display.sh"

# A copy, because the program keeps its files in its own folder.
mkdir "$work/app"
cp "$1" "$work/app/zerimo"

start_program() {
  # What a script starts beside itself would ignore SIGINT.
  env --default-signal=INT "$work/app/zerimo" 2>/dev/null &
  program=$!
  started+=("$program")
  within 30 has_keyboard || fail "$way: the window does not get the keyboard"
}
has_keyboard() { [ "$(xdotool getwindowfocus getwindowpid 2>/dev/null)" = "$program" ]; }

# type_text TEXT: as one line.
type_text() { xdotool type --delay 5 -- "$1"; }
is_kept() { grep -qsx "$1" "$HOME"/.local/share/Zerimo/rescued/*.ZRM; }
keep_text() {
  xdotool key F1
  type_text 'to kept'
  within 10 is_kept 'to kept' || fail "$way: the text is not kept"
}

end_program() {
  case $way in
    display) end_process "$display" ;;
    full-disk)
      # From now on, no write to a file succeeds.
      prlimit --pid "$program" --fsize=0:
      type_text ' lost'
      sleep 3
      kill -KILL "$program"
      ;;
    *) kill -s "$way" "$program" ;;
  esac
  wait "$program" 2>/dev/null || true
}

# The box has a button that keeps the text as a file beside the program.
is_offered() {
  xdotool key k
  [ -e "$work/app/Rescued.ZRM" ]
}

try_way() {
  rm -rf "$HOME/.local" "$work/app/Rescued.ZRM"
  start_program
  keep_text
  end_program
  [ "$way" != display ] || start_desktop
  start_program
  within 20 is_offered || fail "$way: the text is not offered"
  grep -qx 'to kept' "$work/app/Rescued.ZRM" || fail "$way: the text is not whole"
  end_process "$program"
}

start_desktop() {
  start_display 1024 768
  display=$!
  [ "$manager" = none ] || start_window_manager
}

for manager in openbox none; do
  start_desktop
  for way in TERM HUP INT KILL full-disk display; do try_way; done
done
echo "the text was offered after every end"
