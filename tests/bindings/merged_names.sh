#!/usr/bin/env bash
# Names what the linker would merge although each source means its own: merged_names.sh OBJECT…
#
# GCC makes a template's instance weak even where its argument is a member of a class in an unnamed
# namespace, and gives both files' instances one name. The linker keeps one of the two, so that the
# other class runs foreign code.
set -euo pipefail

objects=()
for object in "$@"; do
    [[ "$object" == *.gch ]] || objects+=("$object") # a precompiled header counts as one of CMake's
done
symbols="$(nm --print-file-name --defined-only "${objects[@]}")"
merged="$(awk '$(NF - 1) ~ /[WVu]/ && $NF ~ /_GLOBAL__N_/ { print $NF }' <<<"$symbols" |
    sort | uniq --repeated)"
[[ -z "$merged" ]] && exit 0
printf 'FAILED: several objects define what only one keeps. Give the classes names of their own:\n' >&2
c++filt <<<"$merged" >&2
exit 1
