#!/bin/sh
# Starts the portable copy in this folder, where it finds its translations and stores its files.
folder=$(dirname "$(readlink -f "$0")")
for argument; do
    shift
    # The path of a scene file is relative to the folder of the caller.
    case $argument in
        [!/-]*) [ ! -f "$argument" ] || argument=$PWD/$argument ;;
    esac
    set -- "$@" "$argument"
done
cd "$folder/program" || exit 1
exec ./ConfigTools "$@"
