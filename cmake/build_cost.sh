#!/usr/bin/env bash
# What building costs, room by room: builds a preset from nothing, without ccache, and prints a table of the CPU seconds (user
# and system) that each room's compilations took, its number of units, and its dearest unit.
#   cmake/build_cost.sh                      all of the preset `release`
#   cmake/build_cost.sh fuzz                 all of another preset
#   cmake/build_cost.sh release FcCli ...    these targets alone, with what they need
# Builds in build/cost, which it empties first. CPU seconds hardly depend on what else the machine does; the wall time does.
set -euo pipefail

preset=${1:-release}
targets=("${@:2}")
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$root/build/cost
rm -rf "$build"
mkdir -p "$build"

# Stands before each call of the compiler: a line with its user and system seconds, its source and its output.
export FC_COST_LOG=$build/cost.log
cat > "$build/timed" << 'LAUNCHER'
#!/usr/bin/env bash
TIMEFORMAT='%3U %3S'
exec 3>&1 4>&2
status=0
spent=$({ time "$@" 1>&3 2>&4 3>&- 4>&-; } 2>&1) || status=$?
source= output=
while (($# > 1)); do
  case $1 in
    -c) source=$2 ;;
    -o) output=$2 ;;
  esac
  shift
done
echo "$spent $source $output" >> "$FC_COST_LOG"
exit "$status"
LAUNCHER
chmod +x "$build/timed"

cmake -S "$root" --preset "$preset" -B "$build" \
  -DCMAKE_CXX_COMPILER_LAUNCHER="$build/timed" >&2
exec 3>&2
TIMEFORMAT='%0R %0U %0S'
whole=$({ time cmake --build "$build" ${targets:+--target "${targets[@]}"} >&3 2>&3; } 2>&1)

awk -v root="$root/" -v build="$build/" -v whole="$whole" '
  # The room of a source by its path; a batch of sources has the room of its first.
  function room(path,    line, parts, count, depth, name, i) {
    if (path ~ /\/Unity\//) {
      while ((getline line < path) > 0 && line !~ /^#include/) {}
      close(path)
      gsub(/^#include "|".*/, "", line)
      path = line
    }
    if (index(path, build "generated/") == 1) return "generated classes"
    if (index(path, build) == 1) {  # a precompiled header
      path = substr(path, length(build) + 1)
      sub(/\/CMakeFiles\/.*/, "/", path)
    } else {
      path = substr(path, length(root) + 1)
    }
    count = split(path, parts, "/")
    depth = parts[1] == "Tests" ? 3 : parts[1] ~ /^(Fc|Host)$/ ? 2 : 1
    name = parts[1]
    for (i = 2; i <= depth && i < count; ++i) name = name (parts[i] == "" ? "" : "/" parts[i])
    return name
  }
  {
    spent = $1 + $2
    name = room($3)
    seconds[name] += spent
    ++units[name]
    all += spent
    if (spent > dearest[name]) {
      dearest[name] = spent
      unit[name] = $4
      sub(/.*\//, "", unit[name])
      sub(/(\.cxx|\.cpp)?\.o$/, "", unit[name])
    }
  }
  END {
    print "| Room | Units | CPU seconds | Dearest unit |\n|---|---|---|---|"
    for (name in seconds) {
      printf "| %s | %d | %.1f | %s, %.1f |\n", name, units[name], seconds[name], unit[name], dearest[name] | "sort"
    }
    close("sort")
    split(whole, total)
    printf "\nAll compilations: %.0f CPU seconds. The whole build: %d CPU seconds, %d s on the clock.\n", all,
      total[2] + total[3], total[1]
  }' "$FC_COST_LOG"
