#!/usr/bin/env bash
# Notes, planner and marks on a full 30-year data folder (2000-2029: every day a note, a full
# planner page and a mark), in one run:
#   1. bench_notes_planner: the change of year against reading the same files (QFile and cat),
#      saving a planner year against writing the same bytes, and the memory two years take;
#   2. the command line verb "day" as a whole process, against a program that only prints its
#      arguments (plain C++, and linked to Qt Core taking them through QString), with
#      "orvanta --version" beside them as the floor under any verb.
#
#   bench/notes_planner.sh [build-dir]      (needs hyperfine: apt-get install hyperfine)
#   ROUNDS=101 RUNS=50 bench/notes_planner.sh
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
cmake --build "$build" --target orvanta bench_gen_data_folder bench_notes_planner \
    bench_print_args bench_print_args_qt >/dev/null
command -v hyperfine >/dev/null || { echo "hyperfine is needed: apt-get install hyperfine" >&2; exit 1; }

data=$(mktemp -d)
json=$(mktemp)
trap 'rm -rf "$data" "$json"' EXIT

"$build/bench/bench_gen_data_folder" "$data" 2000 30
echo
"$build/bench/bench_notes_planner" "$data" "${ROUNDS:-51}"

# The verb prints what it finds without a window, so it runs without a display here: a build
# that does not know the verb then stops at once (no display) instead of opening its window.
echo
echo "command line: orvanta --data-dir DIR day 2015-06-15 as a whole process"
no_display=(env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM)
verb=("$build/orvanta" --data-dir "$data" day 2015-06-15)
status=0
output=$("${no_display[@]}" timeout 20 "${verb[@]}" 2>&1) || status=$?
args="--data-dir $data day 2015-06-15"
# "orvanta --version" is the floor under any verb: the program loaded, started and ended.
commands=(-n print_args "$build/bench/bench_print_args $args"
    -n print_args_qt "$build/bench/bench_print_args_qt $args"
    -n orvanta_version "$build/orvanta --version")
if [ "$status" -eq 0 ] && [ -n "$output" ]; then
    printf '  it prints:\n%s\n' "$(printf '%s\n' "$output" | head -n 5 | sed 's/^/    /')"
    commands+=(-n orvanta "${verb[*]}")
else
    echo "  skipped: '${verb[*]}' exited with status $status" \
        "(${output:+first line: }$(printf '%s' "${output:-no output}" | head -n 1))"
    echo "  this build has no working 'day' verb yet; only the yardsticks are timed"
fi
"${no_display[@]}" hyperfine -N --warmup 5 --runs "${RUNS:-50}" --export-json "$json" \
    "${commands[@]}" >&2

python3 - "$json" <<'PY'
import json, sys
results = {r["command"]: r["mean"] for r in json.load(open(sys.argv[1]))["results"]}
plain, qt, version = (results[n] for n in ("print_args", "print_args_qt", "orvanta_version"))
line = (f"  print_args: {plain * 1000:.2f} ms   print_args_qt: {qt * 1000:.2f} ms   "
        f"orvanta --version: {version * 1000:.2f} ms")
if "orvanta" in results:
    orvanta = results["orvanta"]
    print(f"{line}\n  orvanta day: {orvanta * 1000:.2f} ms")
    print(f"  ratio against plain C++: {orvanta / plain:.2f}   against Qt Core: {orvanta / qt:.2f}")
else:
    print(line)
PY
