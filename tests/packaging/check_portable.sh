#!/usr/bin/env bash
# The archive is one folder, and works in any place with any name. Usage: check_portable.sh PACKAGES
. "$(dirname "$0")/support.sh"

archive=$(the_one "$1/*.tar.gz")
mkdir "$work/my programs"
tar -xzf "$archive" -C "$work/my programs"
folders=("$work/my programs"/*)
[ ${#folders[@]} -eq 1 ] || fail "the archive holds more than one folder: ${folders[*]}"
cd "${folders[0]}"
for file in zerimo zerimo-batch README.txt LICENSE ZMHELP/HELP FLOWER.ZRM BOAT1.JPG docs/user-guide.md docs/quirks.md; do
  [ -s "$file" ] || fail "$file is missing"
done

links_lead_somewhere docs

printf '%s\n' CS 'LOAD FLOWER' FLOWER 'HELP FD' '@dump control RichTextBox1' |
  ./zerimo-batch --transcript "$work/transcript" --picture "$work/flower.png" - >/dev/null
[ "$(convert "$work/flower.png" -format %k info:)" -gt 1 ] || fail "the sample draws nothing"
grep -q 'RichTextBox1' "$work/transcript" || fail "there is no help page"

# The window works in this folder, and makes none in the documents.
start_display 1024 768
HOME=$work/home ./zerimo &
started+=($!)
within 30 windows_stand 1 || fail "the window does not stand"
[ ! -e "$work/home/Documents" ] || fail "a folder was made elsewhere: $(find "$work/home")"
