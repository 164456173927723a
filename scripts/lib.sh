# Shared by the scripts in this folder; source it, it runs nothing by itself.

set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
jobs=$(nproc 2>/dev/null || echo 2)

roomsFile=cmake/Rooms.txt

Fail() {
  echo "${0##*/}: $*" >&2
  exit 1
}

# Rooms: prints the names of all rooms.
Rooms() {
  sed -nE 's/^([^#:]+):.*/\1/p' "$root/$roomsFile"
}

# NeedPackages <package>...: installs what is missing. A machine that has it all needs no network and no root.
NeedPackages() {
  local package missing=() asRoot=()
  command -v dpkg-query >/dev/null || return 0
  for package; do
    [[ $(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null) == installed* ]] || missing+=("$package")
  done
  [[ ${#missing[@]} -gt 0 ]] || return 0

  if [[ $EUID -ne 0 ]]; then
    command -v sudo >/dev/null || Fail "please have these packages installed: ${missing[*]}"
    asRoot=(sudo)
  fi
  Step "install ${missing[*]}" InstallPackages
}

InstallPackages() {
  "${asRoot[@]}" apt-get update -q &&
    "${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
}

# Step <title> <command>...: runs the command quietly; its output is shown when it fails. A function must join its
# commands with "&&": the shell does not stop at a failing command in a condition.
Step() {
  local title=$1 log started=$SECONDS
  shift
  log=$(mktemp)
  if "$@" >"$log" 2>&1; then
    echo "ok      $title ($((SECONDS - started)) s)" >&2
    rm -f "$log"
  else
    tail -n 200 "$log" >&2
    rm -f "$log"
    echo "FAILED  $title" >&2
    exit 1
  fi
}

# Configure <preset> [option]...
Configure() {
  (cd "$root" && cmake --preset "$@")
}

# Build <preset> [target]...
Build() {
  local preset=$1
  shift
  (cd "$root" && cmake --build --preset "$preset" -j "$jobs" ${1:+--target "$@"})
}

# ConfigureAndBuild <preset> [target]...
ConfigureAndBuild() {
  Configure "$1" && Build "$@"
}
