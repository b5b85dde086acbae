#!/bin/sh
# writing.sh HTDRDD NAME: runs the commands of NAME below in a folder with copies of the samples and compares what
# they print with golden/writing_NAME.txt, as golden.sh does. At the end stand the files that they left.
htdrdd=$1
samples=$PWD/samples
golden=$(cd "$(dirname "$0")" && pwd)/golden/writing_$2.txt
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT
mkdir "$work/files" "$work/tmp"
export TMPDIR="$work/tmp" # archived saves leave their text there
cp "$samples"/*.rdd "$work/files"
cd "$work/files" || exit 1

run() {
    echo "\$ htdrdd $*"
    "$htdrdd" "$@" >"$work/output" 2>&1 </dev/null
    code=$?
    sed 's/; Line: [0-9]*/; Line: #/' "$work/output"
    echo "--- exit code $code"
}
# What is typed, then the arguments. It isn't echoed: that would come in between at random.
run_on_terminal() {
    typed=$1
    shift
    printf "\$ htdrdd %s, answered with '%s'\n" "$*" "$typed"
    printf "$typed" | script -qE never -c "'$htdrdd' $*; echo --- exit code \$?" /dev/null | tr -d '\r'
}
# Prints what differs.
compare() {
    echo "\$ compare $1 $2"
    "$htdrdd" show --json --secrets "$1" | grep -v '"FileName"' >"$work/first"
    "$htdrdd" show --json --secrets "$2" | grep -v '"FileName"' | diff "$work/first" -
}

convert() {
    for name in exam quiz survey generic older; do
        run convert $name.rdd $name.archive
        compare $name.rdd $name.archive
        run convert --plain $name.archive $name.plain
        compare $name.archive $name.plain
    done
    for form in archive plain; do od -An -c -N 4 exam.$form; done
}
backup() {
    run convert older.rdd older.rdd
    run convert older.rdd older.rdd
    cp "$samples/older.rdd" . && run convert --plain older.rdd older.rdd
    od -An -c -N 4 older.rdd
    cmp older.rdd.old "$samples/older.rdd"
}
question() {
    sed 's/^Answer=B/Answer=a/' "$samples/older.rdd" >older.rdd
    cp older.rdd before.rdd
    run convert older.rdd older.rdd
    for answer in '\n' '' 'c\n'; do run_on_terminal "$answer" convert older.rdd older.rdd; done
    cmp older.rdd before.rdd
    ls "$TMPDIR"
    run_on_terminal ' OK\n' convert --plain older.rdd new.plain
    run convert --yes older.rdd older.rdd
    compare new.plain older.rdd
}
header() {
    run header save exam.rdd exam.header
    run header load --plain quiz.rdd exam.header -o new.rdd
    compare quiz.rdd new.rdd
    run header save new.rdd again.header
    cmp exam.header again.header
    iconv -f UTF-16 -t CP1252 exam.header >older.header
    run header load quiz.rdd older.header -o quiz.rdd
    compare new.rdd quiz.rdd
    run header save quiz.rdd older.header
}
# edited SAMPLE EXPRESSION FILE: writes a sample in UTF-16 anew, edited by sed.
edited() {
    iconv -f UTF-16 -t UTF-8 "$samples/$1.rdd" | sed "$2" | iconv -f UTF-8 -t UTF-16 >"$3"
}
differences() {
    edited quiz '/=Q1/,/^Bench/s/^CorrectAnswer=C/CorrectAnswer=B/; /=Q2/,/^Bench/s/^IncludeGrade=-1/IncludeGrade=0/
        /=Q4/,/^Bench/{s/^ExtraCredit=-1/ExtraCredit=0/; s/^CorrectPoints=2/CorrectPoints=.5/; s/^AnswerValues=A/&1/}
        s/^StartValues=60/StartValues=55/' new.rdd
    run diff quiz.rdd new.rdd
    run diff new.rdd quiz.rdd
    run diff --json quiz.rdd new.rdd
    edited exam 's/^Sequence=1\t2\t3/Sequence=1\t3\t2/; s/^\(ScaledScoreDBUser=\).*\r/\1\r/' new.rdd
    run diff exam.rdd new.rdd
    edited exam 's/^Question[NT].*=/&?/; s/^Notes=/&?/; s/^\(Benchmark=\).*\r/\11\r/; s/^_R1C1_FLD.*=/&?/' new.rdd
    run diff exam.rdd new.rdd
    run diff quiz.rdd generic.rdd
    run diff missing.rdd generic.rdd
}
merge() {
    printf '3\t2+\t\t(1&4)|How?\t5\r\n' >one.txt
    run merge quiz.rdd one.txt
    run merge --plain quiz.rdd one.txt -o one.rdd
    run diff quiz.rdd one.rdd
    printf 'Red\t1\t2\t3\t4\t5\r\nBlue\t2\t1\t4\t3,1\t5\r\n' >versions.txt
    run merge --json quiz.rdd versions.txt -o quiz.rdd
    cmp -s quiz.rdd "$samples/quiz.rdd" || echo quiz.rdd is another one
    run merge --generic older.rdd generic.rdd
}
unmerged() {
    mkdir folder
    printf 'Red\t1\t2\t3\t4\t5\r\nBlue\t2\t1\t4\t3,1\t4\r\n' >versions.txt
    run merge quiz.rdd versions.txt -o new.rdd
    run merge --force quiz.rdd versions.txt -o new.rdd
    printf '9\t1\t2\t2\t2\r\n' >bad.txt
    run merge quiz.rdd bad.txt
    edited generic '0,/^CorrectAnswer=2/s//CorrectAnswer=/' unanswered.rdd
    run merge --generic exam.rdd unanswered.rdd -o none.rdd
    : >empty.txt
    printf '\t\t' >tabs.txt
    for key in missing.txt folder empty.txt tabs.txt; do run merge quiz.rdd $key -o none.rdd; done
    for key in tabs.txt quiz.rdd; do run merge --generic quiz.rdd $key -o none.rdd; done
    run merge quiz.rdd versions.txt -o ./versions.txt
    run merge quiz.rdd versions.txt --force
    run merge --force quiz.rdd versions.txt -o none/new
    ls *.rdd
}
refused() {
    mkdir folder
    run convert missing.rdd new
    run convert exam.rdd folder
    run convert exam.rdd none/new
    run convert --plain exam.rdd none/new
    run header save missing.rdd new
    run header save exam.rdd none/new
    run header save exam.rdd ./exam.rdd
    run header load missing.rdd exam.header -o new
    for name in missing.header folder exam.rdd; do run header load exam.rdd $name -o new; done
    run header load exam.rdd exam.header
    cmp exam.rdd "$samples/exam.rdd"
}

{ "$2"; ls | grep -v '\.rdd$'; } >"$work/actual" 2>&1
if [ "$HTDRDD_UPDATE_GOLDEN" = 1 ]; then
    cp "$work/actual" "$golden"
else
    diff -u "$golden" "$work/actual"
fi
