#!/usr/bin/env bash
# Makes the Debian package of the build and checks it: its files, the dependencies read off the
# shared libraries it links, and a tool that runs once the package is unpacked.
set -euo pipefail
build=$(realpath "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
(cd "$build" && cpack -G DEB -B "$work" >/dev/null)
deb=$(find "$work" -maxdepth 1 -name 'gello_*.deb')
[ -n "$deb" ] || { echo "no package made"; exit 1; }

contents=$(dpkg-deb -c "$deb")
for file in 'usr/lib/.*libgello\.so\.0\.[0-9.]*$' 'usr/include/gello/model/Package\.h' \
  'usr/bin/gello$' 'usr/share/man/man1/gello\.1' 'usr/share/bash-completion/completions/gello$' \
  'usr/lib/.*cmake/gello/gelloConfig\.cmake' 'usr/lib/.*pkgconfig/gello\.pc'; do
  grep -qE "\./$file" <<<"$contents" || { echo "not in the package: $file"; exit 1; }
done
depends=$(dpkg-deb -f "$deb" Depends)
for library in libxml2 libuuid1 libstdc\\+\\+6 libpugixml; do
  grep -qE "(^|, )$library" <<<"$depends" || { echo "no dependency on $library: $depends"; exit 1; }
done

dpkg -x "$deb" "$work/root"
lib=$(dirname "$(find "$work/root" -name 'libgello.so.0')")
version=$(LD_LIBRARY_PATH=$lib "$work/root/usr/bin/gello" --version)
[ "$version" = "gello $(dpkg-deb -f "$deb" Version)" ] || { echo "unexpected: $version"; exit 1; }
echo "$(basename "$deb"): $(wc -l <<<"$contents") entries; Depends: $depends"
