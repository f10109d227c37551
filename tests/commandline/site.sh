#!/bin/bash
# Gives the cameras of a site new addresses and names, lists the site and makes its report:
# site.sh PROGRAM FOLDER [SITE OPTIONS]
set -euo pipefail
program=$1; folder=$2; shift 2
cameras=(--devices all --filter IPC --visit "$folder/visit.txt")
"$program" search "$@" --format csv > "$folder/before.csv"
"$program" set-address "$@" "${cameras[@]}" --start 192.168.1.201 --dry-run > "$folder/plan.txt" || [[ $? == 1 ]]
"$program" set-address "$@" "${cameras[@]}" --start 192.168.1.201 > "$folder/addresses.txt" || [[ $? == 1 ]]
"$program" set system name='Gate {n}' time=now "$@" "${cameras[@]}" --format csv > "$folder/names.csv" || [[ $? == 1 ]]
"$program" export "$folder/site.xml" "$@" --devices all
"$program" report "$@" --devices all --name 'Head office' --visit "$folder/visit.txt" --output "$folder/report" \
    --format csv > "$folder/report.csv" || [[ $? == 1 ]]
