#!/usr/bin/env bash
# Builds the library and runs the demo; results land in out/demo/.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
cmake -S . -B build-demo -DCMAKE_BUILD_TYPE=Release -DPXL_BUILD_TESTS=OFF -DPXL_BUILD_EXAMPLES=ON >/dev/null
cmake --build build-demo -j"$(nproc)" --target pxl_demo
mkdir -p out/demo
build-demo/examples/pxl_demo out/demo
