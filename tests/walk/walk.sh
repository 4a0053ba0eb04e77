#!/usr/bin/env bash
# Walks over the screens at random, then the same way in real windows, and compares the transcripts.
#
#   walk.sh SEED STEPS RANDOM_WALK SEIKAHYOU_SAMPLE SEIKAHYOU_SCRIPT WORK_FOLDER WINDOWS(0|1) [--safeguards]
#
# With SEIKAHYOU_LONG set (./test --long) a hundred more walks follow, without windows.
set -euo pipefail
seed="$1" steps="$2" walk="$3" sample="$4" script="$5" work="$6" windows="$7"
safeguards=(${8:+"$8"})

rm -rf -- "$work"
mkdir -p -- "$work/program"
cd -- "$work"
echo "$((1 + seed % 2))$((1 + seed % 2))" >program/JobSel.txt

"$sample" headless >/dev/null
rm -rf headless/data/map_app  # a picture tool that nobody answers would be waited for
status=0
"$walk" "${safeguards[@]}" "$seed" "$steps" program headless/job.sqlite walk.script.txt >headless.txt || status=$?
[[ $status == 0 || $status == 1 ]] || { echo "the walk ended with status $status" >&2; tail -n 5 headless.txt >&2; exit 1; }

# A hundred more walks on one job, which goes on as the one before has left it.
if [[ -n "${SEIKAHYOU_LONG:-}" ]]; then
  steps_done=0
  "$sample" more >/dev/null
  rm -rf more/data/map_app
  for walked in {1..100}; do
    more=0
    "$walk" "${safeguards[@]}" "$((1000 * walked + seed))" "$steps" program more/job.sqlite more.script.txt >more.txt || more=$?
    [[ $more == 0 || $more == 1 ]] || { echo "walk $((1000 * walked + seed)) ended with status $more" >&2; tail -n 5 more.txt >&2; exit 1; }
    steps_done=$((steps_done + $(wc -l <more.script.txt)))
  done
  echo "[ counted  ] walk $seed: $steps_done steps"
fi
[[ $windows == 1 ]] || exit 0

"$sample" window >/dev/null
rm -rf window/data/map_app
# Messages may name the job database: both runs work on a file of the same path.
mv headless walked
mv window headless
again=0
"$script" "${safeguards[@]}" --window --program-folder program walk.script.txt headless/job.sqlite >window.txt || again=$?
[[ $again == "$status" ]] || { echo "status $again in windows, $status without" >&2; exit 1; }
cmp headless.txt window.txt || { diff -u headless.txt window.txt | head -n 40 >&2; exit 1; }
