# Copyright (c) 2026 The Campora developers
# SPDX-License-Identifier: MIT
# Sourced by the scripts beside it and by .ci/run.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
jobs=$(nproc)

say() { printf '\n== %s\n' "$*" >&2; }

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

missing_packages() {
    local package
    sed 's/#.*//' "$root/scripts/packages.txt" | while read -r package; do
        [ -n "$package" ] || continue
        dpkg-query -W -f='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed ||
            printf '%s\n' "$package"
    done
}

# Installs what scripts/packages.txt lists and the system lacks; does nothing elsewhere than on Debian.
install_packages() {
    command -v apt-get >/dev/null || return 0
    local missing
    mapfile -t missing < <(missing_packages)
    [ "${#missing[@]}" -gt 0 ] || return 0
    say "installing ${missing[*]}"
    local attempt
    for attempt in 1 2 3; do
        as_root apt-get update -q </dev/null && break
        [ "$attempt" -lt 3 ] || return 1
        sleep $((attempt * 5))
    done
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -q --no-install-recommends "${missing[@]}" </dev/null
}

# build PRESET [TARGET...]: CAMPORA_WERROR=ON in the environment makes warnings errors.
build() {
    local preset=$1 target arguments=()
    shift
    for target in "$@"; do arguments+=(--target "$target"); done
    say "building $preset ${*:-}"
    (cd "$root" &&
        cmake --preset "$preset" -DCAMPORA_WERROR="${CAMPORA_WERROR:-OFF}" >&2 &&
        cmake --build --preset "$preset" --parallel "$jobs" "${arguments[@]}" >&2)
}
