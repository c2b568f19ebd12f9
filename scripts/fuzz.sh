#!/bin/sh
# Usage: scripts/fuzz.sh BUILD-FOLDER SECONDS [SEED]
# Runs every fuzz target of a build for so many seconds, as many at once as there are processors, each from its seeds in
# fuzz/seeds/NAME. With SEED the same inputs are tried again, as far as the seconds reach; else each run tries others.
# What a target prints is shown only when it fails; its failing input stays in the folder that is named.
set -eu
build=$(cd "$1" && pwd)
seconds=$2
seed=${3:+-seed=$3}
root=$(cd "$(dirname "$0")/.." && pwd)
export seconds seed root

find "$build/fuzz" -maxdepth 1 -name 'fuzz-*' -type f -perm -u+x -print0 | xargs -0 -P "$(nproc)" -n 1 sh -c '
    program=$1
    name=$(basename "$program" | sed s/^fuzz-//)
    work=$(mktemp -d)
    mkdir "$work/found"
    seeds=$root/fuzz/seeds/$name
    [ -d "$seeds" ] || seeds=""
    cd "$work"
    if LSAN_OPTIONS="suppressions=$root/tests/lsan.supp:print_suppressions=0" \
        "$program" -max_total_time="$seconds" $seed found $seeds >log 2>&1
    then
        echo "fuzz target $name: $seconds seconds, nothing found"
        rm -rf "$work"
    else
        cat log
        echo "fuzz target $name failed; see $work"
        exit 255
    fi
' fuzz
