#!/usr/bin/env bash
# Proves the plan of docs/architecture.md: a room includes those before it in that page's table, and
# never one below.

source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

# The first column of the page's table names the rooms in their order.
mapfile -t rooms < <(sed -n 's,^| `\([a-z]*\)/` |.*,\1,p' docs/architecture.md)

check_table() {
    local room
    [[ ${#rooms[@]} -gt 0 ]] || { echo "docs/architecture.md has no table of rooms"; return 1; }
    for room in src/*/; do
        room=$(basename "$room")
        [[ " ${rooms[*]} " == *" $room "* ]] || { echo "the table misses src/$room"; return 1; }
    done
}

check_includes() {
    local i found=0 room below
    for i in "${!rooms[@]}"; do
        room=${rooms[i]}
        [[ -d src/$room ]] || { echo "the table names src/$room, which is not there"; found=1; continue; }
        below=$(IFS='|'; echo "${rooms[*]:i+1}")
        [[ -n $below ]] || continue
        if grep -rnE "^#include \"($below)/" "src/$room"; then
            echo "src/$room includes a room below it"
            found=1
        fi
    done
    return "$found"
}

step "Find every room in the plan" check_table
step "Find no include against the order of the rooms" check_includes
