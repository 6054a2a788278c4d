#!/usr/bin/env bash
# A room may link only rooms that stand before it, and gets nothing that its checks have not seen.
# Usage: check_links.sh CMAKE OPTIONS
. "$(dirname "$0")/../support/checks.sh"
cmake=$1
options=$2

mkdir -p "$work/base" "$work/controls"
touch "$work/base/text.cpp" "$work/base/late.cpp" "$work/controls/list.cpp"
cat >"$work/CMakeLists.txt" <<EOF
cmake_minimum_required(VERSION 3.25)
project(rooms LANGUAGES CXX)
include($options)
add_subdirectory(base)
add_subdirectory(controls)
EOF

# configure BASE CONTROLS: what the two rooms say of themselves.
configure() {
  printf 'zerimo_library(zerimo_base SOURCES text.cpp %s\n' "$1" >"$work/base/CMakeLists.txt"
  printf 'zerimo_library(zerimo_controls SOURCES list.cpp %s\n' "$2" >"$work/controls/CMakeLists.txt"
  "$cmake" -S "$work" -B "$work/build" >"$work/out" 2>&1
}
# refuses WHY BASE CONTROLS
refuses() {
  ! configure "$2" "$3" || fail "this configures: $2 $3"
  tr -s ' \n' ' ' <"$work/out" | grep -qF "$1" || fail "not said: $1: $(cat "$work/out")"
}

below='LINKS zerimo_base)'
configure ')' "$below" || fail "a room may not link the one before it: $(cat "$work/out")"
refuses 'zerimo_base may not link zerimo_controls: a room links only' 'LINKS zerimo_controls)' ')'
refuses 'zerimo_base may not link zerimo_controls: a room links only' 'LINKS $<1:zerimo_controls>)' ')'
added='zerimo_base may not link zerimo_controls: zerimo_library is given'
refuses "$added" ')' ')
target_link_libraries(zerimo_base PUBLIC zerimo_controls)'
refuses "$added" ')
target_link_libraries(zerimo_base PRIVATE zerimo_controls)' "$below"
refuses "$added" ')
target_link_libraries(zerimo_base INTERFACE zerimo_controls)' "$below"
refuses 'zerimo_base may not compile late.cpp' ')
target_sources(zerimo_base PRIVATE late.cpp)' "$below"
refuses 'late.cpp: zerimo_library is given' ')' "$below
target_sources(zerimo_base PRIVATE ../base/late.cpp)"
