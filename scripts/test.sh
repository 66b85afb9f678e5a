#!/usr/bin/env bash
# Installs what the build needs, builds the debug configuration and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh
cmake --preset debug
cmake --build --preset debug
ctest --preset debug
