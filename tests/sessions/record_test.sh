#!/usr/bin/env bash
# scripts/record drafts what the tests compare with, and overwrites nothing. Usage: record_test.sh RECORD PROGRAMS SESSIONS
set -euo pipefail

record=$1
export ZERIMO_PROGRAM_FOLDER=$2 ZERIMO_SESSIONS
recorded=$3
ZERIMO_SESSIONS=$(mktemp -d)
trap 'rm -rf "$ZERIMO_SESSIONS"' EXIT
cd "$ZERIMO_SESSIONS"

fail() {
  echo "$1" >&2
  exit 1
}

# refuses STATUS WORDS ARGUMENT...: checks that record ends with the status and one line that has the words.
refuses() {
  local status=0 wanted=$1 words=$2 said
  shift 2
  said=$("$record" "$@" 2>&1) || status=$?
  [ "$status" = "$wanted" ] || fail "record $* ends with $status: $said"
  [[ $said == record:*"$words"* && $said != *$'\n'* ]] || fail "record $* says: $said"
}

refuses 2 usage
refuses 2 usage one two
refuses 2 usage ../one
refuses 1 'there is no session' one

# The transcripts of the tree are reproduced: with options, with files, and with a limit that ends the session.
for name in screen_of_another_size ask_for_a_program_file evaluation_that_never_returns; do
  cp -r "$recorded/$name".session .
  [ ! -d "$recorded/$name.files" ] || cp -r "$recorded/$name.files" .
  shown=$("$record" "$name")
  cmp "$name.expected" "$recorded/$name.expected"
  [[ $shown == *'is a draft'* ]] || fail "record $name does not say that it is a draft: $shown"
  [ "$(grep -cE '^ *[0-9]+\s' <<<"$shown")" = "$(wc -l <"$name.expected")" ] || fail "record $name shows: $shown"
done

echo mine >mine.expected
echo CS >mine.session
refuses 1 'never overwritten' mine
[ "$(cat mine.expected)" = mine ] || fail "an expectation is overwritten"
ln -s nowhere away.expected
echo CS >away.session
refuses 1 'never overwritten' away

echo '@nonsense' >wrong.session
refuses 1 'does not run: zerimo-batch: -:1:' wrong
[ ! -e wrong.expected ] || fail "a session that does not run has a transcript"
