#!/bin/bash
# Runs site.sh on devices that a simulated site serves on real sockets, and checks the report:
# servedsite.sh PROGRAM SITE_PROGRAM
set -euo pipefail
here=$(dirname "$(realpath "${BASH_SOURCE[0]}")")
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export CONFIGTOOLS_LAB=$folder/lab CONFIGTOOLS_SITE=$2 CONFIGTOOLS_PASSWORD=Office-2024
"$here/../../scripts/lab" run office -- "$here/site.sh" "$1" "$folder" --quiet
pdftotext -layout "$folder"/report/*.pdf "$folder/report.txt"
for text in 'Head office' 'Changes of this visit' '192.168.1.202:80' 'Set address' 'Older firmware' 'Lagerhalle'; do
    grep -q "$text" "$folder/report.txt" || {
        echo "the report does not contain \"$text\":"
        cat "$folder/report.txt"
        exit 1
    }
done
grep -q '^192.168.1.202:80,.*,done,0,' "$folder/report.csv" # the device has responded at its new address
