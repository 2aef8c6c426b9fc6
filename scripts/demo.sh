#!/usr/bin/env bash
# Shows the library at work on a fresh machine: builds the vantrel command, prints the page of an
# example project, saves the project, saves what it saved once more, and shows a title that an example
# program builds in memory.

source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

project=examples/travel-disc/Content/travel-disc.xml

scripts/setup.sh
build release
vantrel=build/release/tools/vantrel

say "vantrel info $project"
"$vantrel" info "$project"

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
# Each copy has the project's file name, for the name is part of what is saved.
mkdir "$scratch/first" "$scratch/second"
first=$scratch/first/travel-disc.xml
second=$scratch/second/travel-disc.xml
say "vantrel save $project $first"
"$vantrel" save "$project" "$first"
say "vantrel save $first $second"
"$vantrel" save "$first" "$second"
cmp "$first" "$second"
say "The second save is the first, byte for byte ($(wc -c <"$second") bytes)"

made=$scratch/made.xml
say "make_disc $made"
build/release/examples/make_disc "$made"
say "vantrel info $made"
"$vantrel" info "$made"
