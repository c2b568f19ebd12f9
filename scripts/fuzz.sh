#!/bin/sh
# Usage: scripts/fuzz.sh BUILD-FOLDER SECONDS
# Runs every fuzz target of a build for so many seconds, each from its seeds in fuzz/seeds/NAME.
set -eu
build=$1
seconds=$2
root=$(cd "$(dirname "$0")/.." && pwd)
for target in "$build"/fuzz/fuzz-*; do
    [ -x "$target" ] && [ -f "$target" ] || continue
    name=$(basename "$target" | sed 's/^fuzz-//')
    program=$(cd "$(dirname "$target")" && pwd)/$(basename "$target")
    work=$(mktemp -d)
    mkdir -p "$work/found"
    seeds=""
    [ -d "$root/fuzz/seeds/$name" ] && seeds="$root/fuzz/seeds/$name"
    echo "fuzz target $name, $seconds seconds"
    # shellcheck disable=SC2086
    (cd "$work" && "$program" -max_total_time="$seconds" -verbosity=0 found $seeds) || { echo "failing input in $work"; exit 1; }
    rm -rf "$work"
done
