# Windows programs on this machine: Wine with a prefix of its own, on a display of Xvfb. To be sourced:
#
#   source packaging/windows/wine.sh
#   start_wine build/windows/wine && wine PROGRAM ...
#
# shellcheck shell=bash

export WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" LANG=C.UTF-8 LC_ALL=C.UTF-8

wine() { /usr/lib/wine/wine64 "$@"; }
wineserver() { /usr/lib/wine/wineserver "$@"; }

# start_wine FOLDER: a prefix in FOLDER, made on first use, and a display that ends with this shell.
start_wine() {
  mkdir -p "$1"
  WINEPREFIX="$(cd "$1" && pwd)"
  export WINEPREFIX
  start_display
  if [[ ! -e "$WINEPREFIX/ready" ]]; then
    wine wineboot -u >/dev/null 2>&1 || true  # it complains of the missing 32-bit half
    set_up_prefix
    wineserver -k && wineserver -w
    touch "$WINEPREFIX/ready"
  fi
  wineserver -p  # it stays between the programs, which then start in a moment
  wine cmd /c exit >/dev/null 2>&1  # its services, too, without holding on to our output
}

start_display() {
  local answer="$WINEPREFIX/display"
  Xvfb -displayfd 3 -screen 0 1600x1200x24 3>"$answer" >/dev/null 2>&1 &
  display_process=$!
  local _
  for _ in {1..100}; do
    [[ -s "$answer" ]] && break
    sleep 0.1
  done
  DISPLAY=":$(<"$answer")"
  export DISPLAY
}

stop_wine() {
  wineserver -k || true
  kill "$display_process" 2>/dev/null || true
}

# A Japanese font under the names that Windows has for it. There is no window manager to wait for: Wine draws title
# bars itself. Texts are drawn as DirectWrite draws them; Wine hands on no QT_ variable of this system, so the toolkit
# is told in the prefix.
set_up_prefix() {
  local name
  cp /usr/share/wine/fonts/marlett.ttf "$WINEPREFIX/drive_c/windows/Fonts/"  # the signs on title bars
  for name in 'MS Gothic' 'ＭＳ ゴシック' 'MS UI Gothic' 'MS Shell Dlg' 'MS Shell Dlg 2' 'Segoe UI'; do
    set_value 'HKLM\Software\Microsoft\Windows NT\CurrentVersion\FontSubstitutes' "$name" IPAGothic
  done
  set_value 'HKCU\Software\Wine\Fonts\Replacements' Tahoma IPAGothic  # Wine's own one lacks Japanese letters
  set_value 'HKCU\Software\Wine\X11 Driver' Managed N
  set_value 'HKCU\Environment' QT_QPA_PLATFORM windows:fontengine=directwrite
}

set_value() { wine reg add "$1" /v "$2" /t REG_SZ /d "$3" /f >/dev/null; }
