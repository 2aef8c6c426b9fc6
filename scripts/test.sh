#!/usr/bin/env bash
# Builds the library with all its tests and runs them.

source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

scripts/setup.sh
build debug
run_tests debug
say "All tests passed"
