#!/usr/bin/env bash
# The tool over bad files and bad command lines, and what its log shows: each row gives the exit status and the first line
# the tool prints on standard error. Nothing may crash or hang, and a failed conversion leaves no
# output file behind (nor changes one that was there).
set -uo pipefail
tool=$1
example=$2
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
failures=0

printf '<lolz/>\n' >"$dir/lolz.xml"
printf "<GELLO kind='Package'>\n  <members><e kind='Bogus'/></members>\n</GELLO>\n" >"$dir/bogus.xml"
printf "<GELLO kind='Package'>\n  <members>\n" >"$dir/cut.xml"
: >"$dir/empty.xml"
printf '<a>\n  <b></c>\n</a>\n' >"$dir/mismatch.xml"
printf 'kept\n' >"$dir/kept.json"

# row STATUS FIRST-LINE [stdin INPUT] -- ARGS...
row() {
  local status=$1 expected=$2 input=/dev/null
  shift 2
  if [ "$1" = stdin ]; then input=$2; shift 2; fi
  shift  # --
  local err actual
  err=$(timeout 60 "$tool" "$@" <"$input" 2>&1 >/dev/null)
  actual=$?
  local first=${err%%$'\n'*}
  if [ "$actual" != "$status" ] || [ "$first" != "$expected" ]; then
    echo "FAIL: gello $*"
    echo "  expected $status: $expected"
    echo "  got      $actual: $first"
    failures=$((failures + 1))
  fi
}

row 2 "A subcommand is required" -- model
row 2 "The following argument was not expected: --bogus" -- model info --bogus "$example"
row 2 "--to: yaml not in {xml,json}" -- model convert "$example" "$dir/out.json" --to yaml
row 2 "--quiet excludes --verbose" -- --quiet --verbose model info "$example"
row 1 "gello: $dir: is a directory" -- model info "$dir"
row 1 "gello: $dir/none.xml: No such file or directory" -- model info "$dir/none.xml"
row 1 "gello: $dir/lolz.xml: not a gello model: the root element is <lolz>, expected <GELLO>" \
  -- model info "$dir/lolz.xml"
row 1 "gello: $dir/bogus.xml:2:13: RTTI class name not registered : TRTTIBogus" \
  -- model info "$dir/bogus.xml"
row 1 "gello: $dir/cut.xml:2:12: Start-end tags mismatch" -- model info "$dir/cut.xml"
row 1 "gello: <stdin>:2:12: Start-end tags mismatch" stdin "$dir/cut.xml" -- model info -
row 1 "gello: $dir/empty.xml:1:1: No document element found" -- model info "$dir/empty.xml"
row 1 "gello: $dir/bogus.xml:2:13: RTTI class name not registered : TRTTIBogus" \
  -- model convert "$dir/bogus.xml" "$dir/out.json" --to json
row 1 "gello: $dir/lolz.xml: not a gello model: the root element is <lolz>, expected <GELLO>" \
  -- model convert "$dir/lolz.xml" "$dir/kept.json" --to json
row 1 "gello: $dir/mismatch.xml:2:10: parse error on Read" -- xml paths "$dir/mismatch.xml"
row 1 "gello: <stdin>:2:10: parse error on Read" stdin "$dir/mismatch.xml" -- xml paths -
row 1 "gello: $dir: is a directory" -- xml paths "$dir"
row 1 "gello: no registered interface INope" -- registry INope
# The log shows timings only when asked.
row 0 "" -- model info "$example"
row 0 "About to time this operation: resolve package Clinical" -- --verbose model info "$example"
row 0 "" -- --quiet model convert "$example" "$dir/made.json" --to json

leftovers=$(cd "$dir" && ls | grep -v -x -E 'lolz.xml|bogus.xml|cut.xml|empty.xml|mismatch.xml|kept.json|made.json')
[ -z "$leftovers" ] || { echo "FAIL: files left behind: $leftovers"; failures=$((failures + 1)); }
[ "$(cat "$dir/kept.json")" = kept ] || { echo "FAIL: a failed conversion changed its output"; failures=$((failures + 1)); }
grep -q '"name": "Clinical"' "$dir/made.json" || { echo "FAIL: the good conversion wrote no model"; failures=$((failures + 1)); }
[ "$failures" -eq 0 ] && echo "bad input: all rows as expected"
exit $((failures > 0))
