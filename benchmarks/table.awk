# Reads rows.txt, then the results of all programs, and prints the table. A result is a line
# "screen what variant kind value"; of several the least disturbed counts, which is the lowest, but
# for repaints the highest. Ends with 1 when a row has no result, a result no row, or a screen
# repaints at rest. The rows of the screen "memory" are classes.

function trim(text) { gsub(/^ +| +$/, "", text); return text }

function fail(text) { print "benchmark: " text > "/dev/stderr"; failed = 1 }

function result(row, variant, kind) {
    if (screen[row] SUBSEP what[row] SUBSEP variant SUBSEP kind in best)
        return best[screen[row], what[row], variant, kind]
    fail("no result for " screen[row] " " what[row] " " variant " " kind)
    return 1
}

function ratio(row, kind) {
    return result(row, "library", kind) / result(row, against[row], kind)
}

function shown(number) { return sprintf(number < 0.0995 ? "%.3f" : "%.2f", number) }

# Of one value, or of two with an aim each.
function aimed(row, value, other,    aims) {
    if (split(aim[row], aims, " ") == 0)
        return ""
    return "at most " aims[1] (2 in aims ? ", " aims[2] : "") \
        (value > aims[1] || (2 in aims && other > aims[2]) ? ": missed" : "")
}

function dashes(count,    text) {
    while (length(text) < count)
        text = text "-"
    return text
}

function line(title, cpu, instructions, peak, anonymous, repaints, aim) {
    printf "| %-" width "s | %8s | %12s | %8s | %9s | %8s | %-26s |\n", \
        title, cpu, instructions, peak, anonymous, repaints, aim
}

function printRow(row,    value, other) {
    if (what[row] == "rest") {
        value = result(row, "library", "repaints")
        if (aim[row] != "" && value > aim[row])
            fail(screen[row] " repaints at rest: " value)
        line(title[row], "", "", "", "", value, aimed(row, value))
    } else if (screen[row] == "memory") { # a screen named so: the bytes that its widgets keep
        value = ratio(row, "bytes")
        line(title[row], "", "", "", shown(value), "", aimed(row, value))
    } else if (what[row] == "memory") {
        value = ratio(row, "memory")
        other = ratio(row, "anonymous")
        line(title[row], "", "", shown(value), shown(other), "", aimed(row, value, other))
    } else {
        value = ratio(row, "instructions")
        line(title[row], shown(ratio(row, "cpu")), shown(value), "", "", "", aimed(row, value))
    }
}

FNR == NR && (/^#/ || !NF) { next }
FNR == NR {
    split($0, field, "|")
    screen[++rows] = trim(field[1])
    what[rows] = trim(field[2])
    against[rows] = trim(field[3])
    title[rows] = trim(field[4])
    aim[rows] = trim(field[5])
    listed[screen[rows], what[rows]] = 1
    if (length(title[rows]) > width)
        width = length(title[rows])
    next
}
NF != 5 { fail("no result: " $0); next }
!(($1, $2) in listed) {
    if (!named[$1, $2]++)
        fail("no row for " $1 " " $2)
    next
}
{
    key = $1 SUBSEP $2 SUBSEP $3 SUBSEP $4
    better = $4 == "repaints" ? $5 + 0 > best[key] : $5 + 0 < best[key]
    if (!(key in seen) || better)
        best[key] = $5 + 0
    seen[key] = 1
}
END {
    line("What", "CPU time", "Instructions", "Peak RSS", "Anonymous", "Repaints", "Aim")
    print "| " dashes(width) " | " dashes(7) ": | " dashes(11) ": | " dashes(7) ": | " \
        dashes(8) ": | " dashes(7) ": | " dashes(26) " |"
    for (row = 1; row <= rows; ++row)
        printRow(row)
    exit failed
}
