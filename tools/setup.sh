# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2034 # the lists and the preset are for the scripts that read this
# Shared by ./run and ./test: installs what is missing, configures and builds. Read with "source" from the top of the
# source tree. Everything is said on standard error, so that standard output belongs to the program.

build_packages=(g++ cmake ninja-build qt6-base-dev libqt6opengl6-dev qt6-charts-dev qt6-svg-dev
    qt6-tools-dev qt6-l10n-tools qt6-translations-l10n
    libxlsxwriter-dev libgsl-dev) # the last line is for optional parts: workbooks, fits to radio logs
test_packages=(xvfb openbox xdotool adwaita-qt6 qt6ct python3 python3-jsonschema gnumeric
    poppler-utils qpdf locales shellcheck rsync ed vim-tiny syncthing
    at-spi2-core dbus-daemon python3-pyatspi)
check_packages=(clang clang-tidy clazy libbenchmark-dev libclang-rt-dev doxygen) # what CI adds
test_preset=${VOLTBOK_PRESET-dev} # CI asks for "check", in which warnings are errors

say() { printf '%s\n' "$*" >&2; }

is_debian_like() { command -v apt-get >/dev/null && command -v dpkg-query >/dev/null; }

is_installed() { [[ $(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null) == installed ]]; }

as_root() {
    if [[ $(id -u) -eq 0 ]]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        say "This needs root. Please run as root:  $*"
        return 1
    fi
}

# install_packages NAME...: installs with apt-get what is not there yet, and says what.
install_packages() {
    local missing=() package
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [[ ${#missing[@]} -eq 0 ]] && return
    say "Installing with apt-get: ${missing[*]}"
    as_root apt-get update >&2
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}" >&2
}

name_packages() {
    say "Voltbok needs a C++17 compiler, CMake 3.21, Ninja and Qt 6.4 with Charts, SVG and Linguist;"
    say "libxlsxwriter (workbooks) and GSL (fits to radio logs) are optional. Try:"
    say "  Fedora:        dnf install gcc-c++ cmake ninja-build qt6-qtbase-devel qt6-qtcharts-devel qt6-qtsvg-devel qt6-qttools-devel qt6-qttranslations"
    say "  Arch:          pacman -S --needed base-devel cmake ninja qt6-base qt6-charts qt6-svg qt6-tools qt6-translations"
    say "  openSUSE:      zypper install gcc-c++ cmake ninja qt6-base-devel qt6-charts-devel qt6-svg-devel qt6-tools-devel qt6-translations"
    say "  macOS (brew):  brew install cmake ninja qt"
}

# prepare NAME...: sees to it that the tools are there; on Debian-like systems these packages are installed.
prepare() {
    if is_debian_like; then
        install_packages "$@"
    elif ! command -v cmake >/dev/null || ! command -v ninja >/dev/null || ! command -v c++ >/dev/null; then
        name_packages
        return 1
    fi
}

# build PRESET: configures where that has not been done since the presets were changed, and builds. What another
# generator left in the build directory, or an attempt that failed, is configured afresh.
build() {
    local dir="build/$1"
    if [[ ! $dir/build.ninja -nt CMakePresets.json ]]; then
        [[ -f $dir/build.ninja ]] || rm -rf "$dir/CMakeCache.txt" "$dir/CMakeFiles"
        if ! cmake --preset "$1" >&2; then
            is_debian_like || name_packages
            return 1
        fi
    fi
    cmake --build --preset "$1" --parallel "$(getconf _NPROCESSORS_ONLN)" >&2
}
