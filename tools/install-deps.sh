#!/usr/bin/env bash
# install-deps.sh -- installs the Debian 12 packages Quillon needs. A no-op when they are present.
#
# Usage: tools/install-deps.sh [run|test|assets]...
#   run     what building and playing the game needs
#   test    what the tests need too (virtual X server, input tools, sanitizer and fuzzer runtimes)
#   assets  what regenerating the pictures and sounds needs
set -euo pipefail

RUN_PKGS="build-essential cmake pkg-config libsdl2-dev libsdl2-mixer-dev libglew-dev libstb-dev
  zlib1g-dev libfreetype-dev fonts-dejavu-core libgl1-mesa-dri"
TEST_PKGS="libgtest-dev googletest xvfb xauth xdotool x11-utils imagemagick sox python3-xlib wmctrl openbox
  clang libclang-rt-14-dev ninja-build git"
ASSET_PKGS="python3 python3-pil python3-numpy fonts-dejavu-core fonts-dejavu-extra fonts-urw-base35 fonts-noto-core
  xfonts-base sox vorbis-tools"

groups=("$@")
[ ${#groups[@]} -eq 0 ] && groups=(run)

want=""
for g in "${groups[@]}"; do
  case "$g" in
    run) want="$want $RUN_PKGS" ;;
    test) want="$want $RUN_PKGS $TEST_PKGS" ;;
    assets) want="$want $ASSET_PKGS" ;;
    *) echo "install-deps: unknown group '$g' (run, test, assets)" >&2; exit 2 ;;
  esac
done

missing=""
for p in $want; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
    missing="$missing $p"
  fi
done
[ -z "$missing" ] && exit 0

echo "install-deps: installing:$missing"
SUDO=""
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null 2>&1 || { echo "install-deps: need root or sudo to install:$missing" >&2; exit 1; }
  SUDO="sudo"
fi
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update -qq
# shellcheck disable=SC2086
$SUDO apt-get install -y --no-install-recommends $missing
