# Completion for bash.

# The codes of the models that have an efficiency curve.
_zpsg_models() {
    "$1" --list-models 2>/dev/null | cut -f 2
}

_zpsg() {
    local cur prev words cword split
    _init_completion -s || return
    case $prev in
    --demo)
        # "--demo MODEL" is not a thing: the value stands behind the equals sign.
        if [[ $split == true ]]; then
            mapfile -t COMPREPLY < <(compgen -W "$(_zpsg_models "${words[0]}")" -- "$cur")
            return
        fi
        ;;
    --fast-clock)
        [[ $split == true ]] && return
        ;;
    --data-dir)
        _filedir -d
        return
        ;;
    esac
    local options='--demo --demo= --data-dir'
    if [[ ${words[1]} == export ]]; then
        case $prev in
        --from | --to)
            mapfile -t COMPREPLY < <(compgen -W "$(date +%F) $(date -d yesterday +%F 2>/dev/null)" -- "$cur")
            return
            ;;
        --output)
            _filedir csv
            return
            ;;
        esac
        options='--demo --data-dir --from --to --minutes --days --output --help'
    else
        options+=' --fast-clock --fast-clock= --headless --json --list-models --version --help'
        if ((cword == 1)); then options+=' open export'; fi
    fi
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$cur")
    if [[ ${COMPREPLY[0]-} == *= ]]; then compopt -o nospace; fi
} && complete -F _zpsg zpsg
