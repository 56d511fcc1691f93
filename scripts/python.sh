# shellcheck shell=bash
# To be sourced. The interpreter that the system's packages bring their modules to is not always
# the first on the path.
driving_python() {
  local candidate
  for candidate in /usr/bin/python3 python3; do
    if "$candidate" -c 'import gi, PIL, Xlib; gi.require_version("Atspi", "2.0")' 2>/dev/null; then
      echo "$candidate"
      return 0
    fi
  done
  fail "no python3 here that has gi, PIL and Xlib"
}
