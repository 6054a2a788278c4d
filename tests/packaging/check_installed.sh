#!/usr/bin/env bash
# An installed program works in the user's documents and leaves there what the user changed.
# Usage: check_installed.sh PACKAGES
. "$(dirname "$0")/support.sh"

deb=$(the_one "$1/*.deb")
dpkg-deb -x "$deb" "$work/root"
zerimo=$work/root/usr/bin/zerimo
export HOME="$work/Jörg Müller" LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen
unset XDG_CONFIG_HOME XDG_DOCUMENTS_DIR
mkdir -p "$HOME"
folder=$HOME/Documents/Zerimo

start_window() {
  (cd "$work" && exec "$zerimo" "$@") &
  window=$!
  started+=("$window")
}

end_window() { end_process "$window"; }

start_window
within 20 test -f "$folder/.zerimo-files" || fail "no folder is made in the documents"
end_window
diff -r -x .zerimo-files "$work/root/usr/share/zerimo" "$folder" || fail "the folder is not as installed"

echo mine >"$folder/FLOWER.ZRM"
rm "$folder/TREE.ZRM" "$folder/ZMHELP/FD"
start_window
within 20 test -f "$folder/ZMHELP/FD" || fail "a help page does not come again"
end_window
[ "$(cat "$folder/FLOWER.ZRM")" = mine ] || fail "a changed sample was overwritten"
[ ! -e "$folder/TREE.ZRM" ] || fail "a deleted sample came again"

# A file without a folder is written into the user's own, wherever the program was started.
start_display 1024 768
start_window
within 30 windows_stand 1 || fail "no window"
lists_its_words() {
  xdotool type --delay 12 commandlist
  xdotool key Return
  sleep 1
  [ -f "$folder/Commands.ZMG" ]
}
within 20 lists_its_words || fail "COMMANDLIST does not write into the folder"
end_window

# The file given as an argument is opened: a box reports a missing one.
start_window "no file.zrm"
within 30 windows_stand 2 || fail "no box tells that the file is missing"
end_window

[[ $("$zerimo" --help) == "Usage: zerimo "* ]] || fail "zerimo --help does not tell its usage"
[[ $("$zerimo" --version) == "zerimo "* ]] || fail "zerimo --version does not tell the version"
for arguments in --frobnicate '-x' 'a.zrm b.zrm'; do
  status=0
  words=$("$zerimo" $arguments 2>&1) || status=$?
  [ "$status" = 1 ] || fail "zerimo $arguments ends with $status"
  [ "$(wc -l <<<"$words")" = 1 ] && [[ $words == zerimo:* ]] || fail "zerimo $arguments says: $words"
done
