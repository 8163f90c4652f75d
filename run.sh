#!/usr/bin/env bash
# Builds the release, assembles build/release/Miraldos/ and runs the main job: with a display, the
# program with a simulated instrument on COM1; without one, a download and an export on the console.
set -euo pipefail
cd "$(dirname "$0")"
tools/dependencias.sh construir
cmake --preset release
cmake --build --preset release
exec tools/demostracion.sh "$PWD/build/release/Miraldos"
