#!/usr/bin/env bash
# Passes on what the host prints. Opens the page in a browser where there is one to be seen, unless it is
# called with --no-browser; over SSH, prints the command by which the page is reached from the other end.
set -euo pipefail
trap '' INT # the host ends at Ctrl-C, and its lines with it

tunnel() {
    local port="$1" server server_port
    read -r _ _ server server_port <<<"$SSH_CONNECTION"
    local options=(-N -L "$port:127.0.0.1:$port")
    [[ "$server_port" == 22 ]] || options+=(-p "$server_port")
    printf 'From where you sit: ssh %s %s@%s\n' "${options[*]}" "$(id -un)" "$server"
}

offer() {
    local address="$1" port="$2" browser="$3"
    if [[ -n "${SSH_CONNECTION:-}" ]]; then
        tunnel "$port"
    elif [[ "$browser" == true && -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]] && command -v xdg-open >/dev/null; then
        xdg-open "$address" >/dev/null 2>&1 &
    fi
}

browser=true
[[ "${1:-}" == --no-browser ]] && browser=false
while IFS= read -r line; do
    printf '%s\n' "$line"
    if [[ "$line" =~ ^http://127\.0\.0\.1:([0-9]+)/ ]]; then
        offer "$line" "${BASH_REMATCH[1]}" "$browser"
    fi
done
