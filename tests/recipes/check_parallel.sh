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

if sh "$recipe" missing.txt 2 other.html >/dev/null 2>&1; then fail "a list that is not there is no failure"; fi
[ ! -e other.html ] || fail "a failure has a report"
status=0
sh "$recipe" list.txt 2>/dev/null || status=$?
[ "$status" -eq 2 ] || fail "bad usage ends with status $status"
