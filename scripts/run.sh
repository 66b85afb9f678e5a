#!/usr/bin/env bash
# Installs what the build needs, builds the release configuration and starts
# the window on the example beam. Without a display it says so, writes what
# the window would show to build/run/ and prints the example beam's results.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh
cmake --preset release
cmake --build --preset release
# A run leaves its trace files in the working folder: keep them out of the sources.
mkdir -p build/run
cd build/run
if [[ -n "${DISPLAY:-}" || -n "${WAYLAND_DISPLAY:-}" ]]; then
    exec ../release/app/window/kvelder "$@"
fi
echo "No display: the window is written to build/run/frmMain.png instead."
../release/app/window/kvelder --screenshots . "$@"
../release/app/cli/kvelder-cli calc --text
