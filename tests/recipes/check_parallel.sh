#!/usr/bin/env bash
# Runs the recipe for GNU parallel: all programs of a list in one report, also after an interruption.
# Usage: check_parallel.sh ZERIMO-BATCH SAMPLES RECIPES
. "$(dirname "$0")/support.sh"
recipe=$3/class-parallel

# What the first part has when it is interrupted is not run again.
zerimo-batch --list list.txt --shard 1/2 --jobs 1 --seconds 1 --jsonl part-1.jsonl 2>/dev/null
cp part-1.jsonl before.jsonl
sh "$recipe" list.txt 2 report.html --seconds 1 2>messages || fail "$(cat messages)"
cmp part-1.jsonl before.jsonl || fail "the first part was run again"
marks_are report.csv
[ -s report.html ] || fail "there is no report"

# A part whose time is over after the first of two endless programs keeps that, and goes on with the other one.
mkdir slow
cp 'ben cole/ENDLESS.ZRM' slow/A.ZRM
cp 'ben cole/ENDLESS.ZRM' slow/B.ZRM
cd slow
printf '%s\n' A.ZRM B.ZRM >list.txt
PART_TIME=8 sh "$recipe" list.txt 1 report.html --steps 0 --seconds 5 2>messages || fail "$(cat messages)"
grep -q ': interrupted after 1 of 2 programs' messages || fail "no time was over: $(cat messages)"
[ "$(cut -d, -f1,3 report.csv | tr -d '\r' | tail -n +2)" = "$(printf '"%s","stopped"\n' A.ZRM B.ZRM)" ] ||
  fail "not both programs are there, once: $(cat report.csv)"
cd ..

if sh "$recipe" missing.txt 2 other.html >/dev/null 2>&1; then fail "a list that is not there is no failure"; fi
[ ! -e other.html ] || fail "a failure has a report"
status=0
sh "$recipe" list.txt 2>/dev/null || status=$?
[ "$status" -eq 2 ] || fail "bad usage ends with status $status"
