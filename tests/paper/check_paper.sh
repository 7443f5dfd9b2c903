#!/usr/bin/env bash
# Prints the document of paper_job, reads the pages back and compares them with what must be there:
# check_paper.sh PAPER_JOB.exe FOLDER
# In the folder, which is made if need be, the pages stay as paper.pdf.
set -u
export LC_ALL=C
here=$(cd "$(dirname "$0")" && pwd)
job=$1
mkdir -p "$2" && folder=$(cd "$2" && pwd) || exit 1

fail() {
    echo "check_paper: $*" >&2
    echo "0 passed, 1 failed"
    exit 1
}

windows_path() { echo "Z:$1" | tr / '\\'; }

rm -f "$folder"/paper.*
"$here/../../cmake/wine-run" "$job" "$(windows_path "$folder/paper.ps")" \
    "$(windows_path "$folder/paper.expected")" || fail "the job did not print"
ps2pdf "$folder/paper.ps" "$folder/paper.pdf" || fail "what was printed is no PostScript"
pdftotext -bbox "$folder/paper.pdf" "$folder/paper.html" || fail "the pages have no text to read"

# PAGE LEFT TOP RIGHT BOTTOM WORD, by page and height; then with the line, in the order of reading.
awk -F'"' '
    /<page / { ++page }
    /<word / {
        word = $9
        gsub(/^>|<\/word>.*$/, "", word)
        print page, $2, $4, $6, $8, word
    }' "$folder/paper.html" | sort -k1,1n -k3,3n |
    awk '
        $1 != page || $3 - top > 1 { ++line; page = $1; top = $3 }
        { print line, $0 }' | sort -k1,1n -k3,3n >"$folder/paper.words"

awk -v pages="$(grep -c '<page ' "$folder/paper.html")" -f "$here/check_paper.awk" \
    "$folder/paper.expected" "$folder/paper.words"
