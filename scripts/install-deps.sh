#!/usr/bin/env bash
# Installs every build and test dependency from Debian's packages. When all of them are
# installed already it does nothing, so a daily start needs neither root nor a network.
set -euo pipefail

packages=(
    cmake make g++ pkg-config
    qt6-base-dev libxml2-dev libgtest-dev
    locales
    xvfb xauth x11-utils xdotool imagemagick fonts-dejavu-core
    desktop-file-utils appstream
)

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
