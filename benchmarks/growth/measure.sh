# shellcheck shell=bash
# SPDX-License-Identifier: MIT
# Sourced by scripts/benchmark: what a screen costs with 100, 1,000 and 4,000 widgets of one kind.
growth_results=$folder/growth.txt

measure_growth() {
    local kind count variant round program
    : >"$growth_results"
    for kind in rows iconbuttons pushbuttons labels lineedits; do
        phase "growth of $kind"
        for count in 100 1000 4000; do
            for variant in library stock; do
                program=$folder/hoxqbench_growth_$variant
                for round in 1 2 3; do
                    run_growth "$program" $kind $count
                done
                run_growth "$program" $kind $count bytes
                [ $count = 4000 ] || count_growth "$program" $kind $count
            done
        done
    done
}

run_growth() {
    "$@" >>"$growth_results" 2>"$log" || { cat "$log"; fail "failed: $*"; }
}

count_growth() {
    local counted=$folder/growth.callgrind
    rm -f "$counted"
    run_growth valgrind --tool=callgrind --combine-dumps=yes --callgrind-out-file="$counted" "$@"
    counts "$counted" >>"$growth_results"
}

growth_table() {
    cat <<'END'

## Many of a kind

A scroll area with so many widgets of one kind, one below the other, with the panel's sheets and
beside stock widgets of the same look. Ratios are of instructions, with 4,000 of CPU time. "Growth"
is what one more widget costs with 1,000 beside what it costs with 100: 1.00 is linear, and below it
the cost hardly depends on their number. The aim is missed by a ratio above 1.2, or by a growth
above 1.1 and stock's. "Reveal" is a scroll step that shows new widgets, "scroll" one over those
seen before, "restyle" another stylesheet for the application.

END
    awk -f benchmarks/growth/table.awk "$growth_results"
}
