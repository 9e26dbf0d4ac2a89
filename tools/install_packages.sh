#!/bin/sh
# Installs the Debian packages that building, testing and running need; does nothing where all are there.
# Usage: tools/install_packages.sh [build|test]   (test includes build)
set -eu

packages="g++ cmake ninja-build git python3
  qt6-base-dev qt6-serialport-dev qt6-svg-dev libqt6svg6 qt6-qpa-plugins qt6-translations-l10n libgl-dev libssl-dev fonts-dejavu-core fonts-wqy-microhei"
if [ "${1:-build}" = test ]; then
  packages="$packages clang-format clang-tidy ccache mold xvfb xauth xdotool openbox dpkg-dev file gzip"
fi

missing=""
for package in $packages; do
  dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q '^install ok installed' || missing="$missing $package"
done
[ -n "$missing" ] || exit 0

if [ "$(id -u)" = 0 ]; then
  root=""
elif command -v sudo >/dev/null 2>&1 && sudo -v; then
  root="sudo"
else
  echo "These Debian packages are missing:$missing" >&2
  echo "Install them as root, for example: apt-get install --no-install-recommends$missing" >&2
  exit 1
fi
echo "Installing:$missing"
$root apt-get update -qq
# shellcheck disable=SC2086
$root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >/dev/null
