#!/usr/bin/env bash
# Runs the compiler through ccache where it is installed. Which of the two is decided anew at each call, so
# that a cache that appears or goes between two builds changes no command line and rebuilds nothing.
if command -v ccache >/dev/null; then
    # What ccache has to overlook, as its manual says, to keep results of precompiled headers.
    export CCACHE_SLOPPINESS="${CCACHE_SLOPPINESS:-pch_defines,time_macros}"
    exec ccache "$@"
fi
exec "$@"
