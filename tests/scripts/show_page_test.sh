#!/usr/bin/env bash
# Checks what is done with the page's address: a browser where one can be seen, a command over SSH.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../support/expectations.sh"

# A browser that waits until somebody asks for what it was given.
mkfifo "$folder/opened"
cat >"$folder/xdg-open" <<OPEN
#!/usr/bin/env bash
printf '%s' "\$1" >"$folder/opened"
OPEN
chmod +x "$folder/xdg-open"
address='http://127.0.0.1:4321/0123/'

# passed COMMAND…: runs it with the two lines as its input.
passed() {
    printf 'Wentra\n%s\n' "$address" | "$@"
}

# show VARIABLE=VALUE… [-- ARGUMENT…]: what is printed for the two lines of a host.
show() {
    local variables=()
    while [[ $# -gt 0 && "$1" != -- ]]; do
        variables+=("$1")
        shift
    done
    run passed env -u DISPLAY -u WAYLAND_DISPLAY -u SSH_CONNECTION PATH="$folder:$PATH" "${variables[@]}" \
        "$root/scripts/run/show_page.sh" "${@:2}"
    [[ $status == 0 ]] || fail "it exits with $status"
    names "Wentra
$address"
}

# opened: whether the browser has got the address, and only once since the last time.
opened() {
    [[ "$(timeout 20 cat "$folder/opened")" == "$address" ]]
}

show
show DISPLAY=:0 -- --no-browser
show DISPLAY=:0 'SSH_CONNECTION=192.0.2.1 50000 192.0.2.7 22'
names "ssh -N -L 4321:127.0.0.1:4321 $(id -un)@192.0.2.7"
show 'SSH_CONNECTION=192.0.2.1 50000 192.0.2.7 2222'
names "-L 4321:127.0.0.1:4321 -p 2222 $(id -un)@192.0.2.7"

show DISPLAY=:0
opened || fail 'the browser is not opened, or was where nobody sees it'
show WAYLAND_DISPLAY=wayland-0
opened || fail 'the browser is not opened under Wayland'
