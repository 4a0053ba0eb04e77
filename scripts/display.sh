# Finds out whether windows can be shown here. To be sourced.
# shellcheck shell=bash

# True where an X server answers at $DISPLAY: a local socket, or a host that takes connections.
x_answers() {
  [[ "${DISPLAY:-}" =~ ^([^:]*):([0-9]+)(\.[0-9]+)?$ ]] || return 1
  local host="${BASH_REMATCH[1]}" number="${BASH_REMATCH[2]}"
  if [[ -z "$host" || "$host" == unix ]]; then
    [[ -S "/tmp/.X11-unix/X$number" ]] || grep -qs "@/tmp/.X11-unix/X$number\$" /proc/net/unix
  else
    timeout 3 bash -c "exec 3<>/dev/tcp/$host/$((6000 + number))" 2>/dev/null
  fi
}

# True where the socket of $WAYLAND_DISPLAY is there.
wayland_answers() {
  local socket="${WAYLAND_DISPLAY:-}"
  [[ -n "$socket" ]] || return 1
  [[ "$socket" == /* ]] || socket="${XDG_RUNTIME_DIR:-/nowhere}/$socket"
  [[ -S "$socket" ]]
}

# Prints "x", "wayland" or "none".
usable_display() {
  if x_answers; then
    echo x
  elif wayland_answers; then
    echo wayland
  else
    echo none
  fi
}

# Japanese texts need a locale in UTF-8; a bare machine has none but this one.
use_utf8_locale() {
  [[ "$(locale charmap 2>/dev/null)" == UTF-8 ]] || export LC_ALL=C.UTF-8
}
