#!/usr/bin/env bash
# The Windows build, proven on this machine: kvelder-cli and every test that
# needs no Qt, cross-built with mingw-w64 with warnings as errors; the tests run
# under wine; and kvelder-cli's results, project files and trace files compared
# with the Linux build's for the example beam and a seeded set of random beams.
set -euo pipefail
cd "$(dirname "$0")/.."

beams=${KVELDER_WINDOWS_BEAMS:-100}
wine=/usr/lib/wine/wine64

scripts/install-deps.sh windows
cmake --preset windows-cross
cmake --build --preset windows-cross

# wine makes its prefix at the first start; the server it leaves running makes
# every later start quick, and is stopped at the end.
export WINEPREFIX="$PWD/build/windows-cross/wine" WINEDEBUG=-all
work=$(mktemp -d)
trap '/usr/lib/wine/wineserver -k 2>/dev/null || true; rm -rf "$work"' EXIT
"$wine" cmd /c exit >/dev/null 2>&1 || true

ctest --preset windows-cross

# The Linux side: the debug build's tool and the tests' beam generator.
if [ ! -f build/debug/build.ninja ]; then
  cmake --preset debug
fi
cmake --build --preset debug --target kvelder-cli random_beams
linux_cli=$PWD/build/debug/app/cli/kvelder-cli
windows_cli=$PWD/build/windows-cross/app/cli/kvelder-cli.exe
build/debug/tests/random_beams "$beams" "$work/beams"

linux_cmd=("$linux_cli")
windows_cmd=("$wine" "$windows_cli")

# One beam on one side: calc's output and exit code and its trace files, and the
# project file save writes, in a folder of their own.
run_side() { # side name [beam]
  local -n cmd="$1_cmd"
  local folder="$work/$1/$2"
  mkdir -p "$folder"
  (
    cd "$folder"
    set +e
    "${cmd[@]}" calc "${@:3}" >calc.out 2>/dev/null
    echo $? >calc.exit
    "${cmd[@]}" save "${@:3}" -o project.kvel >/dev/null 2>&1
    echo $? >save.exit
  )
  # Line ends aside, the printed results are the same text.
  tr -d '\r' <"$folder/calc.out" >"$folder/calc.txt" && rm "$folder/calc.out"
}

differences=0
compare() { # name [beam]
  run_side linux "$@"
  run_side windows "$@"
  if ! diff -r -q "$work/linux/$1" "$work/windows/$1" >/dev/null; then
    echo "differs: $1"
    diff -r "$work/linux/$1" "$work/windows/$1" | head -20 || true
    differences=$((differences + 1))
  fi
}

compare example
for k in $(seq 1 "$beams"); do
  compare "beam_$k" "$work/beams/beam_$k.json"
done

compared=$((beams + 1))
echo "kvelder-cli under wine against Linux, beam by beam (results, project files, trace files):"
echo "windows: $((compared - differences)) passed, $differences failed"
[ "$differences" -eq 0 ]
