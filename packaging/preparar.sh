#!/usr/bin/env bash
# Installs what a build, a test or the package needs and is not there, saying what and why: by apt (Debian, Ubuntu), dnf
# (Fedora) or pacman (Arch); on other systems it lists what is needed. Usage: preparar.sh run | test | paquete | probar
set -euo pipefail

# its name in Debian, Fedora and Arch, and the reason it is needed
run_packages=(
  "g++ gcc-c++ gcc|the compiler"
  "cmake cmake cmake|the build"
  "ninja-build ninja-build ninja|the build"
  "pkg-config pkgconf-pkg-config pkgconf|finding the picture libraries"
  "qt6-base-dev qt6-qtbase-devel qt6-base|windows, fonts and picture files"
  "libgl-dev mesa-libGL-devel libglvnd|Qt's build files ask for it"
  "libqt6svg6 qt6-qtsvg qt6-svg|the icons and SVG pictures"
  "qt6-translations-l10n qt6-qttranslations qt6-translations|the system's dialogs in Spanish"
  "libjpeg-dev libjpeg-turbo-devel libjpeg-turbo|reading photographs row by row"
  "libpng-dev libpng-devel libpng|PNG pictures"
  "libgif-dev giflib-devel giflib|the frames of animated GIFs, and films written as such"
  "libimagequant-dev libimagequant-devel libimagequant|the colours of films written as GIFs"
  "libwmf-dev libwmf-devel libwmf|WMF pictures"
  "libseccomp-dev libseccomp-devel libseccomp|the walls around the process that reads WMF and SVG pictures"
  "qt6-image-formats-plugins qt6-qtimageformats qt6-imageformats|WebP, TIFF and other pictures"
  "gsfonts urw-base35-fonts gsfonts|the letters of WMF pictures"
  "libzip-dev libzip-devel libzip|zipped FIGlet fonts"
  "fonts-dejavu-core dejavu-sans-mono-fonts ttf-dejavu|the fixed-pitch font that stands for Lucida Console"
)
test_packages=(
  "libgtest-dev gtest-devel gtest|the tests of the logic"
  "libgmock-dev gmock-devel gtest|the tests of the logic"
  "python3 python3 python|driving the browser and the installed program"
  "chromium chromium chromium|playing the pages in a real browser"
  "chromium-driver chromedriver chromium|playing the pages in a real browser"
  "clang clang clang|the fuzzers"
  "libclang-rt-dev compiler-rt compiler-rt|the fuzzers and sanitizers"
  "clang-format clang-tools-extra clang|the style check"
  "clang-tidy clang-tools-extra clang|the check of names and of common mistakes"
  "appstream appstream appstream|the check of what software centres read"
  "desktop-file-utils desktop-file-utils desktop-file-utils|the check of the desktop's entry"
)
package_packages=(
  "dpkg-dev dpkg-dev dpkg|the libraries that the Debian package depends on"
)
trial_packages=(
  "lintian lintian lintian|the rules for Debian packages"
  "debootstrap debootstrap debootstrap|a new system to install the package in"
)

# The column of the names, whether a package is there, how those that are not are installed.
if command -v apt-get >/dev/null; then
  column=0
  is_there() { dpkg-query -W -f='${Status}' "$1" 2>/dev/null | grep -q 'ok installed'; }
  install() { "$@" apt-get update -qq && "$@" apt-get install -y -qq --no-install-recommends "${missing[@]}"; }
elif command -v dnf >/dev/null; then
  column=1
  is_there() { rpm -q --quiet --whatprovides "$1" 2>/dev/null; }
  install() { "$@" dnf install -y -q --setopt=install_weak_deps=False "${missing[@]}"; }
elif command -v pacman >/dev/null; then
  column=2
  is_there() { pacman -T "$1" >/dev/null; }
  install() { "$@" pacman -S --noconfirm --needed "${missing[@]}"; }
else
  column=
fi

wanted=("${run_packages[@]}")
case ${1:-run} in
  run) ;;
  test) wanted+=("${test_packages[@]}") ;;
  paquete) wanted+=("${package_packages[@]}") ;;
  probar) wanted+=("${package_packages[@]}" "${trial_packages[@]}") ;;
  *) echo "Uso: preparar.sh run | test | paquete | probar" >&2; exit 2 ;;
esac

if [ -z "$column" ]; then
  echo "Este sistema no tiene apt, dnf ni pacman, así que Pixmosa no puede instalar lo que le falte. Hacen falta, con los" \
    "nombres de Debian: $(for row in "${wanted[@]}"; do printf '%s ' "${row%% *}"; done)" >&2
  exit 0  # they may all be there; the build says which is not
fi

# Debian 12 has the plug-in in the library's package, newer systems in one of its own.
svg_of_debian() { [ "$column" = 0 ] && apt-cache show qt6-svg-plugins >/dev/null 2>&1; }

missing=()
for row in "${wanted[@]}"; do
  read -ra names <<<"${row%%|*}"
  package=${names[column]}
  if [ "$package" = libqt6svg6 ] && svg_of_debian; then package=qt6-svg-plugins; fi
  if [[ " ${missing[*]} " != *" $package "* ]] && ! is_there "$package"; then
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
install "${sudo[@]}"
