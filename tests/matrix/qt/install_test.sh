#!/usr/bin/env bash
# `make install` into a temporary prefix: the installed desktop entry passes
# desktop-file-validate and declares the matrix type, the MIME package and
# its database are in place, and xdg-mime, reading only that prefix, gives
# a .mcf file the type application/x-velmora-matrix and Velmora as its
# application.
set -euo pipefail

build_dir=$1
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
prefix="$tmp/prefix"
cmake --install "$build_dir" --prefix "$prefix" > /dev/null

fail() {
  echo "install_test: $*" >&2
  exit 1
}

entry="$prefix/share/applications/velmora.desktop"
[ -f "$entry" ] || fail "no desktop entry at $entry"
desktop-file-validate "$entry" || fail "desktop-file-validate refused $entry"
grep -qx 'Exec=velmora %f' "$entry" || fail "the entry does not take the file with %f"
grep -qx 'MimeType=application/x-velmora-matrix;' "$entry" || fail "the entry does not declare the type"
[ -f "$prefix/share/mime/packages/velmora-matrix.xml" ] || fail "no MIME package"
[ -f "$prefix/share/mime/mime.cache" ] || fail "the MIME database was not built"

mkdir -p "$tmp/home" "$tmp/config" "$tmp/data"
printf ' 1  1 \r\n5\r\n' > "$tmp/m.mcf"
# GNOME's path of xdg-mime asks gio, which reads the MIME database of the
# data folders; the generic path would ask file(1), which knows no such type.
query() {
  env -i PATH="$PATH" HOME="$tmp/home" XDG_CONFIG_HOME="$tmp/config" XDG_DATA_HOME="$tmp/data" \
    XDG_DATA_DIRS="$prefix/share:/usr/share" XDG_CURRENT_DESKTOP=GNOME xdg-mime query "$@"
}
type=$(query filetype "$tmp/m.mcf")
[ "$type" = application/x-velmora-matrix ] || fail "filetype gave '$type'"
app=$(query default application/x-velmora-matrix)
[ "$app" = velmora.desktop ] || fail "default gave '$app'"
echo "install_test: ok"
