# SPDX-License-Identifier: MIT
# Prints the table of growth. A result is a line "growth-kind-count step variant measure value"; of
# several the lowest counts.

function get(step, count, variant, measure) { return best[step, count, variant, measure] }

function shown(of, to) { return to > 0 ? sprintf("%.2f", of / to) : "" }

function ratio(step, count, measure) {
    return shown(get(step, count, "library", measure), get(step, count, "stock", measure))
}

function growth(step, variant, measure) {
    return shown(get(step, 1000, variant, measure),
        get(step, 100, variant, measure) * (measure == "bytes" ? 1 : 10))
}

function line(what, a, b, c, d, e) {
    printf "| %-28s | %6s | %6s | %6s | %6s | %14s |\n", what, a, b, c, d, e
}

NF == 5 {
    split($1, name, "-")
    step = name[2] ", " $2
    key = step SUBSEP name[3] SUBSEP $3 SUBSEP $4
    if (!(key in best) || $5 + 0 < best[key])
        best[key] = $5 + 0
    if (!(step in known))
        steps[++count] = step
    known[step] = 1
}
END {
    line("What", "100", "1,000", "4,000", "Growth", "Stock\x27s growth")
    print "| ---------------------------- | -----: | -----: | -----: | -----: | -------------: |"
    for (i = 1; i <= count; ++i) {
        step = steps[i]
        measure = step ~ /bytes/ ? "bytes" : "instructions"
        line(step, ratio(step, 100, measure), ratio(step, 1000, measure),
            ratio(step, 4000, measure == "bytes" ? "bytes" : "cpu"),
            growth(step, "library", measure), growth(step, "stock", measure))
    }
}
