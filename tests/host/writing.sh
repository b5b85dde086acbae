#!/bin/sh
# writing.sh HTDRDD NAME: runs the commands of NAME below in a folder with copies of the samples and compares
# their output, followed by a list of the files left, with golden/writing_NAME.txt, as golden.sh does.
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
    : >"$work/input" && run_with_input "$@"
}
# given TEXT ARGUMENT...: runs htdrdd with TEXT on standard input.
given() {
    text=$1
    shift
    printf "\$ htdrdd %s, given '%s'\n" "$*" "$text"
    printf "$text" >"$work/input" && run_with_input "$@"
}
run_with_input() {
    "$htdrdd" "$@" >"$work/output" 2>&1 <"$work/input"
    code=$?
    sed 's/; Line: [0-9]*/; Line: #/' "$work/output"
    echo "--- exit code $code"
}
# run_on_terminal TEXT ARGUMENT...: types TEXT. It isn't echoed: the echo would appear at a random place.
run_on_terminal() {
    typed=$1
    shift
    printf "\$ htdrdd %s, answered with '%s'\n" "$*" "$typed"
    printf "$typed" | script -qE never -c "'$htdrdd' $*; echo --- exit code \$?" /dev/null | tr -d '\r'
}
# Prints the differences of two definitions.
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
# edited SAMPLE EXPRESSION FILE: writes a copy of a sample, edited by sed, in UTF-16.
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

scale() {
    cp "$samples/letters.scale.xml" letters.xml
    run scale export exam.rdd mastery.xml --objective Genetics
    run scale show mastery.xml --json
    run scale import exam.rdd mastery.xml -o overall.rdd --plain
    compare exam.rdd overall.rdd
    run scale import exam.rdd letters.xml --objective 3 -o new.rdd --json
    compare exam.rdd new.rdd
    run scale grade new.rdd 90 89.9996 89.9994 5% -5 --objective 3
    run scale grade mastery.xml 82.5 82.449 59.95 --places 1
    given '89.5%%\r\n\nabc\n-0.5\n90,5' scale grade exam.rdd
    given '70\n1e2' scale grade letters.xml --json
    run scale grade exam.rdd 90 9O
    "$htdrdd" scale clip exam.rdd | od -An -c
    given 'Pass\t50%%\nFail\t' scale clip --paste - -o pasted.xml --name Pasted
    given 'F\t0\r\nA\t90\r\n' scale clip --paste - -o upside.xml
    run scale grade upside.xml 95
    for clip in '' '\n' 'A\t90\n\nF\t0'; do given "$clip" scale clip --paste - -o none.xml; done
    for name in pasted upside; do cat $name.xml && echo; done
}
scores() {
    run scaled-score show exam.rdd
    run scaled-score export exam.rdd norm.xml
    run scaled-score show norm.xml --secrets
    run scaled-score import quiz.rdd norm.xml -o new.rdd
    compare quiz.rdd new.rdd
    sed 's/DB.ScoreField="scaled"/DB.ScoreField=""/' norm.xml >invalid.xml
    run scaled-score import quiz.rdd invalid.xml -o none.rdd
    sed 's/DB.User="../DB.User="XX/' norm.xml >broken.xml
    run scaled-score show broken.xml
    run scaled-score export exam.rdd none.xml --objective 2
    run score percent 7 25
    run score percent 7 0
    run score total 33.3% 50 --json
    run score total 1e2 50
    run score possible exam.rdd --objective Genetics
}
library() {
    cp "$samples/letters.scale.xml" letters.xml && cp "$samples/scales.library" a.lib
    run library list a.lib
    run library rename a.lib 'Mastery levels' Levels
    run library add a.lib quiz.rdd --name ' New '
    run library remove a.lib 'Letter grades' -o b.lib --json
    run library list b.lib && cp a.lib kept.lib
    run library add a.lib letters.xml
    run library rename a.lib Levels New
    for name in Missing levels; do run library rename a.lib $name Other; done
    run library add a.lib quiz.rdd --name 'A	B'
    sed 's/Grade="A"/Grade="A\&#9;80\&amp;B"/' letters.xml >tab.xml
    run library add a.lib tab.xml --name Tab
    cmp a.lib kept.lib
    for name in exam older; do run library add --scaled-scores s.lib $name.rdd; done
    run library list --scaled-scores s.lib
    run library add s.lib letters.xml
    # An entry twice, an empty one, half a character, another form of a number, no library at all.
    for text in 'A\t0&F\vA\t0&F' 'A\t0&F\v\vB\t0&F' '\377\376A' 'A\t90%%&A' 'A\nB'; do
        printf "$text" >odd.lib
        run library add odd.lib letters.xml
        printf "$text" | cmp - odd.lib
    done
    : >empty.lib && for name in empty.lib tab.xml; do run library add $name letters.xml; done
}
input() {
    mkdir folder
    "$htdrdd" show - <exam.rdd | head -3
    "$htdrdd" convert --plain - new.rdd <exam.rdd && compare exam.rdd new.rdd
    run diff - -
    run scale grade -
    run scale show folder
    run scale show exam.rdd --objective Missing
    cp "$samples/letters.scale.xml" letters.xml
    run scale show letters.xml --objective 1
    sed '1s/^/<!DOCTYPE HaldenTallyDesk>/' letters.xml >type.xml && run scale show type.xml
    run scale export exam.rdd none/new
    run scale export exam.rdd ./exam.rdd
    given 'text' scale import exam.rdd - -o new.rdd
    run library remove - x
    ls "$TMPDIR"
}

{ "$2"; ls | grep -v '\.rdd$'; } >"$work/actual" 2>&1
if [ "$HTDRDD_UPDATE_GOLDEN" = 1 ]; then
    cp "$work/actual" "$golden"
else
    diff -u "$golden" "$work/actual"
fi
