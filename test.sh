#!/usr/bin/env bash
# The gate: installs what is missing, checks format and structure, lints what changed, builds and runs the tests.
#   ./test.sh          campaigns with small counts
#   ./test.sh --full   lint of everything, the sanitizer build with the same tests, the full counts
# The last line is "N passed, N failed".
set -uo pipefail
cd "$(dirname "$0")"

full=""
[ "${1:-}" = "--full" ] && full=1

tools/install_packages.sh test || exit 1

passed=0
failed=0
count() { # name, exit status
  if [ "$2" = 0 ]; then
    passed=$((passed + 1))
    echo "ok      $1"
  else
    failed=$((failed + 1))
    echo "FAILED  $1"
  fi
}

mapfile -t sources < <(git ls-files --cached --others --exclude-standard '*.cpp' '*.h')

clang-format --dry-run -Werror "${sources[@]}"
count "format" $?
python3 tools/check_structure.py
count "structure" $?
python3 tools/include_graph.py --check
count "include graph of docs/architecture.md" $?
python3 tools/translations.py --check
count "translations" $?

cmake --preset release >build-configure.log 2>&1
configured=$?
[ "$configured" = 0 ] || cat build-configure.log
rm -f build-configure.log
count "configure" $configured
cmake --build --preset release
count "build" $?

if [ -n "$full" ]; then
  lint=("${sources[@]}")
else
  base=$(git rev-parse --verify --quiet '@{upstream}' || git rev-parse --verify --quiet origin/HEAD || true)
  if [ -n "$base" ]; then
    mapfile -t lint < <({ git diff --name-only --diff-filter=d "$base" -- '*.cpp'; git ls-files --others --exclude-standard '*.cpp'; } | sort -u)
  else
    lint=()
  fi
fi
python3 tools/lint.py build "${lint[@]}"
count "lint of ${#lint[@]} files" $?

run_tests() { # preset's build folder
  ctest --test-dir "$1" --output-on-failure -j 2
  local totals
  totals=$(python3 tools/count_tests.py "$1")
  passed=$((passed + ${totals% *}))
  failed=$((failed + ${totals#* }))
}

if [ "$failed" = 0 ]; then
  tools/check_package.sh build
  count "package" $?
  KX_FULL=$full run_tests build
  if [ -n "$full" ]; then
    cmake --preset asan >/dev/null && cmake --build --preset asan
    count "sanitizer build" $?
    KX_FULL_SANITIZED=1 run_tests build-asan
  fi
fi

echo "$passed passed, $failed failed"
[ "$failed" = 0 ]
