# Completion of the options of configtools.
# shellcheck shell=bash

_configtools() {
    local current=$2 previous=$3
    local options='--demo --no-demo --version --help'
    if [[ $previous != --demo ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
        return
    fi
    # The name of a scene, a scene file, or the next option.
    mapfile -t COMPREPLY < <(
        compgen -W "office factory faulty fleet: $options" -- "$current"
        compgen -f -X '!*.json' -- "$current"
        compgen -d -S / -- "$current"
    )
    if [[ ${#COMPREPLY[@]} -eq 1 && ${COMPREPLY[0]} == *[:/] ]]; then
        compopt -o nospace
    fi
}

complete -F _configtools configtools
