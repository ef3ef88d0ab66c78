#!/usr/bin/env bash
# Checks that ./dev run ends at Ctrl-C while it still builds, with all that it has started.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../support/expectations.sh"

mkdir -p "$folder/scripts" "$folder/build/release/bin"
cp "$root/dev" "$folder"
cp -r "$root/scripts/run.sh" "$root/scripts/run" "$folder/scripts"
mkfifo "$folder/builds"

# Stand-ins: a build that tells when it has begun and takes long, and a host that tells that it was started.
cat >"$folder/scripts/build.sh" <<BUILD
#!/usr/bin/env bash
set -euo pipefail
exec 3>"$folder/builds" # open for as long as any of it goes on
echo begun >&3
sleep 600
BUILD
printf '#!/usr/bin/env bash\ntouch "%s"\n' "$folder/started" >"$folder/build/release/bin/host"
chmod +x "$folder/scripts/build.sh" "$folder/build/release/bin/host"

set -m # in a process group of its own, as in a terminal
"$folder/dev" run >"$folder/output" 2>&1 &
set +m
group=$!
exec 4<"$folder/builds"
line=''
read -r -t 20 -u 4 line || true
[[ "$line" == begun ]] || fail 'the build does not begin'
kill -INT -- "-$group"
status=0
wait "$group" || status=$?
[[ $status == 130 ]] || fail "it exits with $status instead of 130"
[[ ! -e "$folder/started" ]] || fail 'the host was started all the same'
timeout 20 cat <&4 || fail 'the build goes on'
