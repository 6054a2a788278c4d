# Shared by the checks of the recipes: a temporary folder with a list of programs, and a runner that is found by its name.
# Usage: . support.sh ZERIMO-BATCH SAMPLES
. "$(dirname "${BASH_SOURCE[0]}")/../support/checks.sh"

mkdir "$work/bin" "$work/anna" "$work/ben cole"
ln -s "$1" "$work/bin/zerimo-batch"
export PATH=$work/bin:$PATH
cp "$2"/{FLOWER,SNOW,HOUSE}.ZRM "$work/anna"
cp "$2/TREE.ZRM" "$work/ben cole/TREE.ZRM"
printf '%s\r\n' 'TO ENDLESS' 'LABEL "A' 'GOTO "A' 'END' >"$work/ben cole/ENDLESS.ZRM"
cd "$work"
printf '%s\n' anna/*.ZRM 'ben cole'/*.ZRM >list.txt

# marks_are TABLE: every program has its line, and all but the endless one ended.
marks_are() {
  [ "$(wc -l <"$1")" -eq 6 ] || fail "not five programs: $(cat "$1")"
  local program result
  while read -r program; do
    result=ended
    [ "$program" != "ben cole/ENDLESS.ZRM" ] || result=stopped
    grep -q "^\"$program\",\"$program\",\"$result\"," "$1" || fail "$program is not marked as $result: $(cat "$1")"
  done <list.txt
}
