#!/usr/bin/env bash
# The package's changelog is one that Debian can read, with all that CHANGELOG.md says of this version and nothing of others.
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
