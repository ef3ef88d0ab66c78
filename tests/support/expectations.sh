# shellcheck shell=bash
# shellcheck disable=SC2034 # Who sources the file uses what it sets.
# What the tests of scripts are written in; each of them sources this file first.

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)"
folder="$(mktemp -d)" # of the test, which removes it
trap 'rm -r "$folder"' EXIT
status=0
output=''

# fail WORDS: the test has failed; the words and what was printed last tell why.
fail() {
    printf 'FAILED: %s\n%s\n' "$1" "$output" >&2
    exit 1
}

# run COMMAND…: leaves its exit status in $status and what it printed in $output.
run() {
    status=0
    output="$("$@" 2>&1)" || status=$?
}

# needs TOOL…: without them there is nothing to test.
needs() {
    local tool
    for tool in "$@"; do
        command -v "$tool" >/dev/null || exit 77
    done
}

# names PATTERN…: what was printed last has to name each of them.
names() {
    local pattern
    for pattern in "$@"; do
        [[ "$output" == *"$pattern"* ]] || fail "not named: $pattern"
    done
}
