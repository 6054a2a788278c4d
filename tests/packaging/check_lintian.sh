#!/usr/bin/env bash
# Lintian finds no error and no warning in the Debian package. Usage: check_lintian.sh PACKAGES
. "$(dirname "$0")/support.sh"

deb=$(the_one "$1/*.deb")
as_root=()
[ "$(id -u)" -ne 0 ] || as_root=(--allow-root)
TMPDIR=$work lintian "${as_root[@]}" --profile debian --fail-on error,warning --display-level '>=warning' "$deb"
