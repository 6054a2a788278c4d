#!/usr/bin/env bash
# Both pages format without a warning, and the batch runner's page names all its options.
# Usage: check_man_pages.sh ZERIMO.1 ZERIMO-BATCH.1 ZERIMO-BATCH
. "$(dirname "$0")/support.sh"

for page in "$1" "$2"; do
  warnings=$(LC_ALL=C.UTF-8 groff -man -Tutf8 -ww -z "$page" 2>&1)
  [ -z "$warnings" ] || fail "$warnings"
  if grep -n '@[A-Z_]*@' "$page"; then fail "$page has gaps"; fi
done

page=$(groff -man -Tascii -P-cbou "$2" 2>/dev/null)
options=$("$3" --help | grep -oE '^ +--[a-z-]+' | tr -d ' ')
[ "$(wc -l <<<"$options")" -ge 8 ] || fail "zerimo-batch --help names few options: $options"
for option in $options; do
  grep -qE "^ +(-[a-z], )?$option\b" <<<"$page" || fail "the page does not tell $option"
done
