#!/usr/bin/env bash
# Installs what the build needs and builds the release configuration. The
# calculation core and its tests are all there is so far; the headless command and
# the window, which show the example beam, are built here once they exist.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh
cmake --preset release
cmake --build --preset release
echo "Built the calculation core in build/release."
