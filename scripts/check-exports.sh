#!/usr/bin/env bash
# Fails when the library exports a class or function that only its private headers (src/) declare:
# hosts and plug-ins see what the public headers mark, nothing else. A library template such as
# std::vector instantiated over a private class is not the class's own symbol and may be exported
# in unoptimised builds; only the symbol's own qualified name counts.
set -euo pipefail
lib=$1
cd "$(dirname "$0")/.."
private=$(grep -rhoE '^(class|struct) [A-Z][A-Za-z0-9_]+' src --include='*.h' | awk '{print $2}' | sort -u)
exported=$(nm -DC --defined-only "$lib" | cut -d' ' -f3-)
# Each symbol's own name: template arguments and parameters dropped, then the last word.
owners=$(sed -E ':a; s/<[^<>]*>//g; ta; s/\(.*$//; s/.* //' <<<"$exported")
status=0
for name in $private; do
  if grep -qE "(^|::)$name(::|$)" <<<"$owners"; then
    echo "$lib exports the private $name"
    status=1
  fi
done
[ "$status" -eq 0 ] && echo "exports: $(wc -l <<<"$exported") symbols, none of the $(wc -w <<<"$private") private classes"
exit "$status"
