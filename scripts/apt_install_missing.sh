# Sourced by the install scripts. install_missing WHO: installs, with apt-get, each package of the
# associative array `packages` (Debian package -> a file that shows it is installed) whose file is
# missing; WHO prefixes the messages. Needs root only when something is missing.
install_missing() {
    local who=$1 pkg missing=()
    for pkg in "${!packages[@]}"; do
        [ -e "${packages[$pkg]}" ] || missing+=("$pkg")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    if [ "$(id -u)" -ne 0 ]; then
        echo "$who: missing packages: ${missing[*]}" >&2
        echo "$who: run as root, or: sudo apt-get install -y ${missing[*]}" >&2
        return 1
    fi
    echo "$who: installing ${missing[*]}" >&2
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -qq
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}
