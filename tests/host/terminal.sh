#!/bin/sh
# terminal.sh HTDRDD: on a terminal, lines keep to the terminal's width, whatever COLUMNS is, and headings are
# in colour unless NO_COLOR is set.
escape=$(printf '\033')
COLUMNS=200
export COLUMNS
unset NO_COLOR
fail() {
    echo "$1"
    exit 1
}
on_terminal() {
    script -qec "stty cols 72; $1 '$2' show samples/exam.rdd" /dev/null </dev/null | tr -d '\r'
}

coloured=$(on_terminal "" "$1")
echo "$coloured" | grep -q "^$escape\[1mQuestions$escape\[0m\$" || fail "no bold heading"
plain=$(on_terminal "NO_COLOR=1" "$1")
case $plain in
*"$escape"*) fail "escapes under NO_COLOR" ;;
esac
widest=$(echo "$plain" | LC_ALL=C.UTF-8 awk '{ gsub(/×|…|–/, "x"); if (length($0) > n) n = length($0) } END { print n }')
[ "$widest" -eq 72 ] || fail "lines are $widest wide, not 72"
