#!/bin/sh
# Checks formatting and runs clang-tidy over all sources. Usage: scripts/tidy.sh [FILE...]
set -eu
cd "$(dirname "$0")/.."
. scripts/install.sh
install_packages build tests tidy

git ls-files '*.h' '*.cpp' | xargs clang-format --dry-run -Werror
# Configured for clang, which neither knows every flag of other compilers nor reads their precompiled headers.
cmake --preset plain -B build/tidy -DCMAKE_CXX_COMPILER=clang++ -DSPLITFRAME_BUILD_TESTS=OFF -DSPLITFRAME_PRECOMPILE=OFF >/dev/null
if [ $# -eq 0 ]; then
    # shellcheck disable=SC2046
    set -- $(git ls-files 'src/*.cpp' 'tools/*.cpp' 'examples/*.cpp')
fi
printf '%s\n' "$@" | xargs -P "$(nproc)" -n 4 clang-tidy -p build/tidy --quiet
