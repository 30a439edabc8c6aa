#!/usr/bin/env bash
# Checks the symbols of what the build stages beside the program:
#  - no library or module holds a GNU unique symbol: the dynamic loader never unloads such a
#    library, so its static objects would outlive the module that owns them;
#  - the module exports only what its export list names, and everything it names.
#
#   check-symbols.sh READELF STAGE_DIR MODULE EXPORT_LIST
set -euo pipefail
readelf=$1 stage=$2 module=$3 export_list=$4

# Name of every symbol of the table whose binding (column 5) matches $2, one per line.
symbols() {
    "$readelf" -W "$1" "$2" | awk -v bind="$3" '$1 ~ /^[0-9]+:$/ && $5 ~ bind && $7 != "UND" && $8 != "" { sub(/@.*/, "", $8); print $8 }' | sort -u
}

status=0
shopt -s nullglob
libraries=("$stage"/*.so "$stage"/*.so.* "$stage"/*.tx)
if [ ${#libraries[@]} -eq 0 ]; then
    echo "no library or module in $stage" >&2
    exit 1
fi
for library in "${libraries[@]}"; do
    unique=$(symbols "$library" --syms '^UNIQUE$')
    if [ -n "$unique" ]; then
        echo "$(basename "$library") holds GNU unique symbols and can never be unloaded:" >&2
        sed 's/^/    /' <<<"$unique" >&2
        status=1
    fi
done

# The linker's own markers of the data segment's end are no export of the module's code; some
# links (the sanitizer build's) put them into the dynamic symbol table.
linker_markers='^(__bss_start|_edata|_end)$'
exported=$(symbols "$module" --dyn-syms '^(GLOBAL|WEAK|UNIQUE)$' | { grep -Ev "$linker_markers" || true; })
# A line that starts with "?" names what may be exported but need not be.
patterns=$(sed -e 's/#.*//' -e 's/[[:space:]]//g' -e '/^$/d' "$export_list")
unexpected=$(grep -Evx -f <(sed 's/^?//' <<<"$patterns") <<<"$exported" || true)
missing=""
while read -r pattern; do
    grep -Eqx -- "$pattern" <<<"$exported" || missing+="$pattern"$'\n'
done < <(grep -v '^?' <<<"$patterns")
if [ -n "$unexpected" ]; then
    echo "$(basename "$module") exports what its export list does not name:" >&2
    sed 's/^/    /' <<<"$unexpected" >&2
    status=1
fi
if [ -n "$missing" ]; then
    echo "$(basename "$module") exports nothing that these lines of its export list name:" >&2
    sed -e '/^$/d' -e 's/^/    /' <<<"$missing" >&2
    status=1
fi
[ $status -eq 0 ] && echo "checked ${#libraries[@]} libraries; $(basename "$module") exports: $(echo $exported)"
exit $status
