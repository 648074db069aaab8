#!/usr/bin/env bash
# Installs every build and test dependency from Debian's packages.
# Safe to run again: apt-get skips what is already installed.
set -euo pipefail

packages=(
    cmake make g++ pkg-config
    qt6-base-dev libxml2-dev libgtest-dev
    xvfb xauth x11-utils xdotool imagemagick fonts-dejavu-core
)

if [ "$(id -u)" -ne 0 ]; then
    sudo=sudo
else
    sudo=
fi

export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${packages[@]}" >/dev/null
