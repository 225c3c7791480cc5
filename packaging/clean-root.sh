#!/usr/bin/env bash
# Builds and tests the committed tree on a bare Debian 12: makes a root folder that contains only the base system, clones the tree
# into it, and runs ./run.sh and ./test.sh there. No package, compiler cache, font, home folder or variable of this machine is visible
# inside; only the package mirror that apt is configured for, and the network settings to reach it.
#
#   packaging/clean-root.sh                    run.sh and test.sh; ctest's summary is the last thing printed
#   packaging/clean-root.sh --keep FOLDER      the same in FOLDER, which is kept
#   packaging/clean-root.sh --in FOLDER CMD..  runs a command in a root kept before, in the tree
#
# Works as root, or as a user who may make user namespaces. Takes 4 GB in $TMPDIR. Also exits 0 if no root can be made because the
# mirror fails to answer three times or the machine allows no namespaces; it then prints a line with NOT RUN. $ZANTROQ_CMAKE is
# passed on to build-release.sh. $CLEAN_ROOT_STATUS names a file that gets the word done or the words not run.
set -euo pipefail
cd "$(dirname "$0")/.."
suite=bookworm
tree=/root/zantroq-chart
status=${CLEAN_ROOT_STATUS:-/dev/null}

# In a user namespace the files of the root belong to this user's subordinate ids.
as=() mode=root
[[ $(id -u) -eq 0 ]] || { as=(unshare --user --map-auto --map-root-user); mode=unshare; }

say() { printf 'clean-root.sh: %s\n' "$*"; }
not_run() {
    say "NOT RUN: $1"
    echo "not run" >"$status"
    exit 0
}

# Runs "$@" inside, in a separate mount and process namespace: its mounts and processes end with it.
inside() {
    "${as[@]}" unshare --mount --pid --fork --kill-child -- bash -euc '
        root=$1; shift
        mount --make-rprivate /
        mount -t proc proc "$root/proc"
        mount --rbind /sys "$root/sys"
        mount --rbind /dev "$root/dev"
        mount -t tmpfs tmpfs "$root/dev/shm"
        exec chroot "$root" /usr/bin/env -i "$@"' inside "$root" \
        PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin HOME=/root USER=root LANG=C.UTF-8 TERM=dumb \
        "${proxies[@]}" ZANTROQ_CMAKE="${ZANTROQ_CMAKE:-}" CMAKE_BUILD_PARALLEL_LEVEL="${CMAKE_BUILD_PARALLEL_LEVEL:-$(nproc)}" \
        bash -c 'cd "$1" && shift && exec "$@"' inside "$@" </dev/null
}

proxies=()
for name in http_proxy https_proxy no_proxy HTTP_PROXY HTTPS_PROXY NO_PROXY; do
    [[ -z "${!name:-}" ]] || proxies+=("$name=${!name}")
done

# How this machine's apt reaches its mirror: proxies, certificates, and whether an old snapshot is accepted.
apt_options() {
    apt-config dump | grep -E '^Acquire::(https?::|Retries|Check-Valid-Until|Check-Date)' | sed -n '/ "";$/!p' || true
}
# Debian's own entries in this machine's package sources; none on other systems, for which mmdebstrap knows a mirror.
debian_sources() {
    # shellcheck disable=SC2016
    apt-get indextargets --format '$(ORIGIN) $(CODENAME) $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' 2>/dev/null |
        awk -v suite="$suite" '$1 == "Debian" && index($2, suite) == 1 && $5 == "main" {print "deb " $3, $4, $5}' | sort -u || true
}

make_root() {
    local options=() sources include=()
    while read -r line; do options+=("--aptopt=$line"); done < <(apt_options)
    sources=$(debian_sources)
    grep -q ' https:' <<<"$sources" && include=(--include=ca-certificates)
    mmdebstrap --mode="$mode" --variant=minbase "${include[@]}" "${options[@]}" "$suite" "$root" ${sources:+-} <<<"$sources" &&
        "${as[@]}" cp -L /etc/resolv.conf /etc/hosts "$root/etc/"
}

if [[ "${1:-}" == "--in" ]]; then
    root=$2
    shift 2
    inside "$tree" "$@"
    exit
fi

work=$(mktemp -d "${TMPDIR:-/tmp}/clean-root.XXXXXX")
root=$work/root
keep=no
[[ "${1:-}" == "--keep" ]] && { root=$(realpath -m "$2"); keep=yes; }
cleanup() {
    [[ "$keep" == yes ]] || "${as[@]}" rm -rf --one-file-system "$root"
    rm -rf "$work"
}
trap cleanup EXIT
trap 'exit 130' INT TERM HUP

"${as[@]}" unshare --mount --pid --fork true 2>"$work/log" || not_run "this machine allows no namespaces: $(tail -n 1 "$work/log")"
command -v mmdebstrap >/dev/null || packaging/install-packages.sh check

say "making a bare Debian 12"
for try in 1 2 3; do
    [[ "$try" -eq 1 ]] || sleep 15
    made=no
    make_root >"$work/log" 2>&1 && { made=yes; break; }
    "${as[@]}" rm -rf --one-file-system "$root"
done
if [[ "$made" == no ]]; then
    tail -n 20 "$work/log" >&2
    not_run "no root could be made in three tries, see above"
fi

git clone -q --no-hardlinks . "$work/tree"
"${as[@]}" cp -r --no-preserve=ownership "$work/tree" "$root$tree"
say "./run.sh there ($SECONDS s so far)"
inside "$tree" ./run.sh
say "a second ./run.sh"
before=$(date +%s%N)
inside "$tree" ./run.sh
say "which took $(( ($(date +%s%N) - before) / 1000000 )) ms; ./test.sh ($SECONDS s so far)"
inside "$tree" ./test.sh
echo "done" >"$status"
