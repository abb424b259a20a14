# Steps that ./run and ./test share: packages, builds, a virtual display. To be sourced; `root` is the folder of the project.

buildPackages=(g++ ccache cmake ninja-build pkg-config libsqlite3-dev libicu-dev qt6-base-dev qt6-svg-dev)

# One line for each step, and the reason when nothing more can be done.
say() { printf '%s\n' "$*"; }
stop() {
  printf '%s\n' "$*" >&2
  exit 1
}

# install PACKAGE...: installs those that are missing, and does nothing when none is.
install() {
  local missing=() package
  for package in "$@"; do
    dpkg -s "$package" 2>/dev/null | grep -q '^Status: .* installed$' || missing+=("$package")
  done
  ((${#missing[@]})) || return 0
  say "Installing ${missing[*]}"
  local admin=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || stop "Not allowed to install, and there is no sudo: have an administrator install ${missing[*]}"
    admin=(sudo)
  fi
  mkdir -p "$root/build"
  local log="$root/build/install.log"
  local apt=("${admin[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=300)
  # A source that can't be reached matters only when a package is missing because of it, which the installation then says.
  "${apt[@]}" update >"$log" 2>&1 || say "Not all package lists could be read (see build/install.log)"
  "${apt[@]}" install --no-install-recommends "${missing[@]}" >>"$log" 2>&1 || {
    tail -n 20 "$log" >&2
    stop "The installation failed; all of its output is in build/install.log"
  }
}

# configured PRESET: whether its build folder is usable as it stands.
configured() {
  local folder="$root/build/$1"
  # An older description of the build, or one of a project that has been moved since, is made anew.
  [ -f "$folder/build.ninja" ] && [ "$folder/build.ninja" -nt "$root/CMakePresets.json" ] &&
    grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt"
}

# configure PRESET [OPTION...]
configure() {
  local preset=$1
  shift
  local folder="$root/build/$preset"
  if [ -f "$folder/CMakeCache.txt" ] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt"; then
    rm -rf "$folder"
  fi
  mkdir -p "$folder"
  (cd "$root" && cmake --preset "$preset" "$@") >"$folder/configure.log" 2>&1 || {
    tail -n 30 "$folder/configure.log" >&2
    return 1
  }
  touch "$folder/build.ninja"
}

# build PRESET [TARGET...]: all targets when none is named. Quiet, but for errors and warnings.
build() {
  local folder="$root/build/$1"
  shift
  ninja -C "$folder" "$@" >"$folder/build.log" 2>&1 || {
    grep -E -A 12 '^FAILED:|error:' "$folder/build.log" | head -n 80 >&2
    say "The build failed; all of its output is in ${folder#"$root"/}/build.log" >&2
    return 1
  }
}

# openDisplay: starts a virtual display with a free number, and sets DISPLAY and displayProcess.
openDisplay() {
  local number
  exec {displayPipe}<> <(:)
  Xvfb -displayfd "$displayPipe" -screen 0 1280x1024x24 -nolisten tcp >/dev/null 2>&1 &
  displayProcess=$!
  read -r -t 30 -u "$displayPipe" number || number=
  exec {displayPipe}>&-
  [ -n "$number" ] || stop "The virtual display did not start"
  export DISPLAY=":$number"
}

closeDisplay() {
  [ -n "${displayProcess:-}" ] || return 0
  kill "$displayProcess" 2>/dev/null
  wait "$displayProcess" 2>/dev/null
  displayProcess=
}
