# SPDX-License-Identifier: MIT
# Prints the table of growth. A result is a line "growth-kind-count step variant measure value"; of
# several the lowest counts. Ends with 1 when a result is missing.

function get(step, count, variant, measure,    key) {
    key = step SUBSEP count SUBSEP variant SUBSEP measure
    if (key in best)
        return best[key]
    print "benchmark: no result for " step " " count " " variant " " measure > "/dev/stderr"
    failed = 1
    return 1
}

function ratio(step, count, measure) {
    return get(step, count, "library", measure) / get(step, count, "stock", measure)
}

# Of bytes each result is that of one widget already.
function growth(step, variant, measure) {
    return get(step, 1000, variant, measure) / get(step, 100, variant, measure) \
        / (measure == "bytes" ? 1 : 10)
}

function line(what, a, b, c, d, e, f) {
    printf "| %-22s | %5s | %5s | %5s | %6s | %14s | %-6s |\n", what, a, b, c, d, e, f
}

function printStep(step,    measure, few, many, most, grown, stock) {
    measure = step ~ /bytes/ ? "bytes" : "instructions"
    few = ratio(step, 100, measure)
    many = ratio(step, 1000, measure)
    most = ratio(step, 4000, measure == "bytes" ? "bytes" : "cpu")
    grown = growth(step, "library", measure)
    stock = growth(step, "stock", measure)
    line(step, sprintf("%.2f", few), sprintf("%.2f", many), sprintf("%.2f", most),
        sprintf("%.2f", grown), sprintf("%.2f", stock),
        few > 1.2 || many > 1.2 || most > 1.2 || (grown > 1.1 && grown > 1.05 * stock) ? "missed" : "")
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
    line("What", "100", "1,000", "4,000", "Growth", "Stock's growth", "Aim")
    print "| ---------------------- | ----: | ----: | ----: | -----: | -------------: | ------ |"
    for (i = 1; i <= count; ++i)
        printStep(steps[i])
    exit failed
}
