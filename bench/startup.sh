#!/usr/bin/env bash
# Start-up and memory of the whole program, in one run:
#   1. start-up from launch to the main window drawn (orvanta becoming orvanta-window), on an
#      empty data folder and on a full 30-year folder (every day a note, a full planner page
#      and a mark; this year and next are among them, so both are read), against a bare Qt
#      main window built beside it (and the same window showing one line of text, the floor
#      of any window that draws text). hyperfine gives the wall time; the CPU time (user +
#      system) is printed beside it, as it varies less on a busy machine.
#   2. the peak memory (max RSS) of the program with two full years loaded (this year and
#      next) against an empty folder, and that difference against the two years' file bytes.
#
#   bench/startup.sh [build-dir]      (needs hyperfine: apt-get install hyperfine)
#   RUNS=50 bench/startup.sh; QT_QPA_PLATFORM=xcb DISPLAY=:1 bench/startup.sh for a real display
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
cmake --build "$build" --target orvanta bench_bare_window bench_gen_data_folder >/dev/null
command -v hyperfine >/dev/null || { echo "hyperfine is needed: apt-get install hyperfine" >&2; exit 1; }

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}
year=$(date +%Y)
mkdir "$work/empty"
"$build/bench/bench_gen_data_folder" "$work/years30" $((year - 28)) 30 >&2
"$build/bench/bench_gen_data_folder" "$work/years2" "$year" 2 >&2
# A first run installs the default files, so that every timed run starts a used data folder.
for folder in empty years30 years2; do
    "$build/orvanta" --data-dir "$work/$folder" --exit-when-shown 2>/dev/null
done

hyperfine -N --warmup 3 --runs "${RUNS:-30}" --export-json "$work/times.json" \
    -n bare "$build/bench/bench_bare_window --exit-when-shown" \
    -n text "$build/bench/bench_bare_window --text --exit-when-shown" \
    -n empty "$build/orvanta --data-dir $work/empty --exit-when-shown" \
    -n years30 "$build/orvanta --data-dir $work/years30 --exit-when-shown" >&2

# Peak resident size in kB, the median of five runs.
max_rss() {
    for _ in 1 2 3 4 5; do
        /usr/bin/time -f %M "$build/orvanta" --data-dir "$1" --exit-when-shown 2>&1 >/dev/null |
            tail -1
    done | sort -n | sed -n 3p
}
rss_empty=$(max_rss "$work/empty")
rss_years=$(max_rss "$work/years2")
year_bytes=$(cat "$work/years2"/{"$year","$((year + 1))"}/* "$work/years2"/*Marks.dat | wc -c)

python3 - "$work/times.json" "$rss_empty" "$rss_years" "$year_bytes" <<'PY'
import json, sys
results = {r["command"]: r for r in json.load(open(sys.argv[1]))["results"]}
bare, text = results["bare"], results["text"]
cpu = lambda r: r["user"] + r["system"]
print(f"one line of text in the bare window: {text['mean'] * 1000:.1f} ms, CPU {cpu(text) * 1000:.1f} ms")
for name, label in (("empty", "empty folder"), ("years30", "30-year folder")):
    r = results[name]
    print(f"start-up, {label}: {r['mean'] * 1000:.1f} ms (bare Qt window {bare['mean'] * 1000:.1f} ms,"
          f" ratio {r['mean'] / bare['mean']:.2f}); CPU {cpu(r) * 1000:.1f} ms"
          f" (bare {cpu(bare) * 1000:.1f} ms, ratio {cpu(r) / cpu(bare):.2f});"
          f" against the line of text {r['mean'] / text['mean']:.2f}")
empty_kb, years_kb, file_bytes = map(int, sys.argv[2:5])
extra = (years_kb - empty_kb) * 1024
print(f"memory: max RSS {empty_kb / 1024:.1f} MB empty, {years_kb / 1024:.1f} MB with two full years;"
      f" {extra / 1e6:.2f} MB more for {file_bytes / 1e6:.2f} MB of files, ratio {extra / file_bytes:.2f}")
PY
