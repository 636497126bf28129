#!/usr/bin/env bash
# Builds everything and flies the demo scenario: a Korvan stage in a 200 km
# orbit, for one orbit. Writes the end state and the scenario to demo-out/.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/build.sh
mkdir -p demo-out
build/bin/hullsim run Korvan --for 5400 --dt 1 --accel 10 --seed 1 \
    --save "$PWD/demo-out/Korvan-end.scn" --state "$PWD/demo-out/state.json" "$@"
echo "hullsim: wrote demo-out/Korvan-end.scn and demo-out/state.json"
