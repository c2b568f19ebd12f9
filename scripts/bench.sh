#!/bin/sh
# Usage: scripts/bench.sh [FILTER]
# Builds the benchmarks, runs them (those whose name matches FILTER) and prints one table of times and one of ratios to
# the rivals named in bench/ratios.txt. Times are the median of several runs.
set -eu
cd "$(dirname "$0")/.."
. scripts/install.sh
install_packages build bench

filter=${1:-.}
cmake --preset bench >/dev/null
cmake --build --preset bench -j "$(nproc)" >/dev/null

# Freed memory stays in the process: otherwise the page faults of large documents are what is measured. Screens are left
# alone: their large pages come from the system directly.
keep=glibc.malloc.mmap_max=0:glibc.malloc.trim_threshold=17179869184:glibc.malloc.top_pad=268435456
export SPLITFRAME_DISPLAY=headless

results=$(mktemp)
output=$(mktemp)
trap 'rm -f "$results" "$output"' EXIT
for program in build/bench/bench/bench-*; do
    [ -x "$program" ] && [ -f "$program" ] || continue
    [ "${program##*/}" != bench-Present ] || continue # needs a screen
    case ${program##*/} in
        bench-Markup* | bench-Dom | bench-Archive) export GLIBC_TUNABLES=$keep ;;
        *) unset GLIBC_TUNABLES ;;
    esac
    "$program" --benchmark_filter="$filter" --benchmark_repetitions=5 --benchmark_enable_random_interleaving=true \
        --benchmark_report_aggregates_only=true --benchmark_format=json >"$output" 2>&1 || { cat "$output"; exit 1; }
    awk -F'"' '
        $2 == "name" { name = $4 }
        $2 == "real_time" { time = $3; gsub(/[^0-9.e+-]/, "", time) }
        $2 == "time_unit" && sub(/_median$/, "", name) { print name "," time "," $4 }
    ' "$output" | sort -V >>"$results"
done

awk -F, '
    function scaled(ns) {
        if (ns < 1e3) return sprintf("%.1f ns", ns)
        if (ns < 1e6) return sprintf("%.2f us", ns / 1e3)
        if (ns < 1e9) return sprintf("%.2f ms", ns / 1e6)
        return sprintf("%.2f s", ns / 1e9)
    }
    BEGIN { unit["ns"] = 1; unit["us"] = 1e3; unit["ms"] = 1e6; unit["s"] = 1e9 }
    FNR == NR { time[$1] = $2 * unit[$3]; printf "%-60s %12s\n", $1, scaled(time[$1]); next }
    FNR == 1 { print ""; printf "%-60s %8s  %s\n", "ratio", "", "aim" }
    /^#/ || NF < 4 { next }
    ($2 in time) && ($3 in time) { printf "%-60s %8.2f  %s\n", $1, time[$2] / time[$3], $4 }
' "$results" bench/ratios.txt
