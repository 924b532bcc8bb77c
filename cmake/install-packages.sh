# Functions for the scripts in the root of the project; source it with `.`.

# Prints its arguments as an error of the script.
fail() {
    echo "$(basename "$0"): $*" >&2
    exit 1
}

# Runs a command without its output, and shows that only if the command fails: quietly TITLE COMMAND ...
quietly() {
    quiet_title=$1
    shift
    quiet_log=$(mktemp) || exit 1
    if ! "$@" >"$quiet_log" 2>&1; then
        cat "$quiet_log" >&2
        rm -f "$quiet_log"
        fail "$quiet_title failed"
    fi
    rm -f "$quiet_log"
}

# The packages of the lists that are not installed.
missing_packages() {
    wanted=$(sed 's/#.*//' "$@")
    present=$(dpkg-query -W -f '|${db:Status-Status} ${Package}|' $wanted 2>/dev/null) || true
    for package in $wanted; do
        case $present in
        *"|installed $package|"*) ;;
        *) echo "$package" ;;
        esac
    done
}

# Installs what is missing of the packages in the lists. Asks nobody when nothing is missing.
install_packages() {
    if ! command -v dpkg-query >/dev/null; then
        echo "$(basename "$0"): this is no Debian; please install the packages of $* yourself" >&2
        return
    fi
    missing=$(missing_packages "$@")
    if [ -z "$missing" ]; then
        return
    fi
    as_root=
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || fail "these packages are missing, and there is no sudo:" $missing
        as_root=sudo
    fi
    echo "Installing" $missing "..." >&2
    quietly "apt-get update" $as_root apt-get update -qq
    quietly "the installation" $as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -qq -y --no-install-recommends $missing
}
