# What the checks of the packages share: a folder of their own, gone at the end, and failing with words.
set -euo pipefail

work=$(mktemp -d)
started=
finish() {
  [ -z "$started" ] || kill "$started" 2>/dev/null || true
  [ -z "$started" ] || wait "$started" 2>/dev/null || true
  rm -rf "$work"
}
trap finish EXIT

fail() {
  echo "$1" >&2
  exit 1
}

# the_one PATTERN: the only file of that pattern.
the_one() {
  local found=($1)
  [ ${#found[@]} -eq 1 ] && [ -f "${found[0]}" ] || fail "not one file: $1"
  printf '%s\n' "${found[0]}"
}

# within SECONDS COMMAND...: repeats the command until it succeeds.
within() {
  local end=$((SECONDS + $1))
  shift
  until "$@"; do
    [ "$SECONDS" -lt "$end" ] || return 1
    sleep 0.1
  done
}
