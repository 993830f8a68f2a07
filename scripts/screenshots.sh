#!/usr/bin/env bash
# Runs Velmora in a virtual X server and saves PNG screenshots into
# BUILD_DIR/screenshots: the frame with three example graph windows
# (frame.png), the Plotting Options dialog (options.png) and the Complex
# Calculator after an operation and in simple mode (complex.png,
# complex_simple.png). The program runs on fresh settings in a temporary
# folder, so the pictures show the defaults and the user's own settings are
# never touched.
set -euo pipefail

build_dir=${1:-build}
program="$build_dir/app/velmora"
out="$build_dir/screenshots"
if [ ! -x "$program" ]; then
  echo "screenshots: $program is missing; run make build first" >&2
  exit 1
fi
mkdir -p "$out"
out=$(cd "$out" && pwd)

tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
mkdir -p "$tmp/config" "$tmp/data" "$tmp/runtime"
chmod 700 "$tmp/runtime"

env -u QT_QPA_PLATFORM \
  XDG_CONFIG_HOME="$tmp/config" XDG_DATA_HOME="$tmp/data" XDG_RUNTIME_DIR="$tmp/runtime" \
  VELMORA_SCREENSHOTS="$out" \
  xvfb-run -a -s "-screen 0 1600x1200x24" "$program"
ls -l "$out"/*.png
