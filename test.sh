#!/usr/bin/env bash
# Builds the dev preset (sanitizers) and runs every test.
set -euo pipefail
cd "$(dirname "$0")"
tools/dependencias.sh probar
cmake --preset dev
cmake --build --preset dev
ctest --preset dev -j"$(nproc)"
