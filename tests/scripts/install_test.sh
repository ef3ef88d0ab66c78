#!/usr/bin/env bash
# Checks what the installation asks of the system, with stand-ins for its tools.
# shellcheck disable=SC2016 # The bodies of the stand-ins are expanded when they run.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../support/expectations.sh"

# tool NAME: a stand-in whose body is read from standard input.
tool() {
    { printf '#!/bin/bash\n' && cat; } >"$folder/$1"
    chmod +x "$folder/$1"
}

# Runs the installation with nothing but the stand-ins; leaves $status, $output and $calls.
install() {
    status=0
    : >"$folder/calls"
    output="$(PATH="$folder" /bin/bash "$root/scripts/install.sh" "$@" 2>&1)" || status=$?
    calls="$(<"$folder/calls")"
}

tool dpkg-query <<<'[[ "${*: -1}" =~ ^(clang|shellcheck)$ ]] && exit 1; printf installed'
tool apt-get <<<'printf "apt-get %s\n" "$*" >>"${0%/*}/calls"; [[ ! -e "${0%/*}/$1-fails" ]]'
tool env <<<'shift; exec "$@"'
tool id <<<'echo 0'

install
[[ $status == 0 && -z "$output$calls" ]] || fail 'a second installation is not silent'

install build lint
[[ $status == 0 ]] || fail "the installation exits with $status"
[[ "$calls" == $'apt-get update\napt-get install --yes --no-install-recommends shellcheck' ]] ||
    fail "wrong calls: $calls"
[[ "$output" == *shellcheck*'faults in the scripts'* ]] || fail 'it does not say why'

install --list browser
[[ $status == 0 && "$output" == $'chromium\nnodejs\nnpm' && -z "$calls" ]] ||
    fail 'it does not list the packages of a group, or does more than that'

install nonsense
[[ $status == 1 && "$output" == *'unknown group: nonsense'* && -z "$calls" ]] ||
    fail 'an unknown group is accepted'

for step in update install; do
    touch "$folder/$step-fails"
    install lint
    [[ $status == 1 && "$output" == *"apt-get $step failed"* ]] || fail "a failed $step is hidden"
    rm "$folder/$step-fails"
done

tool id <<<'echo 1000'
install fuzz
[[ $status == 1 && "$output" == *'apt-get install clang' && -z "$calls" ]] ||
    fail 'without root and sudo, it does not say what to do'

tool sudo <<<'printf "sudo " >>"${0%/*}/calls"; exec "$@"'
install fuzz
[[ $status == 0 && "$calls" == 'sudo apt-get update'$'\n''sudo apt-get install '* ]] ||
    fail "sudo is not used: $calls"

rm "$folder/dpkg-query"
install
[[ $status == 1 && "$output" == *'needs Debian 12'* ]] || fail 'another system is not noticed'
