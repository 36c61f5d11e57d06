#!/usr/bin/env bash
# The expense and mileage reports on a full 30-year data folder (2000-2029: every day a planner
# page with all six expense and five mileage lines filled), in one run:
#   1. bench_reports: a full year's report built from the year loaded in the planner store,
#      against one memchr pass over the same bytes in memory, and from the file read afresh
#      against QFile::readAll;
#   2. the command line "orvanta report expenses|mileage --from 2015-01-01 --to 2015-12-31
#      --csv" as a whole process, against cat of that year's Planner.dat. The ratio is the
#      report's time over cat's.
#
#   bench/reports.sh [build-dir]      (needs hyperfine: apt-get install hyperfine)
#   ROUNDS=201 RUNS=50 bench/reports.sh
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
cmake --build "$build" --target orvanta bench_gen_data_folder bench_reports >/dev/null
command -v hyperfine >/dev/null || { echo "hyperfine is needed: apt-get install hyperfine" >&2; exit 1; }

data=$(mktemp -d)
json=$(mktemp)
trap 'rm -rf "$data" "$json"' EXIT

"$build/bench/bench_gen_data_folder" "$data" 2000 30
echo
"$build/bench/bench_reports" "$data" "${ROUNDS:-101}" 2015

file=$data/2015/Planner.dat
period=(--from 2015-01-01 --to 2015-12-31 --csv)
no_display=(env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM)
echo
echo "command line: orvanta report ... ${period[*]} as a whole process, against cat of" \
    "$(wc -c <"$file" | awk '{printf "%.2f MB", $1 / 1e6}') of Planner.dat"
for kind in expenses mileage; do
    "${no_display[@]}" "$build/orvanta" --data-dir "$data" report "$kind" "${period[@]}" \
        >"$data/report.csv"
    echo "  $kind: $(($(wc -l <"$data/report.csv") - 1)) rows," \
        "$(wc -c <"$data/report.csv" | awk '{printf "%.2f MB", $1 / 1e6}') of CSV"
done
"${no_display[@]}" hyperfine -N --warmup 5 --runs "${RUNS:-50}" --output=pipe \
    --export-json "$json" \
    -n cat "cat $file" \
    -n expenses "$build/orvanta --data-dir $data report expenses ${period[*]}" \
    -n mileage "$build/orvanta --data-dir $data report mileage ${period[*]}" >&2
python3 - "$json" <<'PY'
import json, sys
results = {r["command"]: r["mean"] for r in json.load(open(sys.argv[1]))["results"]}
cat = results["cat"]
for kind in ("expenses", "mileage"):
    print(f"  cat: {cat * 1000:.2f} ms   orvanta report {kind} --csv: {results[kind] * 1000:.2f} ms"
          f"   ratio (orvanta / cat): {results[kind] / cat:.2f}")
PY
