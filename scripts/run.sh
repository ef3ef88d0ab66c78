#!/usr/bin/env bash
# Installs what is missing, builds, and shows the phone in a browser page: ./dev run [--tour | --help | OPTIONS].
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

usage='usage: ./dev run [--app NAME] [--device NAME] [--root DIR] [--port N] [--no-browser]
       ./dev run --tour

Shows the phone in a browser page, at the address that is printed, and opens it where a browser can be
seen; over SSH, it prints the command that brings the page to the other end. Ctrl-C ends it.
  --app NAME     the application that runs first (notes, settings, chat, browser, files, playground or plain; default: notes)
  --device NAME  the model of phone, "iPhone SE" for instance (default: iPhone 12; the page changes it)
  --root DIR     the folder that keeps the phone'"'"'s files (default: a fresh one, removed at the end)
  --port N       the port of the loopback address, 1 to 65535 (default: a free one)
  --no-browser   only prints the address
  --tour         plays the main road without a browser and leaves screenshots
  --help         prints this'

refuse() {
    printf '%s\nrun: %s\n' "$usage" "$1" >&2
    exit 2
}

tour=false
options=()
show=()
while [[ $# -gt 0 ]]; do
    case "$1" in
    --help | -h)
        printf '%s\n' "$usage"
        exit 0
        ;;
    --tour) tour=true ;;
    --no-browser) show=("$1") ;;
    --app | --device | --root | --port)
        [[ $# -ge 2 ]] || refuse "$1 needs a value"
        options+=("$1" "$2")
        shift
        ;;
    *) refuse "unknown argument: $1" ;;
    esac
    shift
done
if "$tour" && [[ ${#options[@]} -gt 0 || ${#show[@]} -gt 0 ]]; then
    refuse '--tour has no options'
fi

scripts/build.sh release host Wentra
if "$tour"; then
    exec python3 scripts/tour
fi
exec build/release/bin/host --viewer "${options[@]}" > >(exec scripts/run/show_page.sh "${show[@]}")
