#!/usr/bin/env bash
# Builds the program and starts it with a simulated radio on COM1. Without a display it runs the headless tour, which
# writes a picture of each step into build/tour/. Settings, journals and files of this run stay in build/run-home/.
set -euo pipefail
cd "$(dirname "$0")"

tools/install_packages.sh build
cmake --preset release >/dev/null
cmake --build --preset release --target kx4600 kx4600ctl kx4600sim kx4600tour Transformer kx_help kx_demo

home="$PWD/build/run-home"
mkdir -p "$home/config" "$home/data" "$home/state" "$home/documents"
export XDG_CONFIG_HOME="$home/config" XDG_DATA_HOME="$home/data" XDG_STATE_HOME="$home/state"

if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  echo "No display: running the headless tour."
  exec build/bin/kx4600tour build/tour
fi

# The demonstration fleet waits in the recent files of the first run.
fleet="$home/documents/harbour_cabs.k4p"
settings="$home/config/KX4600/settings.ini"
[ -e "$fleet" ] || cp build/demo/harbour_cabs.k4p "$fleet"
if [ ! -e "$settings" ]; then
  mkdir -p "$(dirname "$settings")"
  printf '[General]\nMRUNum=1\nMRU1=%s\nDataDirectory=%s\n' "$fleet" "$home/documents" >"$settings"
fi

port="$(mktemp -d)/radio"
build/bin/kx4600sim --link "$port" --image "$home/radio.img" >"$home/radio.log" &
radio=$!
trap 'kill "$radio" 2>/dev/null || true' EXIT
for _ in $(seq 100); do
  [ -e "$port" ] && break
  sleep 0.05
done
KX4600_PORTS="1=$port=Simulated radio" build/bin/kx4600 "$@"
