#!/usr/bin/env bash
# Installs the Debian packages that a build needs, and with "ci" those of every check. Asks the
# network for nothing when all are there.

source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

packages=(build-essential cmake ninja-build pkg-config libxml2-dev libgtest-dev libgmock-dev
    libbenchmark-dev libcli11-dev nlohmann-json3-dev)
case ${1-} in
"") ;;
ci) packages+=(clang clang-format clang-tidy libclang-rt-14-dev) ;;
*)
    echo "usage: scripts/setup.sh [ci]" >&2
    exit 2
    ;;
esac

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    say "No Debian packages on this machine: what ${packages[*]} hold must be there already"
    exit 0
fi

missing=()
for package in "${packages[@]}"; do
    state=$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)
    [[ $state == installed ]] || missing+=("$package")
done
[[ ${#missing[@]} -gt 0 ]] || exit 0

as_root=()
[[ $(id -u) == 0 ]] || as_root=(sudo)
step "Update the package lists" "${as_root[@]}" apt-get update
step "Install ${missing[*]}" "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y --no-install-recommends "${missing[@]}"
