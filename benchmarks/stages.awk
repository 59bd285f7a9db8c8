# SPDX-License-Identifier: MIT
# Reads the callgrind files of a screen's variants, with the stages of its start one after another,
# and prints how many million instructions each takes: of the library, of stock, and their ratio.

function value(stage, variant) { return cost[stage, variant] / 1e6 }

function row(title, stage,    library, stock) {
    library = value(stage, "library")
    stock = value(stage, "stock")
    printf "| %-44s | %7.1f | %5.1f | %5s |\n", title, library, stock, \
        stock < 0.05 ? "" : sprintf("%.2f", library / stock)
}

FNR == 1 { variant = FILENAME ~ /_library\./ ? "library" : "stock" }
/^fn=/ { caller = substr($0, 4) }
/^cfn=/ { callee = substr($0, 5) }
# A call's cost, with all that is called from there, follows on the next line.
/^calls=/ {
    getline
    if (callee == "FcInit" || callee == "FcConfigGetFonts")
        cost["fontconfig", variant] += $2
    else if (callee ~ images && caller !~ images)
        cost["images", variant] += $2
}
BEGIN { images = "^(QSvgRenderer::(load|render)|QImageReader::read)\\(" }
/^desc: Trigger: Client Request: / { stage = $6 }
/^totals: / && stage {
    cost[stage, variant] += $2
    cost["all", variant] += $2
    stage = ""
}
END {
    printf "| %-44s | %7s | %5s | %5s |\n", "Million instructions of a start", "Library", "Stock", "Ratio"
    print "| -------------------------------------------- | ------: | ----: | ----: |"
    row("Loading of programs and libraries", "load")
    row("Application object", "application")
    row("Fonts", "fonts")
    row("Stylesheets read", "sheets")
    row("Widgets made", "widgets")
    row("Widgets polished", "polish")
    row("Layout, stock with its fonts once more", "layout")
    row("Window shown and painted", "frame")
    row("Sum", "all")
    row("Of these: fontconfig reads its configuration", "fontconfig")
    row("Of these: images read and rendered", "images")
}
