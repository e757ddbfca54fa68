# The walk through a thousand drawings that refer to each other.  Read by run.sh.
runs=${1:-10}
drawings=${ZDX_BENCH_PROJECT:-1000}

# $1: the format of the drawings.
project() { echo "$data/project-$1-$drawings"; }

prepare() {
  local folder
  folder=$(project "$1")
  generate "$bin/generate_project" "$folder" "$1" "$drawings"
  "$bin/zdx" deps -o json "$folder/plan-0000.$1" | "$bin/check_references" "$folder.expected"
  say "The answer is right: $folder"
}

row() {
  local folder tool anonymous bytes
  folder=$(project "$1")
  local deps=("$bin/zdx" deps -o json "$folder/plan-0000.$1") info=("$bin/zdx" --version)
  read -r tool _ < <("$bin/measure_runs" time "$runs" "${deps[@]}" -- "${info[@]}")
  read -r anonymous _ < <("$bin/measure_runs" memory "${deps[@]}")
  bytes=$(cat "$folder"/plan-*."$1" | wc -c)
  echo "| $drawings $1 | $(number "$bytes" 1e6 %.1f) MB | $(wc -l < "$folder.expected")" \
    "| $(number "$tool" 0.001 %.0f) ms | $(number "$anonymous" 1e6 %.1f) MB |"
}

for format in dwg dxf; do prepare "$format"; done
heading "$runs"
echo "| Drawings | Size of all | References | \`zdx deps -o json\` | Peak memory |"
echo "|---|---|---|---|---|"
for format in dwg dxf; do row "$format"; done
explain_memory
