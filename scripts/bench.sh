#!/usr/bin/env bash
# Builds the benchmarks and runs them: files against libxml2 alone, then the small operations.
# Files are made in TMPDIR. Figures are worth something on a machine that does nothing else.

source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

scripts/setup.sh
build bench
say "Files: time and memory against libxml2 alone"
build/bench/bench/file_bench
say "Small operations"
build/bench/bench/micro_bench
say "Handles beside the classes beneath them"
build/bench/bench/values/values_bench
