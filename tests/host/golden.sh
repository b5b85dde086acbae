#!/bin/sh
# golden.sh HTDRDD NAME [ARGUMENT...]: runs htdrdd and compares its output, its complaints and its exit code
# with golden/NAME.txt. HTDRDD_UPDATE_GOLDEN=1 writes the golden file instead. GOLDEN_WIDTH is the width, 100
# by default. Line numbers of the library are masked. For names that begin with json_sample_, each question
# and each objective is put on one line.
htdrdd=$1
name=$2
shift 2
golden=$(dirname "$0")/golden/$name.txt
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT

COLUMNS=${GOLDEN_WIDTH:-100} "$htdrdd" "$@" >"$work/output" 2>"$work/complaints" </dev/null
code=$?
fold() {
    awk '/^    / && !/^    [{]/ { sub(/^ +/, ""); printf " %s", $0; next }
         NR > 1 { print "" }
         { printf "%s", $0 }
         END { print "" }'
}
{
    case $name in
    json_sample_*) fold <"$work/output" ;;
    *) cat "$work/output" ;;
    esac
    echo "--- standard error"
    sed 's/; Line: [0-9]*/; Line: #/' "$work/complaints"
    echo "--- exit code $code"
} >"$work/actual"

if [ "$HTDRDD_UPDATE_GOLDEN" = 1 ]; then
    cp "$work/actual" "$golden"
else
    diff -u "$golden" "$work/actual"
fi
