# Compares the words found on the pages (second file) with those expected (first file). The formats
# are those of check_paper.sh and of the class Expectation. Positions are in points from the upper
# left corner of the page; the variable pages is their number.

function fault(check, text) {
    if (++faults[check] <= 5) {
        print "  " text
    } else if (faults[check] == 6) {
        print "  and more of that"
    }
}

function report(check) {
    if (faults[check] > 0) {
        print "failed: " check
        ++failed
    } else {
        print "passed: " check
        ++passed
    }
}

function distance(a, b) { return a > b ? a - b : b - a }

BEGIN {
    EDGE = 0.5      # how far edges may differ: each letter of a word rounds its width
    OUTSIDE = 0.25  # how far a word's box may reach out of the margins
    UNEVEN = 0.15   # how far rows may be off one line's distance: a unit of the printer
    NEAR = 2        # headings are that many lines above the first row at most
    BREAK = 3       # lines that a blank one and a group header surely fit into
    WORDS = "each word is there once, and no other"
    ORDER = "words follow each other in order, also over page breaks"
    HEADS = "headings stand over the rows of each page"
    FOOT = "each page has its footer"
    BOX = "nothing stands outside the margins"
    ROWS = "each row is one line below the one before"
    EDGES = "columns and numbers line up"
    KEEP = "group headers stay with what follows"
    SPLIT = "pages end in lists of both kinds, totals, text, and where a group header would be last"
}

# --- What is expected

FNR == NR && $1 == "box" { left = $2; top = $3; right = $4; bottom = $5; next }
FNR == NR && $1 == "pages" { footers = $2; next }
FNR == NR && $1 == "pitch" { pitch = $2; next }
FNR == NR {
    ++count
    kind[count] = $1
    list[count] = $2
    row[count] = $3
    edge[count] = $4
    text[count] = $5
    if ($5 in at) {
        fault(WORDS, $5 " is expected twice")
    }
    at[$5] = count
    if ($1 == "cell") {
        ++cells[$2]
    }
    next
}

# --- What was found: LINE PAGE LEFT TOP RIGHT BOTTOM WORD

$4 >= bottom {
    footer[$1] = footer[$1] (footerPage[$1] ? " " : "") $7
    footerPage[$1] = $2
    next
}

{
    if ($3 < left - OUTSIDE || $5 > right + OUTSIDE || $4 < top - OUTSIDE ||
        $6 > bottom + OUTSIDE) {
        fault(BOX, $7 " reaches out of the margins of page " $2)
    }
    if (!($7 in at)) {
        fault(WORDS, $7 " does not belong on page " $2)
        next
    }
    n = at[$7]
    if (!(n in pageOf)) {
        pageOf[n] = $2
    }
    if (edge[n] != "-") {
        x = edge[n] ~ /^L/ ? $3 : $5
        if (!(edge[n] in edgeAt)) {
            edgeAt[edge[n]] = x
        } else if (distance(x, edgeAt[edge[n]]) > EDGE) {
            fault(EDGES, $7 " on page " $2 " is at " x ", others of its column at " \
                  edgeAt[edge[n]])
        }
    }
}

kind[n] == "head" {
    if (++heads[list[n], $2, n] > 1) {
        fault(HEADS, $7 " stands twice on page " $2)
    }
    headPage[n] = $2
    ++timesHead[n]
    headBottom[list[n], $2] = foundBottom = $6
    foundPage = $2
    next
}

{
    if (++times[n] > 1) {
        fault(WORDS, $7 " stands again on page " $2)
    }
    if (n < last) {
        fault(ORDER, $7 " on page " $2 " comes behind " text[last])
    }
    last = n
    if (kind[n] == "text" && kind[n - 1] == "text" && $2 != pageOf[n - 1]) {
        broken["text"] = 1
    }
    if (text[n] ~ /group$/ && $2 != foundPage && foundBottom < bottom - BREAK * pitch) {
        broken["group"] = 1
    }
    foundPage = $2
    foundBottom = $6
}

kind[n] == "cell" {
    l = list[n]
    if (!((l, $2) in firstTop)) {
        firstTop[l, $2] = $4
        if (l in lastPage) {
            broken[substr(l, 3)] = 1
        }
        ++listPages[l]
        pageOfList[l, listPages[l]] = $2
    } else if (row[n] != lastRow[l] && distance($4 - lastTop[l], pitch) > UNEVEN) {
        fault(ROWS, "row " row[n] " of " l " on page " $2 " is " $4 - lastTop[l] \
              " points below row " lastRow[l] ", a line is " pitch)
    } else if (row[n] == lastRow[l] && distance($4, lastTop[l]) > EDGE) {
        fault(ROWS, $7 " on page " $2 " is not in line with its row")
    }
    lastPage[l] = $2
    lastRow[l] = row[n]
    lastTop[l] = $4
}

# --- What is missing

END {
    for (n = 1; n <= count; ++n) {
        if (kind[n] == "head") {
            l = list[n]
            for (i = 1; i <= listPages[l]; ++i) {
                page = pageOfList[l, i]
                if (!((l, page, n) in heads)) {
                    fault(HEADS, text[n] " is missing on page " page)
                    continue
                }
                gap = firstTop[l, page] - headBottom[l, page]
                if (gap < 0 || gap > NEAR * pitch) {
                    fault(HEADS, text[n] " is not over its rows on page " page)
                }
            }
            wanted = l in cells ? listPages[l] : 1
            if (timesHead[n] != wanted) {
                fault(HEADS, text[n] " stands on " timesHead[n] + 0 " pages instead of " wanted + 0)
            }
        } else if (!(n in times)) {
            fault(WORDS, text[n] " is missing")
        }
        if (kind[n] == "keep" && pageOf[n] != pageOf[n + 1]) {
            fault(KEEP, text[n] " is on page " pageOf[n] + 0 ", " text[n + 1] " on page " \
                  pageOf[n + 1] + 0)
        }
    }
    for (line in footer) {
        if (footer[line] == "Page " footerPage[line] " of " footers) {
            ++timesFooter[footerPage[line]]
        } else {
            fault(BOX, "\"" footer[line] "\" stands under the text of page " footerPage[line])
        }
    }
    for (page = 1; page <= footers || page <= pages; ++page) {
        if (timesFooter[page] != 1 || page > pages) {
            fault(FOOT, "page " page " does not say that it is page " page " of " footers)
        }
    }
    for (i = split("rows lines sums text group", kinds); i > 0; --i) {
        if (!(kinds[i] in broken)) {
            fault(SPLIT, "no page ends with \"" kinds[i] "\": change numbers of rows")
        }
    }
    print count " words expected, " NR - count - 3 " found on " pages " pages"
    report(WORDS)
    report(ORDER)
    report(HEADS)
    report(FOOT)
    report(BOX)
    report(ROWS)
    report(EDGES)
    report(KEEP)
    report(SPLIT)
    print passed + 0 " passed, " failed + 0 " failed"
    exit failed > 0
}
