#!/bin/sh
# broken.sh HTDRDD NAME SAMPLE EXPRESSION [ARGUMENT...]: like golden.sh, in a folder with copies of the
# samples, where a sed expression edits SAMPLE. Each sample keeps its character set.
htdrdd=$1
name=$2
sample=$3
expression=$4
shift 4
here=$(dirname "$0")
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT

cp samples/*.rdd "$work"
case $sample in
older) set_name=CP1252 mark= ;;
*) set_name=UTF-16LE mark='\377\376' ;;
esac
{
    printf "$mark"
    tail -c +$((${#mark} / 4 + 1)) "samples/$sample.rdd" | iconv -f $set_name -t UTF-8 |
        LC_ALL=C sed "$expression" | iconv -f UTF-8 -t $set_name
} >"$work/$sample.rdd"
if cmp -s "samples/$sample.rdd" "$work/$sample.rdd"; then
    echo "the expression changes nothing"
    exit 1
fi
cd "$work" && sh "$here/golden.sh" "$htdrdd" "$name" "$@"
