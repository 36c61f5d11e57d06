#!/usr/bin/env bash
# Start-up time: Orvanta from launch to its main window drawn, against a bare Qt main window
# built beside it, measured in the same run. Prints both means and their ratio.
#
#   bench/startup.sh [build-dir]      (needs hyperfine: apt-get install hyperfine)
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
cmake --build "$build" --target orvanta bench_bare_window >/dev/null
command -v hyperfine >/dev/null || { echo "hyperfine is needed: apt-get install hyperfine" >&2; exit 1; }

data=$(mktemp -d)
json=$(mktemp)
trap 'rm -rf "$data" "$json"' EXIT
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}
# A first run installs the default files, so that every timed run starts a used data folder.
"$build/orvanta" --data-dir "$data" --exit-when-shown

hyperfine --warmup 3 --runs "${RUNS:-30}" --export-json "$json" \
    -n bare "$build/bench/bench_bare_window --exit-when-shown" \
    -n orvanta "$build/orvanta --data-dir $data --exit-when-shown" >&2

python3 - "$json" <<'PY'
import json, sys
results = {r["command"]: r for r in json.load(open(sys.argv[1]))["results"]}
bare, orvanta = results["bare"]["mean"], results["orvanta"]["mean"]
print(f"bare Qt window: {bare * 1000:.1f} ms   orvanta: {orvanta * 1000:.1f} ms   "
      f"ratio: {orvanta / bare:.2f}")
PY
