#!/usr/bin/env bash
# Fails when the bash completion misses a subcommand or an option that the tool's --help lists,
# at any depth of subcommands.
set -euo pipefail
tool=$1
source "$(dirname "$0")/../tools/gello/gello.bash-completion"
status=0

# Prints the options and subcommands one --help page lists.
listed() {
  "$tool" $1 --help | awk '
    /^[A-Za-z]+:$/ { section = $0; next }
    section == "Options:" && /^  -/ { gsub(/,/, " ", $1); n = split($1, names, " "); for (i = 1; i <= n; i++) print names[i] }
    section == "Subcommands:" && /^  [a-z]/ { print "@" $1 }'
}

check() {
  local path=$1 item
  for item in $(listed "$path"); do
    local word=${item#@}
    if ! [[ " $(_gello_words "$path") " == *" $word "* ]]; then
      echo "completion of 'gello${path:+ $path}' misses $word"
      status=1
    fi
    if [[ $item == @* ]]; then check "${path:+$path }$word"; fi
  done
}

check ""
[ "$status" -eq 0 ] && echo "completion: every subcommand and option of --help"
exit "$status"
