#!/usr/bin/env bash
# Installs what Coinlight needs on Debian 12, builds it, and then either starts it
# (./setup.sh run) or runs every test (./setup.sh test). CI also runs the tests built with
# the address and undefined-behaviour sanitizers (./setup.sh sanitize) and a short run of
# every fuzz target under libFuzzer (./setup.sh fuzz).
set -euo pipefail
cd "$(dirname "$0")"

mode=${1:-run}
packages=(build-essential cmake pkg-config qt6-base-dev libarchive-dev libgtest-dev
          libgmock-dev fonts-dejavu-core mame mame-doc ccache)
case "$mode" in
  fuzz) packages+=(clang libclang-rt-14-dev) ;;
esac

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

# Builds of other checkouts of this tree share compiled objects: paths are taken relative
# to the checkout, so the same file compiles to the same object wherever it lies.
export CCACHE_BASEDIR="$PWD"
export CCACHE_NOHASHDIR=1

configure() { # configure <build folder> <cmake options...>
  local dir=$1
  shift
  cmake -S . -B "$dir" -DCMAKE_BUILD_TYPE=RelWithDebInfo \
        -DCOINLIGHT_WERROR="${COINLIGHT_WERROR:-OFF}" -DCMAKE_CXX_COMPILER_LAUNCHER=ccache "$@"
}

refuse_huge=allocator_may_return_null=1:max_allocation_size_mb=1024

case "$mode" in
  run|test)
    build_dir=${COINLIGHT_BUILD_DIR:-build}
    configure "$build_dir"
    cmake --build "$build_dir" -j"$(nproc)"
    if [ "$mode" = run ]; then
      exec "$build_dir/src/app/coinlight"
    fi
    ctest --test-dir "$build_dir" --output-on-failure -j"$(nproc)"
    ;;
  sanitize)
    build_dir=${COINLIGHT_BUILD_DIR:-build}-sanitize
    # Unoptimised: the sanitizers find the same faults, and the build is much quicker.
    configure "$build_dir" -DCOINLIGHT_SANITIZE=address,undefined -DCOINLIGHT_BUILD_BENCH=OFF \
      -DCMAKE_BUILD_TYPE=Debug
    cmake --build "$build_dir" -j"$(nproc)"
    # A hostile archive header can make libarchive ask for gigabytes; a machine without them
    # refuses the allocation, and the tests check that Coinlight copes when that happens.
    export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1:detect_stack_use_after_return=1:$refuse_huge
    export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
    export LSAN_OPTIONS=suppressions="$PWD/tests/sanitizer/lsan.supp":print_suppressions=0
    ctest --test-dir "$build_dir" --output-on-failure -j"$(nproc)" -L 'unit|ui'
    ;;
  fuzz)
    build_dir=${COINLIGHT_BUILD_DIR:-build}-fuzz
    CC=clang CXX=clang++ configure "$build_dir" -DCOINLIGHT_FUZZ=ON \
      -DCOINLIGHT_SANITIZE=address,undefined
    cmake --build "$build_dir" -j"$(nproc)" --target coinlight_fuzz_targets
    seconds=${COINLIGHT_FUZZ_SECONDS:-20}
    export ASAN_OPTIONS=$refuse_huge
    while IFS='=' read -r target corpus; do
      [ -n "$target" ] || continue
      work=$(mktemp -d)
      echo "Fuzzing $target for $seconds s"
      if ! "$build_dir/tests/fuzz/$target" -max_total_time="$seconds" -rss_limit_mb=2048 \
          -timeout=20 -print_final_stats=1 -artifact_prefix="$work/" "$work" "$corpus" \
          < /dev/null > "$work/log" 2>&1; then
        tail -n 60 "$work/log"
        echo "Fuzz target $target failed; its input is kept in $work" >&2
        exit 1
      fi
      tail -n 4 "$work/log"
      rm -rf "$work"
    done < "$build_dir/fuzz-targets.txt"
    ;;
  *)
    echo "usage: $0 [run|test|sanitize|fuzz]" >&2
    exit 2
    ;;
esac
