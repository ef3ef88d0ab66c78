#!/usr/bin/env bash
# Checks how ./dev finds its words: the list, unknown words, and the way arguments are passed on.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../support/expectations.sh"

run "$root/dev"
[[ $status == 0 ]] || fail "./dev alone exits with $status"
list="$output"
for word in run build test browser bench emulate fuzz guide host package format lint help; do
    grep -Eq "^  $word +[A-Z].*\.$" <<<"$list" || fail "the list does not describe $word"
done
run "$root/dev" help
[[ "$output" == "$list" ]] || fail './dev help prints something else than ./dev'

for word in nonsense ../dev ../scripts/package package.sh 'package x' --check; do
    run "$root/dev" "$word"
    [[ $status == 2 ]] || fail "the word '$word' exits with $status instead of 2"
done
run "$root/dev" nonsense
[[ "$output" == *'unknown word: nonsense'*Usage* ]] || fail 'an unknown word is not named'
[[ -z "$("$root/dev" nonsense 2>/dev/null || true)" ]] || fail 'the complaint is on standard output'

for word in run package; do
    run "$root/dev" "$word" --nonsense
    [[ $status == 2 ]] || fail "./dev $word with an unknown argument exits with $status instead of 2"
done

mkdir -p "$folder/scripts"
cp "$root/dev" "$folder"
cp "$root/scripts/host.sh" "$folder/scripts"

# A stand-in for the build makes a host that prints its folder and its arguments.
cat >"$folder/scripts/build.sh" <<'BUILD'
#!/usr/bin/env bash
mkdir -p "$(dirname "$0")/../build/release/bin" "$(dirname "$0")/../build/release/lib"
cd "$(dirname "$0")/../build/release"
touch lib/Wentra.so
printf '#!/usr/bin/env bash\npwd; cat; printf "<%%s>" "$@"\n' >bin/host
chmod +x bin/host
echo 'building'
cat
BUILD
chmod +x "$folder/scripts/build.sh"
cd /
for time in first second; do
    response="$(printf 'request\n' | "$folder/dev" host --app 'a b' '' '*' 2>"$folder/errors")"
    [[ "$response" == $'/\nrequest\n<--app><a b><><*>' ]] ||
        fail "$time start of the host: wrong folder, input, output or arguments: $response"
    [[ "$time" == second || "$(<"$folder/errors")" == building ]] ||
        fail 'the output of the build is not on standard error'
done
[[ -z "$(<"$folder/errors")" ]] || fail 'a host that is there is built again'
