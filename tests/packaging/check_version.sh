#!/usr/bin/env bash
# The version is written once, in the top CMakeLists.txt, and is the same everywhere.
# Usage: check_version.sh SOURCES GENERATED VERSION ZERIMO-BATCH
. "$(dirname "$0")/support.sh"

version=$3
quoted=${version//./\\.}
places=("$1"/CMakeLists.txt "$1"/{src,packaging,cmake,docs,help,scripts})
written=$(grep -rlE "(^|[^0-9.])$quoted([^0-9.]|\$)" "${places[@]}" || true)
[ "$written" = "$1/CMakeLists.txt" ] || fail "the version $version is written in: $written"

grep -q "<release version=\"$version\"" "$2"/*.metainfo.xml || fail "the metainfo tells another version"
grep -q "^zerimo ($version) " "$2"/changelog || fail "the changelog tells another version"
grep -q "\"Zerimo $version\"" "$2"/zerimo.1 || fail "zerimo(1) tells another version"
grep -q "\"Zerimo $version\"" "$2"/zerimo-batch.1 || fail "zerimo-batch(1) tells another version"
grep -q "^Zerimo $version\$" "$2"/README.txt || fail "the portable README tells another version"
welcome=$("$4" --transcript - - <<<'@dump control Label20(2)')
grep -qF "\"Zerimo Version ${version%.*}\"" <<<"$welcome" || fail "the title picture tells another version: $welcome"
[ "$("$4" --version)" = "zerimo-batch $version" ] || fail "zerimo-batch tells another version"
