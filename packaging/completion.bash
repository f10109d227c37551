# Completion of the commands and options of configtools.
# shellcheck shell=bash

# _configtools_options COMMAND: sets `options` to those of a command.
_configtools_options() {
    case $1 in
        search) options='--devices --filter --list --passphrase-file --format --quiet --range --no-local --demo --no-demo --help' ;;
        init) options='--devices --filter --user --password-file --visit --dry-run --format --quiet --range --no-local --demo --no-demo --help' ;;
        set-address) options='--start --map --dhcp --mask --gateway --force --visit --dry-run --devices --filter --list --user --password-file --passphrase-file --format --quiet --range --no-local --demo --no-demo --help' ;;
        get) options='--channel --devices --filter --list --user --password-file --passphrase-file --format --quiet --range --no-local --demo --no-demo --help' ;;
        set) options='--channel --visit --dry-run --devices --filter --list --user --password-file --passphrase-file --format --quiet --range --no-local --demo --no-demo --help' ;;
        cgi) options='--workbook --output --visit --dry-run --devices --filter --list --user --password-file --passphrase-file --format --quiet --range --no-local --demo --no-demo --help' ;;
        snapshot) options='--channel --output --devices --filter --list --user --password-file --passphrase-file --format --quiet --range --no-local --demo --no-demo --help' ;;
        export) options='--without-passwords --devices --filter --list --user --password-file --passphrase-file --format --quiet --range --no-local --demo --no-demo --help' ;;
        import) options='--passphrase-file --format --quiet --range --no-local --demo --no-demo --help' ;;
        upgrade) options='--file --document --visit --dry-run --devices --filter --list --user --password-file --passphrase-file --format --quiet --range --no-local --demo --no-demo --help' ;;
        report) options='--output --name --installer --files --visit --devices --filter --list --user --password-file --passphrase-file --format --quiet --range --no-local --demo --no-demo --help' ;;
        *) options='--demo --no-demo --version --help' ;;
    esac
}

_configtools() {
    local current=$2 previous=$3 command='' options words=''
    local commands='search init set-address get set cgi snapshot export import upgrade report help'
    if ((COMP_CWORD > 1)) && [[ ${COMP_WORDS[1]} != -* ]]; then
        command=${COMP_WORDS[1]}
    fi
    _configtools_options "$command"
    case $previous in
        --demo) words='office factory faulty fleet:' ;;
        --format) options='table json csv' ;;
        --list | --password-file | --passphrase-file | --map | --file | --document | --workbook | --output | --visit)
            compopt -o filenames
            mapfile -t COMPREPLY < <(compgen -f -- "$current")
            return
            ;;
        *)
            case $COMP_CWORD:$command in
                1:) words=$commands ;;
                2:help) options=$commands ;;
                2:get | 2:set) words='encode image system' ;;
                2:export | 2:import) words=$(compgen -f -- "$current") ;;
            esac
            ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words $options" -- "$current")
    if [[ $previous == --demo ]]; then
        mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(
            compgen -f -X '!*.json' -- "$current"
            compgen -d -S / -- "$current"
        )
    fi
    if [[ ${#COMPREPLY[@]} -eq 1 && ${COMPREPLY[0]} == *[:/] ]]; then
        compopt -o nospace
    fi
}

complete -F _configtools configtools
