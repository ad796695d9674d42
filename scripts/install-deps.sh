#!/usr/bin/env bash
# Installs the Debian packages that gello builds against, only those missing. Idempotent.
set -euo pipefail

packages=(
  cmake ninja-build g++ clang clang-format libclang-rt-14-dev
  libxml2-dev libpugixml-dev nlohmann-json3-dev uuid-dev libcli11-dev
  libelf-dev libglib2.0-dev
  libgtest-dev libgmock-dev libbenchmark-dev locales
  pkg-config help2man doxygen dpkg-dev file
)

sudo=""
[ "$(id -u)" -eq 0 ] || sudo="sudo"

# The number-text tests run under a locale whose decimal separator is a comma.
ensure_comma_locale() {
  locale -a 2>/dev/null | grep -qi '^de_DE\.utf-\?8$' || $sudo localedef -i de_DE -f UTF-8 de_DE.UTF-8
}

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "installing: ${missing[*]}"
  export DEBIAN_FRONTEND=noninteractive
  $sudo apt-get update -qq
  $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
ensure_comma_locale
