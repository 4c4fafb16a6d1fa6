# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=bash
# Completion of kelmar-print for bash. Options come from the program's own help, queues from CUPS.

_kelmar_print()
{
    local cur prev words cword
    _init_completion -n = || return
    case $prev in
    -d | --printer)
        mapfile -t COMPREPLY < <(compgen -W "$(lpstat -e 2>/dev/null)" -- "$cur")
        return
        ;;
    --panel)
        mapfile -t COMPREPLY < <(compgen -W "general more summary print-mode" -- "$cur")
        return
        ;;
    --color-scheme)
        mapfile -t COMPREPLY < <(compgen -W "light dark" -- "$cur")
        return
        ;;
    --ppd)
        _filedir '@(ppd|ppd.gz)'
        return
        ;;
    --bundle)
        _filedir -d
        return
        ;;
    --output)
        _filedir pdf
        return
        ;;
    --screenshot)
        _filedir png
        return
        ;;
    --set-file)
        if [[ $cur == *=* ]]; then
            local key=${cur%%=*}
            cur=${cur#*=}
            _filedir
            COMPREPLY=("${COMPREPLY[@]/#/$key=}")
        fi
        return
        ;;
    -n | --copies | -P | --pages | -t | --title | -h | --server | -s | --set | --ask | -o | --save-preset | --delete-preset)
        return
        ;;
    esac
    if [[ $cur == -* ]]; then
        # shellcheck disable=SC2207  # options hold no spaces
        COMPREPLY=($(compgen -W "$(_parse_help "$1")" -- "$cur"))
        return
    fi
    _filedir '@(pdf|ps|eps|png|jpg|jpeg|tif|tiff|gif|txt)'
} && complete -F _kelmar_print kelmar-print
