#!/usr/bin/env bash
# Installs what is missing, builds, and shows Wentra at work: ./dev run [--tour].
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

case "${1:---tour}" in
--tour) ;;
*)
    printf 'run: unknown argument: %s (only --tour is known)\n' "$1" >&2
    exit 2
    ;;
esac

scripts/build.sh release host Wentra
if [[ $# == 0 ]]; then
    printf 'The interactive phone is still to come; this is the tour (./dev run --tour).\n'
fi
exec python3 scripts/tour.py
