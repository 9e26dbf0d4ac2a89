#!/usr/bin/env bash
# Makes the Debian package of a build, unpacks it into a temporary root and starts the programs from there.
# Usage: tools/check_package.sh BUILD_FOLDER
set -euo pipefail
build="$(realpath "$1")"
root="$(mktemp -d)"
window=""
finish() {
  if [ -n "$window" ]; then
    kill -KILL "$window" 2>/dev/null || true
    wait "$window" 2>/dev/null || true
  fi
  rm -rf "$root"
}
trap finish EXIT

(cd "$build" && cpack -G DEB -B "$root/package" >"$root/cpack.log" 2>&1) || { cat "$root/cpack.log"; exit 1; }
package="$(ls "$root"/package/*.deb)"
dpkg-deb -x "$package" "$root/tree"
for file in share/applications/kx4600.desktop share/mime/packages/kx4600.xml share/man/man1/kx4600.1.gz \
  share/icons/hicolor/scalable/apps/kx4600.svg lib/kx4600/libTransformer.so \
  share/kx4600/KX4600.mld share/kx4600/kx4kp_en/topics.json; do
  [ -f "$root/tree/usr/$file" ] || { echo "The package lacks $file"; exit 1; }
done

# Nothing of the build may help: the programs find what they need beside themselves.
unset KX4600_TRANSFORMER LD_LIBRARY_PATH
export QT_QPA_PLATFORM=offscreen XDG_CONFIG_HOME="$root/config" XDG_DATA_HOME="$root/data" XDG_STATE_HOME="$root/state"
"$root/tree/usr/bin/kx4600ctl" new -o "$root/new.k4p"
[ "$("$root/tree/usr/bin/kx4600ctl" get "$root/new.k4p" EconomyTimer)" = 10 ] || { echo "kx4600ctl misreads a file"; exit 1; }

# The started window has loaded its component when it has stored the access level in the settings.
"$root/tree/usr/bin/kx4600" "$root/new.k4p" >"$root/window.log" 2>&1 &
window=$!
for _ in $(seq 300); do
  if grep -qs PreviousAccessLevel "$root/config/KX4600/settings.ini" && kill -0 "$window" 2>/dev/null; then
    echo "$(basename "$package") works"
    exit 0
  fi
  sleep 0.1
done
cat "$root/window.log"
echo "kx4600 from the package does not start"
exit 1
