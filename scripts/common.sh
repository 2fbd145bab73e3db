# Shared by run, check and bench: steps with their time, packages, builds. Sourced, never run.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

BUILD_PACKAGES=(g++ cmake ninja-build ccache pkg-config libsqlite3-dev nlohmann-json3-dev libcli11-dev libedit-dev
  libicu-dev libturbojpeg0-dev libsndfile1-dev libphonenumber-dev zlib1g-dev)
CHECK_PACKAGES=(clang libclang-rt-14-dev libgtest-dev libgmock-dev)
BENCH_PACKAGES=(libbenchmark-dev rapidjson-dev libsimdjson-dev libsystemd-dev libzmq3-dev libboost-dev
  liblua5.4-dev gperf)

# say TEXT: a line of progress with the seconds since the start.
say() { printf '[%4ds] %s\n' "$SECONDS" "$*"; }

# fail TEXT: says what is wrong and ends.
fail() { printf '%s: %s\n' "$(basename "$0")" "$*" >&2; exit 1; }

# need_packages NAME...: installs what is missing, asking for sudo only when not root.
need_packages() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return
  command -v apt-get >/dev/null || fail "these Debian packages are missing: ${missing[*]}"
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || fail "run this as root, or install sudo, to install: ${missing[*]}"
    as_root=(sudo)
  fi
  say "installing ${missing[*]}"
  "${as_root[@]}" apt-get update -qq || say "the package lists could not be renewed; trying with the old ones"
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    "${missing[@]}" >/dev/null || fail "installing failed: ${missing[*]}"
}

# build PRESET [TARGET...]: configures and builds, with ninja's own progress.
build() {
  local preset=$1
  shift
  say "building: $preset"
  cmake --preset "$preset" >"build-$preset.log" 2>&1 || { cat "build-$preset.log"; fail "configuring $preset failed"; }
  rm -f "build-$preset.log"
  if [ -t 1 ]; then
    cmake --build --preset "$preset" ${@:+--target "$@"}
  else
    # Without a terminal one line in a hundred steps is progress enough.
    cmake --build --preset "$preset" ${@:+--target "$@"} |
      awk '/^\[[0-9]+\/[0-9]+\]/ { if (++n % 100 == 0) print "        " $1; next } /^ninja: / { next } { print; fflush() }'
  fi
}
