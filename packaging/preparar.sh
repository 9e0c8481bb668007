#!/usr/bin/env bash
# Installs what a build or a test needs and is not there, saying what and why. Debian and Ubuntu.
# Usage: preparar.sh run | test
set -euo pipefail

# package and the reason it is needed
run_packages=(
  "g++|the compiler"
  "cmake|the build"
  "ninja-build|the build"
  "pkg-config|finding the picture libraries"
  "qt6-base-dev|windows, fonts and picture files"
  "libgl-dev|Qt's build files ask for it"
  "libqt6svg6|the icons and SVG pictures"
  "qt6-translations-l10n|the system's dialogs in Spanish"
  "libjpeg-dev|reading photographs row by row"
  "libpng-dev|PNG pictures"
  "libgif-dev|the frames of animated GIFs, and films written as such"
  "libimagequant-dev|the colours of films written as GIFs"
  "libwmf-dev|WMF pictures"
  "libseccomp-dev|the walls around the process that reads WMF and SVG pictures"
  "qt6-image-formats-plugins|WebP, TIFF and other pictures"
  "gsfonts|the letters of WMF pictures"
  "libzip-dev|zipped FIGlet fonts"
  "fonts-dejavu-core|the fixed-pitch font that stands for Lucida Console"
)
test_packages=(
  "libgtest-dev|the tests of the logic"
  "libgmock-dev|the tests of the logic"
  "python3|driving the browser"
  "chromium|playing the pages in a real browser"
  "chromium-driver|playing the pages in a real browser"
  "clang|the fuzzers"
  "libclang-rt-dev|the fuzzers and sanitizers"
  "clang-format|the style check"
  "clang-tidy|the check of names and of common mistakes"
  "appstream|the check of what software centres read"
  "desktop-file-utils|the check of the desktop's entry"
)

wanted=("${run_packages[@]}")
if [ "${1:-run}" = test ]; then wanted+=("${test_packages[@]}"); fi

missing=()
for row in "${wanted[@]}"; do
  package=${row%%|*}
  if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed'; then
    missing+=("$package")
    echo "Pixmosa necesita $package (${row#*|}); se instala ahora."
  fi
done
[ ${#missing[@]} -gt 0 ] || exit 0

sudo=()
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || { echo "Hace falta sudo, o ser root, para instalar: ${missing[*]}" >&2; exit 1; }
  sudo=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
"${sudo[@]}" apt-get update -qq
"${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
