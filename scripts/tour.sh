#!/usr/bin/env bash
# Works every operation script of scripts/tour in offscreen windows and leaves transcripts and pictures in FOLDER.
#
#   scripts/tour.sh FOLDER [BIN JOB]
#
# BIN is the folder of the programs, JOB the sample's database; without them those that ./run makes.
# Each script works on a copy of the sample job. "# grade: 1" (or 2) at its head chooses the job of that
# grade; without it the job table decides. The programs must have been built (./run does it).
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"

if (($# != 1 && $# != 3)); then
  sed -n '4p' "${BASH_SOURCE[0]}" >&2
  exit 64
fi
rm -rf -- "$1"
mkdir -p -- "$1"
folder="$(cd "$1" && pwd)"
bin="${2:-$root/build/release/bin}"
job="${3:-$root/sample/job.sqlite}"

# make_desk SCRIPT: a fresh copy of the job and a program folder that chooses the grade the script asks for.
make_desk() {
  local grade
  grade="$(sed -n -e '/^[^#]/q' -e 's/^# grade: *//p' "$1" | head -n 1)"
  rm -rf "$folder/work"
  mkdir -p "$folder/work/program"
  cp "$job" "$folder/work/job.sqlite"
  [[ -z "$grade" ]] || echo "$grade$grade" >"$folder/work/program/JobSel.txt"
}

# work SCRIPT: the transcript goes beside the pictures that the script takes. Offscreen windows can neither be raised
# nor take the keyboard, and Qt would say so for each of them.
work() {
  local name
  name="$(basename "$1" .script.txt)"
  (cd "$folder" && QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES=default.warning=false LC_ALL=C.UTF-8 \
    "$bin/seikahyou-script" --window --program-folder work/program "$1" work/job.sqlite >"$name.transcript.txt")
}

failed=0
shopt -s nullglob
for script in "$root"/scripts/tour/*.script.txt; do
  echo "操作スクリプト / operation script: $(basename "$script")"
  make_desk "$script"
  work "$script" || {
    echo "失敗しました / failed: $script" >&2
    failed=1
  }
done
rm -rf "$folder/work"
echo "記録と画面の絵 / transcripts and pictures: $folder"
ls -1 "$folder"
exit "$failed"
