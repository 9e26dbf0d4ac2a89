#!/usr/bin/env bash
# Feeds changed bytes to the frame codec, the image decoder and the loader of data files, with the sanitizers on.
#   tools/fuzz.sh [SECONDS] [TARGET ...]    60 seconds for each of fuzz_codec, fuzz_image and fuzz_file
# Findings are kept in build-fuzz/findings; the exit code is that of the first target that found something.
set -euo pipefail
cd "$(dirname "$0")/.."

seconds="${1:-60}"
[ $# -gt 0 ] && shift
targets=("$@")
[ ${#targets[@]} -gt 0 ] || targets=(fuzz_codec fuzz_image fuzz_file)

command -v clang++ >/dev/null || { echo "clang++ with libFuzzer is missing: install the packages clang and libclang-rt-dev" >&2; exit 1; }

cmake -S . -B build-fuzz -G Ninja -DKX_FUZZ=ON -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ \
  -DCMAKE_CXX_FLAGS="-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined" >/dev/null
cmake --build build-fuzz -j 2 --target "${targets[@]}"

# What to start from: the kept data files without their seal, and their images behind a byte that names the tier.
python3 - <<'PY'
from pathlib import Path

kept = Path("tests/link/images")
for tier, name in enumerate(("Basic", "Standard", "Advanced")):
    for target in ("fuzz_file", "fuzz_image", "fuzz_codec"):
        (Path("build-fuzz/corpus") / target).mkdir(parents=True, exist_ok=True)
    lines = (kept / f"{name}.k4p").read_bytes().splitlines(keepends=True)
    Path(f"build-fuzz/corpus/fuzz_file/{name}").write_bytes(b"".join(lines[:-1]))
    head, *rows = (kept / f"{name}.hex").read_text().split("\n")
    image = bytearray(int(head.split()[2]))
    for row in filter(None, rows):
        at, data = row.split()
        image[int(at, 16):int(at, 16) + len(data) // 2] = bytes.fromhex(data)
    Path(f"build-fuzz/corpus/fuzz_image/{name}").write_bytes(bytes([128 + (tier + 3 - 128 % 3) % 3]) + image)
PY

mkdir -p build-fuzz/findings
for target in "${targets[@]}"; do
  echo "== $target"
  build-fuzz/fuzz/"$target" -max_total_time="$seconds" -max_len=150000 -timeout=20 -rss_limit_mb=4096 -print_final_stats=1 \
    -artifact_prefix=build-fuzz/findings/ build-fuzz/corpus/"$target" 2>&1 | grep -E "ERROR|SUMMARY|stat::(number|peak)|Test unit" || true
  ls build-fuzz/findings/* >/dev/null 2>&1 && { echo "findings in build-fuzz/findings" >&2; exit 1; }
done
echo "nothing found"
