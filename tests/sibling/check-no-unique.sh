#!/usr/bin/env bash
# Fails, naming them, when a library holds GNU unique symbols: the dynamic loader never unloads
# such a library.
#
#   check-no-unique.sh READELF LIBRARY
set -euo pipefail
readelf=$1 library=$2
unique=$("$readelf" -W --syms "$library" | awk '$1 ~ /^[0-9]+:$/ && $5 == "UNIQUE" { print $8 }' | sort -u)
if [ -n "$unique" ]; then
    echo "$(basename "$library") holds GNU unique symbols and can never be unloaded:" >&2
    sed 's/^/    /' <<<"$unique" >&2
    exit 1
fi
echo "$(basename "$library"): no GNU unique symbol"
