#!/usr/bin/env bash
# Builds everything and flies the demo scenario: a Korvan stage in a 200 km
# orbit, for one orbit. Writes the end scenario and state, the telemetry and
# its chart, and the head-up display to demo-out/.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/build.sh
mkdir -p demo-out
build/bin/hullsim run Korvan --for 5400 --dt 1 --accel 10 --seed 1 \
    --save "$PWD/demo-out/Korvan-end.scn" --state "$PWD/demo-out/state.json" \
    --telemetry "$PWD/demo-out/telemetry.csv" --telemetry-interval 60 \
    --plot "$PWD/demo-out/orbit.svg" --hud "$PWD/demo-out/hud.svg" "$@"
echo "demo: wrote Korvan-end.scn, state.json, telemetry.csv, orbit.svg and hud.svg in demo-out/"
