# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Completion of ambrelle for bash; the options are those of its help.

_ambrelle() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    case $before in
    --action)
        # The names in the help, between the colon and the next option.
        mapfile -t COMPREPLY < <(compgen -W "$("${COMP_WORDS[0]}" --help 2>/dev/null |
            sed -n '/^  --action /,/^  --render/p' | tr '\n' ' ' |
            sed 's/.*: *//; s/ --render.*//; s/,/ /g; s/ or / /')" -- "$word")
        return
        ;;
    --render-* | --export-site)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -d -- "$word")
        return
        ;;
    esac
    if [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$("${COMP_WORDS[0]}" --help 2>/dev/null |
            sed -n 's/^  \(-[a-z], \)\{0,1\}\(--[a-z-]*\).*/\2/p')" -- "$word")
    else
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(
            compgen -d -- "$word"
            compgen -f -X '!*.ambrelle' -- "$word"
        )
    fi
}

complete -F _ambrelle ambrelle
