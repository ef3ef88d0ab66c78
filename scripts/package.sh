#!/usr/bin/env bash
# Packages Wentra for the device (the device build is not there yet).
set -euo pipefail

printf 'package: there is no device build yet, so there is nothing to package.\n' >&2
exit 1
