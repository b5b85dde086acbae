#!/bin/sh
# Each command that --help lists, and each of its own commands, has a help text and stands in docs/command-line.md.
set -eu
htdrdd=$1
commands() { "$htdrdd" "$@" --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z][a-z-]*\) .*/\1/p'; }
check() {
    "$htdrdd" "$@" --help | grep -q "^Usage: htdrdd $*" || { echo "htdrdd $* --help doesn't tell how to use it" >&2; exit 1; }
    grep -q "htdrdd $*" docs/command-line.md || { echo "docs/command-line.md doesn't name htdrdd $*" >&2; exit 1; }
}
test -n "$(commands)"
for command in $(commands); do
    check "$command"
    for own in $(commands "$command"); do check "$command" "$own"; done
done
