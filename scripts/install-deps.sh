#!/usr/bin/env bash
# Installs the Debian 12 packages Velmora needs to build, test and run.
# Idempotent: only packages that are missing are installed, so a second run
# costs one dpkg query and nothing else.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config ccache
  qt6-base-dev qt6-base-dev-tools
  qt6-qpa-plugins libgl-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  libmuparser-dev libeigen3-dev
  clang libclang-rt-14-dev clang-format
  xvfb xauth x11-utils openbox xdotool
  desktop-file-utils xdg-utils shared-mime-info libglib2.0-bin
  fonts-liberation fonts-dejavu-core
  python3-numpy
  libreoffice-writer-nogui
  tidy
  libjpeg62-turbo-dev libjpeg-turbo-progs poppler-utils
)

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$p")
  fi
done

if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi

echo "install-deps: installing ${missing[*]}"
sudo_cmd=()
if [ "$(id -u)" -ne 0 ]; then
  sudo_cmd=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
"${sudo_cmd[@]}" apt-get update -qq
"${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
