#!/usr/bin/env bash
# Installs every build and test dependency from Debian's packages; with --editor also what the
# running editor shows its user (Qt's own translations, a font for Chinese). When all of them are
# installed already it does nothing, so a daily start needs neither root nor a network.
set -euo pipefail

packages=(
    cmake make g++ pkg-config
    qt6-base-dev libxml2-dev libdeflate-dev libgtest-dev qt6-tools-dev qt6-l10n-tools
    locales
    xvfb xauth x11-utils xdotool imagemagick fonts-dejavu-core
    desktop-file-utils appstream dpkg-dev file
)
if [ "${1:-}" = "--editor" ]; then
    packages+=(qt6-translations-l10n fonts-wqy-microhei)
fi

missing=()
for package in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

if [ "$(id -u)" -ne 0 ]; then
    sudo=sudo
else
    sudo=
fi

export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
