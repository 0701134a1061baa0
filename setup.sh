#!/usr/bin/env bash
# Installs what Coinlight needs on Debian 12, builds it, and then either starts it
# (./setup.sh run) or runs every test (./setup.sh test).
set -euo pipefail
cd "$(dirname "$0")"

mode=${1:-run}
build_dir=${COINLIGHT_BUILD_DIR:-build}
packages=(build-essential cmake pkg-config qt6-base-dev libarchive-dev libgtest-dev
          libgmock-dev fonts-dejavu-core mame mame-doc)

missing=()
for package in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$package")
  fi
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  sudo=""
  if [ "$(id -u)" -ne 0 ]; then
    sudo="sudo"
  fi
  $sudo apt-get update
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y --no-install-recommends "${missing[@]}"
fi

cmake -S . -B "$build_dir" -DCMAKE_BUILD_TYPE=RelWithDebInfo \
      -DCOINLIGHT_WERROR="${COINLIGHT_WERROR:-OFF}"
cmake --build "$build_dir" -j"$(nproc)"

case "$mode" in
  run)
    exec "$build_dir/src/app/coinlight"
    ;;
  test)
    ctest --test-dir "$build_dir" --output-on-failure -j"$(nproc)"
    ;;
  *)
    echo "usage: $0 [run|test]" >&2
    exit 2
    ;;
esac
