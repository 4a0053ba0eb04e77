#!/usr/bin/env bash
# Works one operation script on a fresh sample job and compares the transcript with the expected one.
#
#   run_case.sh MODE CASE SEIKAHYOU_SCRIPT SEIKAHYOU_SAMPLE WORK_FOLDER [POSTGRES_JOB]
#
# MODE is headless, window, sqlite-odbc, sqlite-odbc-window, postgres or postgres-window. The job is the sample's file,
# that file through the ODBC driver of SQLite, or a copy of it in a PostgreSQL server that POSTGRES_JOB starts and stops
# again; jobs/NAME.postgres.sql is applied to the copy. With another engine the transcript must be the same but for the
# job's path and the engine's own words behind an error.
#
# CASE.script.txt and CASE.expected.txt stand beside this file. Comments at the head of the script may say
# under which circumstances it runs:
#
#   # grade: 1     JobSel.txt of the program folder chooses the first-grade job ("11"), or with 2 the one of
#                  second grade ("22"); without it there is no JobSel.txt and the job table decides
#   # job: NAME    jobs/NAME.sql is applied to the sample job first
#   # safeguards: on  the program asks what an operator would be asked
#   # exit: N      the exit status to expect, 0 without it
#
# The run stands in WORK_FOLDER, which is emptied first and kept, with transcript, messages and pictures. With
# SEIKAHYOU_ACCEPT=1 the headless run writes the expected transcript anew.
set -euo pipefail

if (($# != 5 && $# != 6)); then
  sed -n '2,4p' "${BASH_SOURCE[0]}" >&2
  exit 64
fi
here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
mode="$1" case="$2" script_program="$3" sample_program="$4" work="$5" postgres_job="${6:-}"
script="$here/$case.script.txt"
expected="$here/$case.expected.txt"

# The value of a directive in the comments that stand before the first command.
directive() {
  sed -n -e '/^[^#]/q' -e "s/^# $1: *//p" "$script" | tr -d '\r' | head -n 1
}

fail() {
  echo "$case ($mode): $*" >&2
  exit 1
}

make_program_folder() {
  mkdir program
  case "$(directive grade)" in
    1) echo 11 >program/JobSel.txt ;;
    2) echo 22 >program/JobSel.txt ;;
    '') ;;
    *) fail "no job of that grade" ;;
  esac
}

make_sample_job() {
  local sql
  sql="$(directive job)"
  "$sample_program" sample ${sql:+--sql "$here/jobs/$sql.sql"} >/dev/null || fail "no sample job"
  rm -f sample/data/map_app/PicturePaste.exe  # nobody would answer its window
}

# The path of the job and the command that works on it, by the engine of the mode.
choose_job() {
  job=sample/job.sqlite
  command=("$script_program")
  case "$mode" in
    sqlite-odbc*)
      job=sample/job.dsn
      printf '[ODBC]\nDRIVER=SQLite3\nDATABASE=%s\n' "$PWD/sample/job.sqlite" >"$job"
      ;;
    postgres*)
      job=sample/job.dsn
      command=("$postgres_job" sample/job.sqlite "$job" "$here/jobs/$(directive job).postgres.sql" "$script_program")
      ;;
  esac
}

rm -rf -- "$work"
mkdir -p -- "$work"
cd -- "$work"
make_program_folder
make_sample_job
choose_job

options=(--program-folder program)
[[ $mode == *window ]] && options+=(--window)
[[ $(directive safeguards) == on ]] && options+=(--safeguards)
status=0
"${command[@]}" "${options[@]}" "$script" "$job" >transcript.txt 2>errors.txt || status=$?
cat errors.txt >&2

if [[ $mode == postgres* && $status == 77 ]]; then
  echo "SKIPPED: no PostgreSQL server here (Debian: postgresql)"
  exit 77
fi
wanted="$(directive exit)"
[[ $status == "${wanted:-0}" ]] || fail "exit status $status instead of ${wanted:-0}"
if [[ $mode == headless && ${SEIKAHYOU_ACCEPT:-} == 1 ]]; then
  cp transcript.txt "$expected"
fi
[[ -f $expected ]] || fail "no expected transcript; SEIKAHYOU_ACCEPT=1 writes one"
# A transcript without what is each engine's own.
common() {
  if [[ $mode == headless || $mode == window ]]; then
    cat "$1"
  else
    sed -E -e 's#sample/job\.dsn#sample/job.sqlite#g' -e '/データベース「/s/(ません): .*/\1/' "$1"
  fi
}
common "$expected" >expected.common.txt
common transcript.txt >transcript.common.txt
cmp -s expected.common.txt transcript.common.txt && exit 0
diff -u expected.common.txt transcript.common.txt >&2 || true
fail "the transcript is another one (- expected, + this run)"
