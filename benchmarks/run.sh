#!/usr/bin/env bash
# Measures the tool on generated drawings, against one pass over their bytes where there is a measure
# in that, and prints tables in Markdown for docs/performance.md.
#
#   benchmarks/run.sh [RUNS]              everything but blocks and references; 20 runs by default
#   benchmarks/run.sh blocks [RUNS]       one block of many references; 10 runs by default
#   benchmarks/run.sh references [RUNS]   drawings that refer to each other; 10 runs by default
#
# ZDX_BENCH_SIZES: the DXF drawings' sizes in megabytes, "2.5 20 200" by default.
# ZDX_BENCH_VERSIONS: the versions of the DWG drawings, "AC1015 AC1021 AC1032" by default.
# ZDX_BENCH_DRAWINGS: further drawings to measure, none by default.
# ZDX_BENCH_TITLES: how many entities the drawings with the block have, a tenth of them references,
# "250000 500000 1000000" by default.
# ZDX_BENCH_TITLE_VERSIONS: the versions of those that are DWG, "AC1014 AC1015 AC1018 AC1021 AC1032"
# by default.
# ZDX_BENCH_PROJECT: how many drawings refer to each other, 1000 by default.
set -euo pipefail

cd "$(dirname "$0")/.."
part=all
if [ "${1:-}" = blocks ] || [ "${1:-}" = references ]; then
  part=$1
  shift
fi
bin=build/release/bin
data=build/bench

say() { echo "$*" >&2; }

say "Building ..."
cmake --preset release >&2
cmake --build --preset release -j"$(nproc)" \
  --target zdx generate_dxf generate_dwg generate_project line_pass measure_runs check_answer \
  check_references >&2
mkdir -p "$data"

number() { awk -v value="$1" -v by="$2" -v form="$3" 'BEGIN { printf form, value / by }'; }

commit=$(git rev-parse --short HEAD 2>/dev/null || echo "not committed")
[ -z "$(git status --porcelain 2>/dev/null)" ] || commit="$commit, with changes"
processor=$(awk -F': ' '/model name/ { print $2; exit }' /proc/cpuinfo)
memory=$(awk '/MemTotal/ { printf "%.0f GB", $2 / 1048576 }' /proc/meminfo)

heading() {
  echo "Machine: ${processor:-unknown}, $(nproc) processors, $memory, $(uname -sr)."
  echo "Date: $(date -u +%Y-%m-%d). Commit: $commit. Compiler: $(c++ --version | head -1)."
  echo "Medians of $1 runs of whole processes, in turn, from the page cache."
  echo
}

explain_memory() {
  echo
  echo "Peak memory is what no file backs (heap, stack, written pages of libraries): RssAnon of"
  echo "/proc/PID/status, the greatest of readings every 0.2 ms in a run of its own and of one at the"
  echo "process's exit. Pages of the mapped drawing don't count: the system takes them back at will."
}

# An answer that is wrong isn't worth timing.
check() {
  local file=$1
  shift
  "$bin/zdx" info -o json "$@" "$file" | "$bin/check_answer" "$file.expected"
  say "The answer is right: $file"
}

# Makes a drawing by a generator, unless it is newer than the generator.
generate() {
  local generator=$1 file=$2
  shift 2
  [ "$file.expected" -nt "$generator" ] && return
  say "Generating $file ..."
  "$generator" "$file" "$@" >&2
}

. benchmarks/parts/"$part".sh
