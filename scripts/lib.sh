# shellcheck shell=bash
# SPDX-License-Identifier: MIT
# Sourced by the scripts beside it: starts in the root of the tree, shows the help when asked for
# it, says what goes on, builds.
set -euo pipefail
NAME=scripts/$(basename "$0")
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/packages.sh

# One cache for all build folders: they lie at the same depth, so relative paths in them agree.
export CCACHE_DIR=${CCACHE_DIR:-${HOME:-$PWD/build}/.cache/ccache}
mkdir -p "$CCACHE_DIR" 2>/dev/null || CCACHE_DIR=$PWD/build/ccache # the account has no home
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
export CCACHE_SLOPPINESS=pch_defines,time_macros # else nothing behind a precompiled header is kept

phase() {
    printf '== [%d:%02d] %s\n' $((SECONDS / 60)) $((SECONDS % 60)) "$*"
}

# The reason is the last line, also where both streams end in one file.
fail() {
    printf '%s: %s\n' "$NAME" "$*" >&2
    exit 1
}

# The command line is wrong.
refuse() {
    printf '%s: %s, see --help\n' "$NAME" "$*" >&2
    exit 2
}

# no_options ARGUMENT...
no_options() {
    local argument
    for argument; do
        [[ $argument != -* ]] || refuse "unknown option $argument"
    done
}

# writable FOLDER
writable() {
    mkdir -p "$1" 2>/dev/null || true
    [ -w "$1" ] || fail "$PWD/$1 cannot be created or written to"
}

# configure FOLDER [CMAKE OPTION...]
configure() {
    local folder=$1 log=$1/configure.log
    shift
    writable "$folder"
    phase "configuring $folder"
    if ! cmake -G Ninja -S . -B "$folder" -DCMAKE_CXX_COMPILER_LAUNCHER=ccache "$@" &>"$log"; then
        cat "$log"
        fail "$folder could not be configured: $(cmake_error "$log")"
    fi
}

# build FOLDER [TARGET]
build() {
    local folder=$1 target=${2:-all}
    phase "building $target in $folder"
    cmake --build "$folder" --target "$target" \
        || fail "$folder could not be built: $(build_error "$folder" "$target")"
}

# The text of the first error, put back on one line.
cmake_error() {
    awk '/^CMake Error/ { on = 1; sub(/^CMake Error( at .*)?:/, "") }
        on && (/^Call Stack/ || (!NF && text)) { exit }
        on && NF { $1 = $1; text = text (text ? " " : "") $0 }
        END { print text }' "$1"
}

# What failed fails again at once; so its output need not be kept, and ninja can draw its status.
build_error() {
    { cmake --build "$1" --target "$2" || true; } 2>&1 | awk '/^FAILED:/ && !text { text = $0 }
        /error: |undefined reference/ && !reason { reason = $0 }
        END { print reason ? reason : text }'
}

# The comment at the head of the script is its help.
case ${1:-} in -h | --help)
    sed -n '/SPDX-/d;2,/^[^#]/s/^# \{0,1\}//p' "$NAME"
    exit
    ;;
esac
