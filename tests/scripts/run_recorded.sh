#!/usr/bin/env bash
# Works an operation script with --record and then the record, each on a fresh sample job: both transcripts must be equal,
# but for the lines that tell of the act itself where the record does the same by another step (a fill is a paste).
#
#   run_recorded.sh MODE CASE SEIKAHYOU_SCRIPT SEIKAHYOU_SAMPLE WORK_FOLDER
#
# MODE is headless or window. CASE.script.txt stands beside this file; its comments "# grade: N" and "# safeguards: on"
# count as in run_case.sh.
set -euo pipefail

if (($# != 5)); then
  sed -n '2,5p' "${BASH_SOURCE[0]}" >&2
  exit 64
fi
here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
mode="$1" script="$here/$2.script.txt" script_program="$3" sample_program="$4" work="$5"

directive() {
  sed -n -e '/^[^#]/q' -e "s/^# $1: *//p" "$script" | head -n 1
}

options=()
[[ $mode == window ]] && options+=(--window)
[[ $(directive safeguards) == on ]] && options+=(--safeguards)

# run NAME OPTION... SCRIPT: works a script on a fresh sample job in the folder NAME.
run() {
  local name="$1"
  shift
  mkdir -p "$work/$name/program"
  cd "$work/$name"
  case "$(directive grade)" in
    1) echo 11 >program/JobSel.txt ;;
    2) echo 22 >program/JobSel.txt ;;
  esac
  "$sample_program" sample >/dev/null
  rm -f sample/data/map_app/PicturePaste.exe # nobody would answer its window
  "$script_program" "${options[@]}" --program-folder program "$@" sample/job.sqlite >transcript.txt
}

rm -rf "$work"
run first --record "$work/record.txt" "$script"
run again "$work/record.txt"
[[ -s $work/record.txt ]]
# What an act says of itself is left out: one that does nothing is not recorded.
shown() {
  grep -v '^pasted: \|^undo: \|^redo: \|^found: ' "$work/$1/transcript.txt"
}
diff -u <(shown first) <(shown again)
