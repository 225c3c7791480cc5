#!/usr/bin/env bash
# install-packages.sh PURPOSE...: installs what is missing of the Debian packages listed for these purposes (build, run, test, bench,
# check). Needs root or sudo only when something is missing.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)

missing=()
while read -r package purpose; do
    [[ -z "$package" || "$package" == \#* ]] && continue
    for wanted in "$@"; do
        if [[ "$purpose" == "$wanted" ]] && ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed'; then
            missing+=("$package")
        fi
    done
done < "$here/debian-packages.txt"
[[ ${#missing[@]} -eq 0 ]] && exit 0

echo "Installing: ${missing[*]}" >&2
if ! command -v apt-get >/dev/null; then
    echo "install-packages.sh: apt-get was not found; install these packages by hand: ${missing[*]}" >&2
    exit 1
fi
as_root=()
if [[ $(id -u) -ne 0 ]]; then
    if ! command -v sudo >/dev/null; then
        echo "install-packages.sh: neither root nor sudo; run as root: apt-get install ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo)
fi
"${as_root[@]}" apt-get update -qq >&2 </dev/null
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2 </dev/null
