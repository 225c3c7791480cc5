#!/usr/bin/env bash
# tidy-changed.sh BUILD-FOLDER: runs clang-tidy on the most recently changed sources of the core, at most 6 files of the last 20
# commits. The folder must contain compile_commands.json of a clang build. All findings of .clang-tidy are shown; those of the
# static analyzer, which are errors on some path through the code, make it fail.
set -euo pipefail
cd "$(dirname "$0")/.."
base=$(git rev-list --max-count=21 HEAD | tail -n 1)
mapfile -t changed < <(git log --format= --name-only --diff-filter=d "$base..HEAD" -- 'src/*.cpp' 'apps/*.cpp' | awk '!seen[$0]++')
files=()
for file in "${changed[@]}"; do
    [[ -f "$file" ]] && grep -q "\"file\": \"$PWD/$file\"" "$1/compile_commands.json" && files+=("$file")
    [[ ${#files[@]} -lt 6 ]] || break
done
[[ ${#files[@]} -gt 0 ]] || { echo "no file of this build changed in the last 20 commits"; exit 0; }
printf '%s\n' "${files[@]}" | xargs -P 2 -n 1 clang-tidy-14 --quiet --warnings-as-errors='clang-analyzer-*' -p "$1" 2>&1 |
    { grep -v 'warnings generated\|^Suppressed\|^Use -header-filter' || true; }
