# shellcheck shell=bash
# SPDX-License-Identifier: MIT
# Sourced by the scripts beside it: which Debian packages each purpose needs, and need_packages,
# which installs those that are missing.

# Touches with a time of their own, and input methods, are private to the toolkit; catalogues of
# texts are compiled by lrelease.
BUILD_PACKAGES=(g++ cmake ninja-build ccache qtbase5-dev qtbase5-private-dev libqt5svg5-dev
    qttools5-dev qttools5-dev-tools librsvg2-bin zlib1g-dev fonts-inter fonts-droid-fallback)
STYLE_PACKAGES=(clang-format python3)
# The tests read symbols with binutils, link through pkg-config and fall back to DejaVu.
TEST_PACKAGES=("${BUILD_PACKAGES[@]}" "${STYLE_PACKAGES[@]}" binutils pkg-config fonts-dejavu-core)
BENCHMARK_PACKAGES=("${BUILD_PACKAGES[@]}" libbenchmark-dev valgrind fonts-dejavu-core)
FUZZ_PACKAGES=("${BUILD_PACKAGES[@]}" clang libclang-rt-14-dev)
LINT_PACKAGES=("${TEST_PACKAGES[@]}" "${BENCHMARK_PACKAGES[@]}" clang-tidy clazy)

apt_get() {
    local sudo=()
    [ "$(id -u)" = 0 ] || sudo=(sudo)
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -y -o Acquire::Retries=3 \
        -o DPkg::Lock::Timeout=300 "$@" </dev/null
}

# need_packages PACKAGE...
need_packages() {
    local package missing=() log
    command -v dpkg-query >/dev/null || fail "needs a Debian system with $*"
    for package; do
        dpkg-query -W -f '${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed \
            || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    [ "$(id -u)" = 0 ] || command -v sudo >/dev/null \
        || fail "run it as root or install sudo; missing packages: ${missing[*]}"
    phase "installing ${missing[*]}"
    log=$(mktemp)
    if ! { apt_get update && apt_get install --no-install-recommends "${missing[@]}"; } &>"$log"; then
        cat "$log"
        rm -f "$log"
        fail "could not install ${missing[*]}"
    fi
    rm -f "$log"
}
