#!/usr/bin/env bash
# install-packages.sh PURPOSE...: installs the missing Debian packages for these purposes (build, run, test, bench, check). Needs
# root or sudo only if a package is missing. The output of apt goes to build/packages.log and is shown if apt fails.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)

listed=()
while read -r package purpose; do
    [[ -z "$package" || "$package" == \#* ]] && continue
    for wanted in "$@"; do
        [[ "$purpose" == "$wanted" ]] && listed+=("$package")
    done
done < "$here/debian-packages.txt"
[[ ${#listed[@]} -eq 0 ]] && exit 0

if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    echo "install-packages.sh: this is not Debian, so nothing is installed here; the build needs what these packages hold:" >&2
    echo "  ${listed[*]}" >&2
    exit 0
fi

installed=$(dpkg-query -W -f='${Package} ${Status}\n' "${listed[@]}" 2>/dev/null | sed -n 's/ install ok installed$//p' || true)
missing=()
for package in "${listed[@]}"; do
    grep -qxF "$package" <<<"$installed" || missing+=("$package")
done
[[ ${#missing[@]} -eq 0 ]] && exit 0

as_root=()
if [[ $(id -u) -ne 0 ]]; then
    if ! command -v sudo >/dev/null; then
        echo "install-packages.sh: these packages are missing, and there is neither root nor sudo to install them." >&2
        echo "Run as root: apt-get install --no-install-recommends ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo)
fi

echo "Installing ${#missing[@]} Debian packages with what they need (some minutes on a bare machine): ${missing[*]}" >&2
log=$here/../build/packages.log
mkdir -p "$(dirname "$log")"
apt() { "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -o Acquire::Retries=3 "$@" </dev/null; }
if ! { apt update && apt install -y --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
    tail -n 60 "$log" >&2
    echo "install-packages.sh: apt-get failed, see above; everything it printed is in build/packages.log" >&2
    exit 1
fi
