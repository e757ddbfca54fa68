# Everything but blocks.  Read by run.sh.
runs=${1:-20}
sizes=${ZDX_BENCH_SIZES:-2.5 20 200}
versions=${ZDX_BENCH_VERSIONS:-AC1015 AC1021 AC1032}
drawings=${ZDX_BENCH_DRAWINGS:-}
entities=250000
selection=summary,custom,thumbnail,creator,flavour,settings,geo,dictionaries,tables

for size in $sizes; do
  file=$data/plan-$size.dxf
  generate "$bin/generate_dxf" "$file" "$size"
  check "$file" --select all
done

for version in $versions; do
  file=$data/plan-$version.dwg
  generate "$bin/generate_dwg" "$file" "$version" "$entities"
  check "$file" --select all
  drawings="$drawings $file"
done

heading "$runs"
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
explain_memory
