#!/usr/bin/env bash
# Builds the libFuzzer targets of fuzz/ with clang, AddressSanitizer and
# UndefinedBehaviorSanitizer into build-fuzz/ and runs them, one at a time.
#
#   scripts/fuzz.sh                      replays every regression case, then
#                                        fuzzes each target for 30 s (CI)
#   scripts/fuzz.sh --long SECONDS [TARGET...]
#                                        the same, SECONDS per target, for the
#                                        named targets or all of them
#   scripts/fuzz.sh --replay             only replays the regression cases
#
# Targets: config, scenario_file, vessel_scenario, key_script. The corpus
# grows in build-fuzz/corpus/<target>/ and is kept between runs; it starts
# from the seeds and from fuzz/corpus/<target>/, a minimised corpus of long
# runs kept in the repository where it is small. A finding fails the run and
# is left in build-fuzz/findings/<target>/; once it is fixed, keep it as
# fuzz/regressions/<target>/<what-it-was>.
set -euo pipefail
cd "$(dirname "$0")/.."
top=$PWD
all_targets=(config scenario_file vessel_scenario key_script)

mode=smoke
seconds=30
targets=()
while [ $# -gt 0 ]; do
    case "$1" in
    --long)
        mode=long
        seconds=${2:?--long needs a number of seconds}
        shift 2
        ;;
    --replay)
        mode=replay
        shift
        ;;
    -h | --help)
        sed -n '2,18p' "$0" | sed 's/^# \{0,1\}//'
        exit 0
        ;;
    *)
        targets+=("$1")
        shift
        ;;
    esac
done
[ ${#targets[@]} -eq 0 ] && targets=("${all_targets[@]}")
for t in "${targets[@]}"; do
    [ -f "fuzz/${t}_fuzzer.cpp" ] || { echo "fuzz.sh: no target '$t' (targets: ${all_targets[*]})" >&2; exit 2; }
done

scripts/install-deps.sh
CC=clang CXX=clang++ cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DHULLKIT_FUZZ=ON >/dev/null
cmake --build build-fuzz -j"$(nproc)" --target fuzzers

export ASAN_OPTIONS="halt_on_error=1:abort_on_error=1:detect_leaks=1:strict_string_checks=1"
export UBSAN_OPTIONS="halt_on_error=1:abort_on_error=1:print_stacktrace=1"

# The seed corpus of a target, from the repository's own files and the seeds
# kept in fuzz/seeds/<target>/.
make_seeds() {
    local t=$1 dir=$top/build-fuzz/seeds/$1
    rm -rf "$dir"
    mkdir -p "$dir"
    [ -d "fuzz/seeds/$t" ] && cp fuzz/seeds/"$t"/* "$dir"/
    local fleet=root/Config/Vessels/Fleet
    case $t in
    config)
        # A module letter, then the common, class and variant files, separated
        # by form feeds; once with the comments, once without.
        local variant
        for variant in "" $fleet/Korvan/*.cfg; do
            config_seed K Korvan "$variant" cat >"$dir/korvan-$(basename "${variant:-none}" .cfg)"
        done
        for variant in $fleet/Generic/*.cfg; do
            config_seed G Generic "$variant" strip_comments >"$dir/generic-$(basename "$variant" .cfg)"
        done
        config_seed K Korvan $fleet/Korvan/TwoPayloads.cfg strip_comments >"$dir/korvan-short"
        ;;
    scenario_file)
        cp root/Scenarios/*.scn "$dir"/
        ;;
    vessel_scenario)
        # The vessel blocks of the shipped scenarios.
        local scn
        for scn in root/Scenarios/*.scn; do
            awk '/^END_SHIPS/ { s = 0 } s == 2 && /^END$/ { s = 1 } s == 2 { print }
                 s == 1 && /:/ { s = 2 } /^BEGIN_SHIPS/ { s = 1 }' "$scn" >"$dir/$(basename "$scn" .scn)"
        done
        ;;
    esac
}
strip_comments() { sed -e '/^[[:space:]]*;/d' -e '/^[[:space:]]*$/d' "$@"; }
config_seed() {
    local letter=$1 module=$2 variant=$3 filter=$4 fleet=root/Config/Vessels/Fleet
    printf '%s' "$letter"
    $filter $fleet/HullKit.cfg
    printf '\f'
    $filter $fleet/$module.cfg
    printf '\f'
    [ -z "$variant" ] || $filter "$variant"
}

mkdir -p build-fuzz
status=0
failed=0
for t in "${targets[@]}"; do
    fuzzer=$top/build-fuzz/fuzz/${t}_fuzzer
    regressions=$top/fuzz/regressions/$t
    mkdir -p "$regressions"
    if [ -n "$(ls -A "$regressions")" ]; then
        echo "== $t: replaying $(ls "$regressions" | wc -l) regression cases"
        if ! "$fuzzer" -timeout=10 "$regressions"/* >"$top/build-fuzz/$t-replay.log" 2>&1; then
            tail -n 60 "$top/build-fuzz/$t-replay.log"
            echo "== $t: a regression case fails again, see $top/build-fuzz/$t-replay.log" >&2
            status=1
            failed=$((failed + 1))
            continue
        fi
    fi
    [ "$mode" = replay ] && continue

    make_seeds "$t"
    corpus=$top/build-fuzz/corpus/$t
    findings=$top/build-fuzz/findings/$t
    mkdir -p "$corpus" "$findings"
    echo "== $t: fuzzing for $seconds s"
    log=$top/build-fuzz/$t.log
    # New inputs go to the first folder; the others only feed the start.
    inputs=("$corpus" "$top/build-fuzz/seeds/$t" "$regressions")
    [ -d "fuzz/corpus/$t" ] && inputs+=("$top/fuzz/corpus/$t")
    if ! "$fuzzer" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 \
        -dict="$top/fuzz/dicts/$t.dict" -artifact_prefix="$findings/" "${inputs[@]}" >"$log" 2>&1; then
        tail -n 60 "$log"
        echo "== $t: FINDING, see $findings/ and $log" >&2
        status=1
        failed=$((failed + 1))
        continue
    fi
    grep -E '^#[0-9]+[[:space:]]+DONE' "$log" | tail -n 1 || true
    grep -E '^stat::(number_of_executed_units|average_exec_per_sec|peak_rss_mb)' "$log" || true
    echo "corpus: $(ls "$corpus" | wc -l) files, $(du -sh "$corpus" | cut -f1)"
done
echo "fuzz: $((${#targets[@]} - failed)) passed, $failed failed"
exit $status
