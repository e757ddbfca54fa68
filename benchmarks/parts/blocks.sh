# The values of one block to which a tenth of all entities refer, in model space or all within another
# block, where each has to be opened to know that it stands in no layout.  Read by run.sh.
runs=${1:-10}
counts=${ZDX_BENCH_TITLES:-250000 500000 1000000}
versions=${ZDX_BENCH_TITLE_VERSIONS:-AC1014 AC1015 AC1018 AC1021 AC1032}
question=(--block TITLE:tag --select blocks)

# Calls $1 with the file, the kind and the number of entities of each drawing.
for_each_drawing() {
  local action=$1 kind count version
  for kind in titles nested-titles; do
    for count in $counts; do "$action" "$data/$kind-$count.dxf" "$kind" "$count"; done
    for version in $versions; do
      for count in $counts; do
        "$action" "$data/$kind-$version-$count.dwg" "$kind" "$count" "$version"
      done
    done
  done
}

prepare() {
  local file=$1 kind=$2 count=$3 version=${4:-}
  if [ -z "$version" ]; then
    generate "$bin/generate_dxf" "$file" "$count" "$kind"
  else
    generate "$bin/generate_dwg" "$file" "$version" "$count" "$kind"
  fi
  check "$file" "${question[@]}"
}

row() {
  local file=$1 count=$3 version=${4:-} tool pass ratio anonymous bytes
  local info=("$bin/zdx" info -o json "${question[@]}" "$file")
  read -r tool pass ratio < <("$bin/measure_runs" time "$runs" "${info[@]}" -- "$bin/line_pass" "$file")
  # A pass over lines says nothing of a file that has none.
  [ -z "$version" ] && pass="$(number "$pass" 0.001 %.0f) ms | $ratio" || pass="- | -"
  read -r anonymous _ < <("$bin/measure_runs" memory "${info[@]}")
  bytes=$(stat -c %s "$file")
  echo "| $(basename "$file") | $((count / 10)) | $(number "$bytes" 1e6 %.1f) MB" \
    "| $(number "$tool" 0.001 %.0f) ms | $pass | $(number "$anonymous" 1e6 %.1f) MB |"
}

for_each_drawing prepare
heading "$runs"
echo "| Drawing | References | Size | \`zdx info ${question[*]}\` | Line pass | Ratio | Peak memory |"
echo "|---|---|---|---|---|---|---|"
for_each_drawing row
explain_memory
