# Shared by the checks of the packages.
. "$(dirname "${BASH_SOURCE[0]}")/../support/checks.sh"

# the_one PATTERN: the only file that matches.
the_one() {
  local found=($1)
  [ ${#found[@]} -eq 1 ] && [ -f "${found[0]}" ] || fail "not one file: $1"
  printf '%s\n' "${found[0]}"
}

# windows_stand NUMBER: whether that many windows and boxes of the program are visible.
windows_stand() { [ "$(xdotool search --onlyvisible --name '^Zerimo' 2>/dev/null | wc -l)" -eq "$1" ]; }

# links_lead_somewhere FOLDER: the pictures and files that its documents name are there.
links_lead_somewhere() {
  local page link links=0
  for page in "$1"/*.md; do
    for link in $(grep -oE '\]\([^)#:]+[)#]' "$page" | sed 's/^](//; s/.$//'); do
      [ -e "$1/$link" ] || fail "$page names $link, which is not there"
      links=$((links + 1))
    done
  done
  [ "$links" -gt 50 ] || fail "there are only $links links in $1"
}
