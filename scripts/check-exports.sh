#!/usr/bin/env bash
# Fails when the library exports a class or function that only its private headers (src/) declare:
# hosts and plug-ins see what the public headers mark, nothing else.
set -euo pipefail
lib=$1
cd "$(dirname "$0")/.."
private=$(grep -rhoE '^(class|struct) [A-Z][A-Za-z0-9_]+' src --include='*.h' | awk '{print $2}' | sort -u)
exported=$(nm -DC --defined-only "$lib")
status=0
for name in $private; do
  if grep -qE "(::| )$name(::|\(| |$)" <<<"$exported"; then
    echo "$lib exports the private $name"
    status=1
  fi
done
[ "$status" -eq 0 ] && echo "exports: $(wc -l <<<"$exported") symbols, none of the $(wc -w <<<"$private") private classes"
exit "$status"
