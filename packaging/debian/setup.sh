# Installs what is missing of the packages that the house needs. To be sourced:
#
#   source packaging/debian/setup.sh
#   install_packages build window
#
# shellcheck shell=bash

# shellcheck source=packaging/debian/packages.sh
source "$(dirname "${BASH_SOURCE[0]}")/packages.sh"

is_installed() {
  [[ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" == installed ]]
}

# Runs a command with the rights of root; what the command needs to know comes as VAR=value words before it.
as_root() {
  if [[ "$(id -u)" -eq 0 ]]; then
    env "$@"
  elif command -v sudo >/dev/null; then
    sudo env "$@"
  else
    echo "root の権限がありません。root で次を実行してください / Not root and no sudo; run this as root: $*" >&2
    return 1
  fi
}

apt() {
  as_root DEBIAN_FRONTEND=noninteractive apt-get -q -o Acquire::Retries=3 "$@"
}

# install_packages GROUP... installs the packages of these groups (packages_GROUP) that are not there yet.
# Where nothing is missing it asks for nothing: no root, no network.
install_packages() {
  local group package
  local -a missing=()
  for group in "$@"; do
    local -n wanted="packages_${group}"
    for package in "${wanted[@]}"; do
      is_installed "$package" || missing+=("$package")
    done
  done
  ((${#missing[@]} == 0)) && return 0
  if ! command -v apt-get >/dev/null; then
    echo "次のパッケージが必要です / These Debian packages are needed: ${missing[*]}" >&2
    return 1
  fi
  echo "パッケージを導入します / Installing: ${missing[*]}"
  apt update || echo "パッケージ一覧を更新できません。手元の一覧で続けます / Going on with the package lists at hand." >&2
  apt install -y --no-install-recommends "${missing[@]}"
}
