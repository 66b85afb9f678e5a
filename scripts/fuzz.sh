#!/usr/bin/env bash
# Builds the fuzz preset and runs every libFuzzer target from seeds of real files:
# the project reader for 60 s, each other target for 20 s. Exits non-zero when a
# target finds a crash; its reproducer is kept in build/fuzz/findings/TARGET.
# A target that is not built is skipped with a note.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD

scripts/install-deps.sh
cmake --preset fuzz
cmake --build --preset fuzz

bin=$root/build/fuzz/tests/fuzz
findings=$root/build/fuzz/findings
# libFuzzer writes its crash files into the working folder, and the targets
# their trace files into TMPDIR: both go to a folder of this run.
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Seeds: projects saved by the headless command, the shipped data files and the
# beam descriptions of the command's tests.
mkdir -p "$work/seeds/project" "$work/seeds/setup" "$work/seeds/material" "$work/seeds/profile"
(
    cd "$work"
    cli=$root/build/fuzz/app/cli/kvelder-cli
    "$cli" save -o seeds/project/example.kvel --data-dir "$root/data" >/dev/null
    for beam in "$root"/tests/app/golden/beams/*.json; do
        # A beam that fails its checks is not saved; the others are enough.
        "$cli" save "$beam" -o "seeds/project/$(basename "$beam" .json).kvel" --data-dir "$root/data" \
            >/dev/null 2>&1 || true
    done
)
cp data/Kveldersetup.csv "$work/seeds/setup/"
cp data/EC5Material.csv "$work/seeds/material/"
cp data/EC5Profile.csv "$work/seeds/profile/"

failed=()

# fuzz TARGET SECONDS SEED_FILES...
fuzz() {
    local target=$1 seconds=$2
    shift 2
    if [ ! -x "$bin/$target" ]; then
        echo "$target: not built, skipped"
        return
    fi
    local dir=$work/$target
    mkdir -p "$dir/corpus"
    cp "$@" "$dir/corpus/"
    if (cd "$dir" && TMPDIR=$dir "$bin/$target" -max_total_time="$seconds" corpus >log 2>&1); then
        echo "$target: $(grep -m1 '^Done' "$dir/log")"
        return
    fi
    failed+=("$target")
    tail -n 60 "$dir/log"
    mkdir -p "$findings/$target"
    find "$dir" -maxdepth 1 -type f \( -name 'crash-*' -o -name 'leak-*' -o -name 'timeout-*' -o -name 'oom-*' \) \
        -exec cp {} "$findings/$target/" \;
    echo "$target: FAILED, reproducers in $findings/$target"
}

fuzz project_reader_fuzz 60 "$work"/seeds/project/*
fuzz setup_file_fuzz 20 "$work"/seeds/setup/*
fuzz material_catalogue_fuzz 20 "$work"/seeds/material/*
fuzz profile_catalogue_fuzz 20 "$work"/seeds/profile/*
fuzz beam_description_fuzz 20 "$root"/tests/app/golden/beams/*.json

if [ ${#failed[@]} -gt 0 ]; then
    echo "Fuzzing found crashes in: ${failed[*]}"
    exit 1
fi
