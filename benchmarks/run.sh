#!/usr/bin/env bash
# Measures `zdx info` on generated drawings against one pass over their bytes, and prints a table
# in Markdown for docs/performance.md.
#
#   benchmarks/run.sh [RUNS]        20 runs by default
#
# ZDX_BENCH_SIZES: the DXF drawings' sizes in megabytes, "2.5 20 200" by default.
# ZDX_BENCH_VERSIONS: the versions of the DWG drawings, "AC1015 AC1021 AC1032" by default.
# ZDX_BENCH_DRAWINGS: further drawings to measure, none by default.
set -euo pipefail

cd "$(dirname "$0")/.."
runs=${1:-20}
sizes=${ZDX_BENCH_SIZES:-2.5 20 200}
versions=${ZDX_BENCH_VERSIONS:-AC1015 AC1021 AC1032}
drawings=${ZDX_BENCH_DRAWINGS:-}
entities=250000
selection=summary,custom,thumbnail,creator,flavour,settings,geo,dictionaries,tables
bin=build/release/bin
data=build/bench

say() { echo "$*" >&2; }

say "Building ..."
cmake --preset release >&2
cmake --build --preset release -j"$(nproc)" \
  --target zdx generate_dxf generate_dwg line_pass measure_runs check_answer >&2
mkdir -p "$data"

# An answer that is wrong isn't worth timing.
for size in $sizes; do
  file=$data/plan-$size.dxf
  say "Generating $file ..."
  "$bin/generate_dxf" "$file" "$size" >&2
  "$bin/zdx" info -o json --select all "$file" | "$bin/check_answer" "$file.expected"
  say "The answer is right."
done

for version in $versions; do
  file=$data/plan-$version.dwg
  say "Generating $file ..."
  "$bin/generate_dwg" "$file" "$version" "$entities"
  "$bin/zdx" info -o json --select all "$file" | "$bin/check_answer" "$file.expected"
  say "The answer is right."
  drawings="$drawings $file"
done

number() { awk -v value="$1" -v by="$2" -v form="$3" 'BEGIN { printf form, value / by }'; }

commit=$(git rev-parse --short HEAD 2>/dev/null || echo "not committed")
[ -z "$(git status --porcelain 2>/dev/null)" ] || commit="$commit, with changes"
processor=$(awk -F': ' '/model name/ { print $2; exit }' /proc/cpuinfo)
memory=$(awk '/MemTotal/ { printf "%.0f GB", $2 / 1048576 }' /proc/meminfo)

echo "Machine: ${processor:-unknown}, $(nproc) processors, $memory, $(uname -sr)."
echo "Date: $(date -u +%Y-%m-%d). Commit: $commit. Compiler: $(c++ --version | head -1)."
echo "Medians of $runs runs of whole processes, in turn, from the page cache."
echo
echo "| Drawing | \`zdx info\` | Line pass | Ratio | Throughput | Peak memory | of the file |"
echo "|---|---|---|---|---|---|---|"
for size in $sizes; do
  file=$data/plan-$size.dxf
  info=("$bin/zdx" info -o json --select "$selection" "$file")
  read -r tool pass ratio < <("$bin/measure_runs" time "$runs" "${info[@]}" -- "$bin/line_pass" "$file")
  read -r anonymous _ < <("$bin/measure_runs" memory "${info[@]}")
  bytes=$(stat -c %s "$file")
  echo "| $(number "$bytes" 1e6 %.1f) MB" \
    "| $(number "$tool" 0.001 %.1f) ms | $(number "$pass" 0.001 %.1f) ms | $ratio" \
    "| $(number "$bytes" "${tool}e6" %.0f) MB/s" \
    "| $(number "$anonymous" 1e6 %.1f) MB | $(number "${anonymous}e2" "$bytes" %.1f) % |"
done
echo
echo "| Drawing | everything but blocks | summary alone | nothing | Peak memory |"
echo "|---|---|---|---|---|"
for file in $drawings; do
  info=("$bin/zdx" info -o json --select "$selection" "$file")
  summary=("$bin/zdx" info -o json --select summary "$file")
  read -r tool nothing _ < <("$bin/measure_runs" time "$runs" "${info[@]}" -- "$bin/zdx" --version)
  read -r brief _ < <("$bin/measure_runs" time "$runs" "${summary[@]}" -- "$bin/zdx" --version)
  read -r anonymous _ < <("$bin/measure_runs" memory "${info[@]}")
  echo "| $(basename "$file"), $(number "$(stat -c %s "$file")" 1e6 %.1f) MB" \
    "| $(number "$tool" 0.001 %.1f) ms | $(number "$brief" 0.001 %.1f) ms" \
    "| $(number "$nothing" 0.001 %.1f) ms | $(number "$anonymous" 1e6 %.1f) MB |"
done
echo
echo "Peak memory is what no file backs (heap, stack, written pages of libraries): RssAnon of"
echo "/proc/PID/status, the greatest of readings every 0.2 ms in a run of its own and of one at the"
echo "process's exit. Pages of the mapped drawing don't count: the system takes them back at will."
