#!/usr/bin/env bash
# Fails when a file of src/ includes a header of a layer above its own. The layers,
# from the bottom: runtime, settings, calculator, then the subsystems beside one
# another (conversion, statistics, fractions, expression), then shell; http stands
# on the runtime alone.
set -u
src=${1:-src}
declare -A allowed=(
  [runtime]="runtime"
  [settings]="runtime settings"
  [calculator]="runtime settings calculator"
  [conversion]="runtime settings calculator conversion http"
  [statistics]="runtime settings calculator statistics"
  [fractions]="runtime settings calculator fractions"
  [expression]="runtime settings calculator expression"
  [http]="runtime http"
  [shell]="runtime settings calculator conversion statistics fractions expression http shell"
)
status=0
for layer in "${!allowed[@]}"; do
  [ -d "$src/$layer" ] || continue
  while IFS= read -r hit; do
    file=${hit%%:*}
    target=$(sed -E 's/.*#include "([a-z_]+)\/.*/\1/' <<<"$hit")
    case " ${allowed[$layer]} " in
      *" $target "*) ;;
      *) echo "layer violation: $file includes from $target/, above $layer/"; status=1 ;;
    esac
  done < <(grep -rnE '^\s*#\s*include "[a-z_]+/' "$src/$layer" --include='*.cpp' --include='*.hpp')
done
# The core links no GUI toolkit.
if grep -rnE '^\s*#\s*include <Q[A-Za-z]*>' "$src" --include='*.cpp' --include='*.hpp'; then
  echo "a Qt header in the core"
  status=1
fi
exit $status
