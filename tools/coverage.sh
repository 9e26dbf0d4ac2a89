#!/usr/bin/env bash
# Line coverage of the decoders of data files under the campaign of damaged files, which has to be above 90 %.
#   tools/coverage.sh [PERCENT]    builds what the campaign needs into build-coverage, the decoders with counters
set -euo pipefail
cd "$(dirname "$0")/.."

wanted="${1:-90}"
decoders=(data_file_reader tier_json_reader record_json json_text sealed_text file_kind)

cmake -S . -B build-coverage -G Ninja -DCMAKE_BUILD_TYPE=Release -DKX_COVERAGE=ON >/dev/null
cmake --build build-coverage -j 2 --target damaged_files_campaign
find build-coverage -name '*.gcda' -delete
KX_FULL=1 QT_QPA_PLATFORM=offscreen "$(find build-coverage -name damaged_files_campaign -type f -perm -u+x)"

objects=build-coverage/src/transformer/files/CMakeFiles/kx_files.dir
for decoder in "${decoders[@]}"; do
  gcov --json-format --stdout "$objects/$decoder.cpp.gcda"
done | python3 -c '
import json, sys

wanted, names = float(sys.argv[1]), sys.argv[2:]
total = run = 0
for name, report in zip(names, map(json.loads, sys.stdin.read().splitlines())):
    lines = {}
    for file in report["files"]:
        if file["file"].endswith(f"/files/{name}.cpp"):
            for line in file["lines"]:
                lines[line["line_number"]] = lines.get(line["line_number"], 0) + line["count"]
    never = sorted(number for number, count in lines.items() if count == 0)
    total, run = total + len(lines), run + len(lines) - len(never)
    missed = ", ".join(map(str, never))
    print(f"{name}.cpp: {len(lines) - len(never)} of {len(lines)} lines" + (f"; never: {missed}" if never else ""))
percent = 100 * run / total
print(f"{percent:.1f} % of {total} lines, wanted above {wanted:g} %")
sys.exit(percent <= wanted)' "$wanted" "${decoders[@]}"
