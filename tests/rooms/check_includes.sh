#!/usr/bin/env bash
# The check of the rooms accepts what a room may include, and refuses everything else, however it is written.
# Usage: check_includes.sh CMAKE CHECK
. "$(dirname "$0")/../support/checks.sh"

mkdir -p "$work/src/base" "$work/src/desktop/extensions"
touch "$work/src/base/text.h" "$work/src/base/sneak.inl" "$work/src/desktop/stage.h" "$work/src/desktop/extensions/stop.h"

# check ROOM LINE: whether a source of the room may have this line. It may know base and itself.
check() {
  printf '%s\n' "$2" >"$work/src/$1/source.cpp"
  "$cmake" "-DROOM=$1" "-DTREE=$work/src" "-DMAY_KNOW=base|$1" "-DSOURCES=$work/src/$1/source.cpp" \
    "-DSTAMP=$work/stamp" -P "$script" 2>/dev/null
}
accepts() { check "$1" "$2" || fail "$1 may not have: $2"; }
refuses() { ! check "$1" "$2" || fail "$1 may have: $2"; }
cmake=$1
script=$2

accepts base '#include <vector>'
accepts base '#include "base/text.h"'
accepts desktop '#include "base/text.h"  // for texts'
accepts desktop '#include "desktop/stage.h"'
refuses base '#include "desktop/stage.h"'
refuses base '#include <desktop/stage.h>'
refuses desktop '#include "desktop/extensions/stop.h"'
# A compiler finds this one beside the source.
refuses desktop '#include "extensions/stop.h"'
refuses base '#include "../desktop/stage.h"'
refuses base $'#include <vector>  // [ a list\n#include "desktop/stage.h"'
refuses base '#include HEADER'
refuses base '#include /* on purpose */ "desktop/stage.h"'
refuses base '%:include "desktop/stage.h"'
refuses base '  #  include "desktop/stage.h"'
refuses base '#include_next "desktop/stage.h"'
# Lines that a compiler joins.
refuses base $'#\\\ninclude "desktop/stage.h"'
refuses base $'#inc\\\nlude "desktop/stage.h"'
refuses base $'#include \\ \n"desktop/stage.h"'
refuses base $'# /*\n*/ include "desktop/stage.h"'
refuses base "#include \"$work/src/desktop/stage.h\""
# What no check reads.
refuses base '#include "base/sneak.inl"'
