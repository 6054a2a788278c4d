#!/usr/bin/env bash
# Lets each system call of a save fail once with EIO and once with ENOSPC, and kills the program once at it: the former
# file or the new one is there afterwards, whole, and a save that is reported as done has the new one.
# Usage: save_faults.sh ZERIMO_BATCH
set -euo pipefail
program=$1

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
folder=$work/folder
calls=openat,write,fchown,fchmod,fsync,close,rename
tried=0
echo former >"$work/former"
mkdir "$work/temporary"
export TMPDIR=$work/temporary

fail() {
  echo "FAILED: $name, $call number $number, $fault: $1" >&2
  exit 1
}

# run [OPTION...]: runs the save on a former file, under strace with these options.
run() {
  rm -rf "$folder"
  mkdir "$folder"
  mkdir -p "$(dirname "$folder/$target")"
  cp "$work/former" "$folder/$target"
  for extra in "${folders[@]}"; do cp -r "$work/$extra" "$folder"; done
  (cd "$folder" && exec strace -qq -o "$work/log" -e "trace=$calls" "$@" "$program" "${arguments[@]}" \
    <"$work/session" >/dev/null 2>&1)
}

# The calls of the saves and their numbers: from a new file that is made beside to the last call about its folder. A new
# file that is never renamed only tries whether there can be one.
calls_of_save() {
  awk -F'(' '{ count[$1]++ }
    /\.zerimo-[0-9a-f]*\.tmp/ && $1 == "openat" { isSave = 1; calls = "" }
    isSave { calls = calls $1 " " count[$1] "\n" }
    $1 == "rename" { closes = 1 }
    isSave && closes && $1 == "close" { printf "%s", calls; isSave = 0; closes = 0 }' "$work/log"
}

is_former() { cmp -s "$folder/$target" "$work/former"; }
is_whole() { cmp -s "$folder/$target" "$work/new"; }

# try_save NAME TARGET: tries all faults of the save by `arguments` and the session. Its report of success is its status 0;
# a word of a program reports nothing.
reports=yes
try_save() {
  name=$1 target=$2
  run || true
  cp "$folder/$target" "$work/new"
  calls_of_save >"$work/calls"
  [ "$(wc -l <"$work/calls")" -ge 7 ] || { echo "FAILED: $name is not saved" >&2; exit 1; }
  while read -r call number <&3; do
    for fault in error=EIO error=ENOSPC signal=KILL; do
      status=0
      # The shell has something to say about a killed program.
      run -e "inject=$call:$fault:when=$number" 2>/dev/null || status=$?
      tried=$((tried + 1))
      is_former || is_whole || fail "the file is broken"
      [ "$status" -ne 0 ] || [ $reports = no ] || is_whole || fail "reported as done, but the former file is there"
      [ "$fault" = signal=KILL ] || [ -z "$(find "$folder" -name '.zerimo-*')" ] || fail "something is left"
    done
  done 3<"$work/calls"
}

# text LENGTH
text() { head -c "$1" </dev/zero | tr '\0' A; }

folders=()
for length in 1 5000 30000; do
  printf '@text Text2 %s\n@answer input SAVED\n@key Text2 F10\n' "$(text "$length")" >"$work/session"
  arguments=()
  try_save "F10 with $length characters" SAVED.ZRM
done
for length in 1 5000 2000000; do
  printf '@text Text2 %s\n@text Text4 40000\n' "$(text "$length")" >"$work/session"
  try_save "the rescue of $length characters" Rescued.ZRM
done
: >"$work/session"
arguments=(--screen 800x800 --picture picture.bmp)
try_save "a picture of 2 megabytes" picture.bmp
for length in 1 5000 2000000; do
  printf '@text Text2 %s\n@dump control Text2\n' "$(text "$length")" >"$work/session"
  arguments=(--transcript transcript)
  try_save "a transcript of $length characters" transcript
done

printf 'FD 10\n@picture picture.bmp\n' >"$work/session"
arguments=(--screen 800x800)
try_save "a picture in the middle of a session" picture.bmp
reports=no
printf 'SAVEPICTURE PICTURE\n' >"$work/session"
arguments=(--app-folder .)
try_save "the picture of a program" PICTURE.Bmp
reports=yes

# A page shows the time when it was made, so that no two are alike.
is_whole() { [ "$(head -c 9 "$folder/$target") $(tail -n 1 "$folder/$target")" = "<!DOCTYPE </html>" ]; }
mkdir "$work/class"
printf 'TO A\r\nPRINT 1\r\nEND\r\n' >"$work/class/A.ZRM"
(cd "$work" && "$program" --class class --jobs 1 --jsonl part.jsonl)
folders=(part.jsonl)
# What a class run writes at its end, without the run.
arguments=(--merge part.jsonl --out report.html)
try_save "a report" report.html
arguments=(--merge part.jsonl --out report.html --pupils pages)
try_save "a page to hand back" pages/A.html
is_whole() { [ "$(head -c 1 "$folder/$target")$(tail -c 2 "$folder/$target")" = '{}' ]; }
arguments=(--merge part.jsonl --out report.html)
try_save "a summary" report.json
is_whole() { [ "$(head -c 7 "$folder/$target")$(tail -c 2 "$folder/$target")" = $'"file",\r' ]; }
arguments=(--merge part.jsonl --out report.html --csv marks.csv)
try_save "a table of marks" marks.csv
echo "$tried faults"
