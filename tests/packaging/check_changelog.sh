#!/usr/bin/env bash
# Debian can read the package's changelog, which has all that CHANGELOG.md says about this version and nothing about
# others.
# Usage: check_changelog.sh SOURCES CHANGELOG VERSION
. "$(dirname "$0")/support.sh"

field() { dpkg-parsechangelog --all -l "$changelog" -S "$1"; }
changelog=$2
warnings=$(dpkg-parsechangelog -l "$changelog" 2>&1 >/dev/null)
[ -z "$warnings" ] || fail "$warnings"
[ "$(field Version)" = "$3" ] || fail "the changelog tells another version"

written=$(awk -v heading="## $3," 'index($0, "## ") == 1 { ours = index($0, heading) == 1; next } ours && NF' "$1/CHANGELOG.md")
[ -n "$written" ] || fail "CHANGELOG.md says nothing of $3"
packed=$(field Changes | sed -n 's/^  \* /- /p; s/^    /  /p')
[ "$packed" = "$written" ] || fail "the package's changelog says: $packed"
