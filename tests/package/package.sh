#!/bin/sh
# package.sh BUILD FOLDER CXX CXXFLAGS: installs a build into a folder and builds a program with only that.
set -eu
build=$1 folder=$2 cxx=$3 flags=$4
source=$(cd "$(dirname "$0")/../.." && pwd)
rm -rf "$folder"
cmake --install "$build" --prefix "$folder/installed" >/dev/null
if grep -rlF -e "$source" -e "$build" "$folder/installed/include"; then
    echo "These headers name the builder's folders." >&2
    exit 1
fi
cmake -S "$source/tests/package" -B "$folder/build" -G Ninja -DCMAKE_PREFIX_PATH="$folder/installed" \
    -DCMAKE_CXX_COMPILER="$cxx" -DCMAKE_CXX_FLAGS="$flags" >/dev/null
cmake --build "$folder/build"
"$folder/build/program" "$source/samples/quiz.rdd"
