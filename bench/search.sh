#!/usr/bin/env bash
# The search verb on a full 30-year data folder (2000-2029: every day a note and a full planner
# page), as a whole process, against grep counting the matching lines of the same Notes.dat and
# Planner.dat files, in one run. Two phrases: one the data holds ("Zürich"), one it does not.
# The ratio is grep's time over orvanta's: orvanta's throughput measured in grep's.
#
# grep runs in the C locale and gets the phrase as the files hold it (windows-1252 bytes, from
# a pattern file), so that it matches the same bytes; orvanta gets the phrase as typed (UTF-8).
#
#   bench/search.sh [build-dir]      (needs hyperfine: apt-get install hyperfine)
#   RUNS=50 bench/search.sh
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
cmake --build "$build" --target orvanta bench_gen_data_folder >/dev/null
command -v hyperfine >/dev/null || { echo "hyperfine is needed: apt-get install hyperfine" >&2; exit 1; }

data=$(mktemp -d)
json=$(mktemp)
trap 'rm -rf "$data" "$json"' EXIT

"$build/bench/bench_gen_data_folder" "$data" 2000 30
files=("$data"/*/Notes.dat "$data"/*/Planner.dat)
echo "searching $(cat "${files[@]}" | wc -c | awk '{printf "%.1f MB", $1 / 1e6}') in ${#files[@]} files"

no_display=(env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM)
for phrase in "Zürich" "xylophone"; do
    pattern=$data/pattern
    printf '%s' "$phrase" | iconv -f UTF-8 -t WINDOWS-1252 >"$pattern"
    status=0
    "${no_display[@]}" "$build/orvanta" --data-dir "$data" search "$phrase" >"$data/found" || status=$?
    echo
    echo "phrase \"$phrase\": orvanta finds $(wc -l <"$data/found") dates (exit $status)," \
        "grep $(LC_ALL=C grep -c -i -f "$pattern" "${files[@]}" | awk -F: '{n += $NF} END {print n}') lines"
    # Output through a pipe: grep writing to /dev/null stops at the first match.
    "${no_display[@]}" LC_ALL=C hyperfine -N --warmup 3 --runs "${RUNS:-30}" -i --output=pipe \
        --export-json "$json" \
        -n grep "grep -c -i -f $pattern ${files[*]}" \
        -n orvanta "$build/orvanta --data-dir $data search $phrase" >&2
    python3 - "$json" <<'PY'
import json, sys
results = {r["command"]: r["mean"] for r in json.load(open(sys.argv[1]))["results"]}
grep, orvanta = results["grep"], results["orvanta"]
print(f"  grep -c -i: {grep * 1000:.1f} ms   orvanta search: {orvanta * 1000:.1f} ms   "
      f"ratio (grep / orvanta): {grep / orvanta:.2f}")
PY
done
