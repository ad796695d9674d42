#!/usr/bin/env bash
# Fails when a layer of the library includes a layer above it. The layers, lowest first:
#   foundation < model < expr < interchange
#   model < ocl < instance < registry
# and nothing in the core includes the plug-in or language libraries, which sit on top of it.
set -euo pipefail
cd "$(dirname "$0")/.."

declare -A allowed=(
  [foundation]="foundation"
  [model]="foundation model"
  [expr]="foundation model expr"
  [interchange]="foundation model expr interchange"
  [ocl]="foundation model ocl"
  [instance]="foundation model ocl instance"
  [registry]="foundation model ocl instance registry"
  [plugin]="foundation model expr interchange ocl instance registry plugin"
  [lang]="foundation model expr interchange ocl instance registry lang"
)

status=0
for layer in "${!allowed[@]}"; do
  for dir in "include/gello/$layer" "src/$layer"; do
    [ -d "$dir" ] || continue
    while IFS=: read -r file line text; do
      used=$(sed -E 's@.*#include "(gello/|\.\./)([a-z]+)/.*@\2@' <<<"$text")
      if [[ " ${allowed[$layer]} " != *" $used "* ]]; then
        echo "$file:$line: $layer includes $used, a layer above it or beside it"
        status=1
      fi
    done < <(grep -rnE '#include "(gello|\.\.)/[a-z]+/' "$dir" || true)
  done
done
[ "$status" -eq 0 ] && echo "layers: every include goes downwards"
exit "$status"
