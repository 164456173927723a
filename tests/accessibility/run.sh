#!/bin/bash
# run.sh <host program> <script>...: runs the script beside the host program, on a display and a message bus of their
# own, with Qt's bridge to AT-SPI switched on. Its result is the script's.
set -euo pipefail

if [[ ${1-} == --inside ]]; then
  "$2" &
  host=$!
  trap 'kill "$host" 2>/dev/null || true' EXIT
  "${@:3}"
  exit
fi

folder=$(mktemp -d)
server=
CleanUp() {
  [[ -z $server ]] || { kill "$server" 2>/dev/null && wait "$server" 2>/dev/null; } || true
  rm -rf "$folder"
}
trap CleanUp EXIT

# The server writes the number that it has taken once it is ready.
mkfifo "$folder/display"
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$folder/display" >"$folder/log" 2>&1 &
server=$!
read -r display <"$folder/display" || { cat "$folder/log" >&2; exit 1; }

mkdir -m 700 "$folder/runtime"
env DISPLAY=":$display" HOME="$folder" XDG_RUNTIME_DIR="$folder/runtime" LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb \
  QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 dbus-run-session -- "$0" --inside "$@"
