#!/usr/bin/env bash
# Makes the pictures of the user's guide anew, in docs/images/guide.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/build.sh release host Wentra
log="$(mktemp -d)"
trap 'rm -rf "$log"' EXIT
python3 scripts/tour/guide.py build/release/bin/host "$log"
mkdir -p docs/images/guide
cp "$log"/*.png docs/images/guide
