# Sourced by the other scripts: where the tree is, how packages are installed and how a preset is built.
set -euo pipefail
Root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# Install_Missing PURPOSE...: the packages of tools/packages.txt for these purposes that are not installed yet.
Install_Missing() {
    local Missing=() Package Purposes Purpose
    while read -r Package Purposes; do
        [[ -z "$Package" || "$Package" == \#* ]] && continue
        for Purpose in "$@"; do
            if [[ " $Purposes " == *" $Purpose "* ]] &&
                ! dpkg-query -W -f '${Status}' "$Package" 2>/dev/null | grep -q 'install ok installed'; then
                Missing+=("$Package")
                break
            fi
        done
    done <"$Root/tools/packages.txt"
    [[ ${#Missing[@]} -eq 0 ]] && return
    echo "Installing: ${Missing[*]}" >&2
    local As_Root=()
    [[ $(id -u) -eq 0 ]] || As_Root=(sudo)
    "${As_Root[@]}" apt-get update -q >&2
    DEBIAN_FRONTEND=noninteractive "${As_Root[@]}" apt-get install -y -q --no-install-recommends "${Missing[@]}" >&2
}

# Build_Preset PRESET [cmake option...] [-- target...]
Build_Preset() {
    local Preset=$1 Options=() Targets=()
    shift
    while [[ $# -gt 0 && $1 != -- ]]; do Options+=("$1") && shift; done
    [[ $# -gt 0 ]] && shift
    while [[ $# -gt 0 ]]; do Targets+=(--target "$1") && shift; done
    if command -v ccache >/dev/null; then Options+=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi
    (cd "$Root" && cmake --preset "$Preset" "${Options[@]}" && cmake --build --preset "$Preset" "${Targets[@]}") >&2
}
