#!/usr/bin/env bash
# Installs what the build needs, builds the release configuration and runs the
# example beam through the headless command, which prints its results as a table.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh
cmake --preset release
cmake --build --preset release
# The run leaves its trace files in the working folder: keep them out of the sources.
mkdir -p build/run
cd build/run
../release/app/cli/kvelder-cli calc --text
