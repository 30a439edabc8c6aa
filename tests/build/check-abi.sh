#!/usr/bin/env bash
# Compares the exported interface of the ExtCommands module with the baseline kept in the
# repository, using libabigail: the C entry points, the exported classes with their layouts
# and virtual tables, and the record siblings fill in (RibbonItem). Sibling modules are built
# against these; any change but an addition breaks them without a word from the compiler.
#
#   check-abi.sh [--update] MODULE BASELINE EXPORT_LIST HEADER_DIR...
#
# What is compared is what EXPORT_LIST names (the lines that do not start with "?": the weak
# copies of Qt's and the standard library's inline code are not the module's interface), and
# the types those reach. The host's and the platform's types (CFx..., Od...) are the SDK's own
# interface and are seen here only by name, so that the SDK's changes do not count as the
# module's; standard-library types are left out likewise (no exported type holds one).
#
# With --update the baseline is written anew from MODULE instead; do that only on purpose,
# with the change that extends the interface (docs/siblings.md says how).
set -euo pipefail

update=0
if [ "${1:-}" = --update ]; then
    update=1
    shift
fi
if [ $# -lt 4 ]; then
    echo "usage: check-abi.sh [--update] MODULE BASELINE EXPORT_LIST HEADER_DIR..." >&2
    exit 2
fi
module=$1 baseline=$2 export_list=$3
shift 3
for tool in abidw abidiff; do
    if ! command -v "$tool" >/dev/null; then
        echo "check-abi: $tool not found; it comes with Debian's abigail-tools (scripts/install-deps)" >&2
        exit 2
    fi
done
for file in "$module" "$export_list"; do
    [ -f "$file" ] || { echo "check-abi: no such file: $file" >&2; exit 2; }
done

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The export list's patterns, joined into one regular expression for libabigail.
exported=$(sed -e 's/#.*//' -e 's/[[:space:]]//g' -e '/^$/d' -e '/^?/d' "$export_list" | paste -sd'|')
cat > "$work/interface.suppr" <<EOF
[suppress_function]
  symbol_name_not_regexp = ^($exported)\$
  drop = yes
[suppress_variable]
  symbol_name_not_regexp = ^($exported)\$
  drop = yes
[suppress_type]
  name_regexp = ^(CFx|Od|std::|__gnu_cxx::)
  drop = yes
EOF

headers=()
for dir in "$@"; do
    headers+=(--headers-dir "$dir")
done
# The translation units' paths are kept relative to the source tree, so that the baseline
# does not say where it was made.
source=$(cd "$(dirname "$0")/../.." && pwd)
abidw "${headers[@]}" --drop-private-types --exported-interfaces-only \
    --suppressions "$work/interface.suppr" --no-show-locs --no-comp-dir-path --no-corpus-path \
    --no-elf-needed --type-id-style hash "$module" |
    sed "s#path='$source/#path='#" > "$work/current.abi"

if [ $update -eq 1 ]; then
    cp "$work/current.abi" "$baseline"
    echo "check-abi: baseline written: $baseline"
    exit 0
fi
[ -f "$baseline" ] || { echo "check-abi: no baseline: $baseline" >&2; exit 2; }

# Added functions and variables are what a new version may bring; everything else (a symbol
# gone, a type's size, a member's place or type, a virtual table) fails.
if abidiff --no-added-syms "$baseline" "$work/current.abi" > "$work/report" 2>&1; then
    added=$(abidiff "$baseline" "$work/current.abi" | sed -n 's/^ *\[A\] //p' || true)
    echo "check-abi: the exported interface is the baseline's${added:+, with additions:}"
    [ -z "$added" ] || sed 's/^/    /' <<<"$added"
    exit 0
fi
echo "check-abi: the exported interface of $(basename "$module") changed in a way that breaks" \
    "sibling modules built against the baseline ($baseline):" >&2
sed 's/^/    /' "$work/report" >&2
echo "check-abi: if the break is intended, write the baseline anew (docs/siblings.md)" >&2
exit 1
