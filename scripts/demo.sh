#!/usr/bin/env bash
# Builds everything and flies the demo scenario: a Korvan stage in a 200 km
# orbit, under the fleet controller, flown by the key script beside the
# scenario: out of the autopilot, ullage, ignition, a 60 s burn, shutdown,
# then the rest of an orbit. Writes the end scenario and state, the event
# log, the telemetry and its chart, and the head-up display to demo-out/.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/build.sh
mkdir -p demo-out
build/bin/hullsim run KorvanFlight --for 5400 --dt 0.1 --accel 10 --seed 1 \
    --keys root/Scenarios/KorvanFlight.keys --events "$PWD/demo-out/events.jsonl" \
    --save "$PWD/demo-out/Korvan-end.scn" --state "$PWD/demo-out/state.json" \
    --telemetry "$PWD/demo-out/telemetry.csv" --telemetry-interval 60 \
    --track Korvan-1 --plot "$PWD/demo-out/orbit.svg" --hud "$PWD/demo-out/hud.svg" "$@"
grep '"message"' demo-out/events.jsonl | grep -v '"text":""' || true
echo "demo: wrote Korvan-end.scn, state.json, events.jsonl, telemetry.csv, orbit.svg and hud.svg in demo-out/"
