#!/usr/bin/env bash
# Installs the Debian packages that building and testing need, and generates the
# locale nb_NO.UTF-8. Safe to run again: when every package and the locale are
# already there it returns without touching apt.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config
  qt6-base-dev qt6-base-dev-tools libgl-dev
  libgtest-dev libgmock-dev googletest
  libbenchmark-dev
  nlohmann-json3-dev
  # the fuzz preset: clang, its libFuzzer and sanitizer runtimes, llvm-symbolizer for the reports
  clang libclang-rt-dev llvm
  fonts-liberation fontconfig
  # the report tests read PDFs back: pdftotext, pdftoppm
  poppler-utils
  # the tests run once more under nb_NO.UTF-8, whose decimal separator is a comma
  locales
)

# scripts/install-deps.sh windows: also the cross compiler and wine of scripts/test-windows.sh.
if [ "${1:-}" = windows ]; then
  packages+=(g++-mingw-w64-x86-64-posix gcc-mingw-w64-x86-64-posix wine64)
fi

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$p")
  fi
done

has_nb_locale() { locale -a 2>/dev/null | grep -ix 'nb_NO.utf-\?8' >/dev/null; }
if [ ${#missing[@]} -eq 0 ] && has_nb_locale; then
  exit 0
fi

sudo_cmd=()
if [ "$(id -u)" -ne 0 ]; then sudo_cmd=(sudo); fi
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  export DEBIAN_FRONTEND=noninteractive
  "${sudo_cmd[@]}" apt-get update -qq
  "${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
if ! has_nb_locale; then
  echo "Generating the locale nb_NO.UTF-8"
  echo 'nb_NO.UTF-8 UTF-8' | "${sudo_cmd[@]}" tee -a /etc/locale.gen >/dev/null
  "${sudo_cmd[@]}" locale-gen
fi
