# shellcheck shell=bash
# The one list of what is needed from the system, and the installing of what is missing.

# purpose | packages of Debian and Ubuntu | formulae of Homebrew | reason
package_list=(
  "build|g++ cmake ninja-build git|cmake ninja git|compile the program"
  "build|libicu-dev|icu4c|write sizes and dates as the user's language does"
  "build|qt6-base-dev qt6-declarative-dev qt6-svg-dev libgl-dev libegl-dev|qt|draw the window"
  "build|qcoro-qt6-dev|qcoro|wait for background work without blocking the window"
  "build|bootstrap-icons|node|symbols, which are in an npm package where the system has none"
  "build|qml6-module-qtquick qml6-module-qtquick-layouts qml6-module-qtquick-templates||screens"
  "build|qml6-module-qtqml qml6-module-qtqml-models qml6-module-qtqml-workerscript||screens"
  "build|fonts-inter fonts-noto-color-emoji||the typefaces of the screens"
  "build|qt6-wayland||open the window on a Wayland desktop"
  "screen|xvfb xdotool python3-xlib||a virtual screen, its keys and its pointer"
  "screen|dbus-daemon at-spi2-core gir1.2-atspi-2.0 python3-gi||press the program's controls from outside"
  "screen|python3-pil||take pictures"
  "screen|strace||hold the program in the middle of its work, and see every file that it opens"
  "screen|x11-session-utils x11-xserver-utils||end a session around the program"
  "screen|openbox weston||try the window under a window manager, and on a Wayland desktop"
  "test|libgtest-dev libgmock-dev|googletest|tests of the logic"
  "test|qml6-module-qttest qml6-module-qtquick-window qml6-module-qt-labs-platform||tests of the screens, and of the menus of macOS"
  "test|fonts-droid-fallback fonts-tlwg-loma-ttf fonts-kacst-one||names in Chinese, Thai and Arabic on the screens"
  "test|fonts-lohit-deva fonts-lohit-beng-bengali||names in Devanagari and Bengali on the screens"
  "test|librapidcheck-dev||generate trees for measuring and removal"
  "test|btrfs-progs||try removal on a file system with subvolumes"
  "test|appstream desktop-file-utils man-db||check what software centres and readers of manuals read"
  "test|librsvg2-bin||draw the icon in its sizes"
  "package|librsvg2-bin|librsvg|draw the icon in its sizes"
  "package|dpkg-dev lintian||make a Debian package and check it"
  "clean|debootstrap||try the package in a clean Debian"
  "bench|libbenchmark-dev|google-benchmark|time single calls"
  "bench|ncdu gdu|ncdu gdu|compare with what people would use instead"
  "bench|qml6-module-qtquick-controls||an empty window to compare the start with"
  "bench|filelight qdirstat baobab bleachbit stacer||compare how programs with a window start"
  "bench|libxcb1-dev libxcb-damage0-dev pkg-config libgl1-mesa-dri||see when a window is painted"
  "bench|python3|python|time programs and print the table"
  "check|clang-format clang-tidy clang cppcheck|clang-format llvm cppcheck|check the style of the sources"
  "fuzz|clang-14 libclang-rt-14-dev||try what reads bytes from outside with made-up ones"
  "portable|clang-19 libc++-19-dev libc++abi-19-dev||the compiler and the C++ library that are nearest to macOS's"
  "portable|googletest||tests of the logic, built with that library"
)

# install_missing PURPOSE...: installs what the purposes need and the system lacks.
install_missing() {
  if command -v apt-get >/dev/null; then
    install_missing_with_apt "$@"
  elif command -v brew >/dev/null; then
    install_missing_with_brew "$@"
  else
    warn_of_unknown_system "$@"
  fi
}

# packages COLUMN PURPOSE...: the names in a column of the list, one a line.
packages() {
  local column=$1 line purpose
  shift
  for line in "${package_list[@]}"; do
    for purpose in "$@"; do
      [[ $line == "$purpose|"* ]] && cut -d'|' -f"$column" <<<"$line" | tr ' ' '\n' | sed '/^$/d'
    done
  done
  return 0
}

install_missing_with_apt() {
  local missing=() name log
  while read -r name; do missing+=("$name"); done < <(packages 2 "$@" | without_installed_debs)
  [ ${#missing[@]} -gt 0 ] || return 0
  say "Installing from the distribution$(with_sudo), to"
  explain_packages 2 "${missing[@]}"
  log=$(log_file packages)
  # Old package lists may still do; whether they did, the installing tells.
  as_root apt-get update -qq </dev/null >"$log" 2>&1 || true
  as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    "${missing[@]}" </dev/null >>"$log" 2>&1 || {
    cat "$log"
    fail "apt-get could not install: ${missing[*]}"
  }
}

without_installed_debs() {
  local name
  while read -r name; do
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null)" = installed ] || echo "$name"
  done
}

install_missing_with_brew() {
  local missing=() name
  while read -r name; do missing+=("$name"); done < <(packages 3 "$@" | without_installed_formulae)
  if [ ${#missing[@]} -gt 0 ]; then
    say "Installing with Homebrew, to"
    explain_packages 3 "${missing[@]}"
    brew install "${missing[@]}" || fail "Homebrew could not install: ${missing[*]}"
  fi
  [[ " $* " != *" build "* ]] || install_icons_with_npm
  # The system has an ICU of its own, so Homebrew keeps its ICU out of everybody's way.
  CMAKE_PREFIX_PATH=$(brew --prefix icu4c):${CMAKE_PREFIX_PATH-}
  export CMAKE_PREFIX_PATH
}

# install_icons_with_npm: brings the symbols where no package of the system has them.
install_icons_with_npm() {
  [ ! -d build/node_modules/bootstrap-icons ] || return 0
  say "Installing with npm, for the symbols: bootstrap-icons"
  npm install --prefix build --no-save --no-package-lock --no-audit --no-fund \
    bootstrap-icons@1.10.3 >"$(log_file npm)" 2>&1 || {
    cat "$(log_file npm)"
    fail "npm could not install bootstrap-icons"
  }
}

without_installed_formulae() {
  local name installed
  installed=$(brew list --formula -1)
  while read -r name; do
    grep -Eqx "$name(@.*)?" <<<"$installed" || echo "$name"
  done
}

# explain_packages COLUMN NAME...: each line of the list that holds one of the names, with its reason.
explain_packages() {
  local column=$1 line names name found
  shift
  for line in "${package_list[@]}"; do
    names=$(cut -d'|' -f"$column" <<<"$line") found=()
    for name in "$@"; do
      [[ " $names " == *" $name "* ]] && found+=("$name")
    done
    [ ${#found[@]} -eq 0 ] || say "  $(cut -d'|' -f4 <<<"$line"): ${found[*]}"
  done
}

with_sudo() { [ "$(id -u)" = 0 ] || printf ' (with sudo, since only root may)'; }

# as_root COMMAND...: runs it with the right to install.
as_root() {
  if [ "$(id -u)" = 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    if [ -t 2 ]; then sudo "$@"; else sudo -n "$@"; fi
  else
    fail "not root, and no sudo here. As root, run: $*"
  fi
}

warn_of_unknown_system() {
  command -v cmake >/dev/null && command -v ninja >/dev/null && command -v c++ >/dev/null && return 0
  say "Neither apt-get nor Homebrew is here. Install these with the system's own means"
  say "(the names are those of Debian 12):"
  packages 2 "$@" | sed 's/^/  /'
  fail "a compiler, CMake or Ninja is missing"
}
