# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=bash
# Completion of kelmar-print for bash. Does not require the package bash-completion. Names and choices come from the program
# itself and from CUPS.

# Sets `words` to the words up to the cursor, and joins words again that bash has split at "=" and ":".
_kelmar_print_split() {
    local i word
    words=()
    for ((i = 0; i <= COMP_CWORD; i++)); do
        word=${COMP_WORDS[i]}
        if ((i > 1)) && [[ $word == [=:]* || ${COMP_WORDS[i - 1]} == *[=:] ]]; then
            words[${#words[@]} - 1]+=$word
        else
            words+=("$word")
        fi
    done
}

# The output of the program with this option, for the printer that is named on the command line.
_kelmar_print_ask() { # OPTION
    local -a named=()
    local i
    for ((i = 1; i < ${#words[@]} - 1; i++)); do
        case ${words[i]} in
        -d | --printer | -h | --server | --ppd | --bundle) named+=("${words[i]}" "${words[++i]}") ;;
        --printer=* | --server=* | --ppd=* | --bundle=*) named+=("${words[i]}") ;;
        esac
    done
    "${words[0]}" "${named[@]}" "$1" </dev/null 2>/dev/null
}

_kelmar_print_keys() { _kelmar_print_ask --list-options | sed -n 's|^    \([^/ ]*\)[/ ].*|\1|p'; }

_kelmar_print_values() { # KEY
    case $1 in
    number-up) echo 1 2 4 6 9 16 ;;
    number-up-layout) echo lrtb lrbt rltb rlbt tblr tbrl btlr btrl ;;
    page-border) echo none single single-thick double double-thick ;;
    orientation-requested) echo 3 4 5 6 ;;
    page-set) echo all odd even ;;
    outputorder) echo normal reverse ;;
    print-scaling) echo auto auto-fit fit fill none ;;
    natural-scaling) echo 25 50 70 100 141 200 400 ;;
    job-hold-until) echo no-hold day-time evening night second-shift third-shift weekend indefinite ;;
    job-priority) echo 25 50 75 100 ;;
    job-sheets) echo none standard form unclassified classified confidential secret topsecret ;;
    collate | booklet | mirror) echo True False ;;
    *) _kelmar_print_ask --list-options | sed -n "s|^    ${1//[!A-Za-z0-9._-]/}/.*: ||p" | tr -d '*' ;;
    esac
}

_kelmar_print_files() { # [PATTERN]: folders, and the files that match
    compopt -o filenames -o default 2>/dev/null # readline completes quoted names itself
    mapfile -t COMPREPLY < <(compgen -d -- "$cur")
    local file
    while IFS= read -r file; do
        [[ -d $file || ${file,,} != ${1:-*} ]] || COMPREPLY+=("$file")
    done < <(compgen -f -- "$cur")
}

_kelmar_print_among() { mapfile -t COMPREPLY < <(compgen -W "$1" -- "$cur"); }

_kelmar_print() {
    local -a words
    local cur option=
    COMPREPLY=()
    _kelmar_print_split
    cur=${words[${#words[@]} - 1]}
    if [[ $cur == --*=* ]]; then
        option=${cur%%=*} cur=${cur#*=}
    elif ((${#words[@]} > 2)); then
        option=${words[${#words[@]} - 2]}
    fi
    case $option in
    -d | --printer) _kelmar_print_among "$(lpstat -e 2>/dev/null)" ;;
    -h | --server) mapfile -t COMPREPLY < <(compgen -A hostname -- "$cur") ;;
    -s | --set | -o)
        if [[ $cur == *=* ]]; then
            local key=${cur%%=*}
            cur=${cur#*=}
            _kelmar_print_among "$(_kelmar_print_values "$key")"
        else
            compopt -o nospace 2>/dev/null
            _kelmar_print_among "$(_kelmar_print_keys | sed 's/$/=/')"
        fi
        ;;
    --set-file)
        if [[ $cur == *=* ]]; then
            cur=${cur#*=}
            _kelmar_print_files
        else
            compopt -o nospace 2>/dev/null
            _kelmar_print_among "$(_kelmar_print_keys | sed 's/$/=/')"
        fi
        ;;
    --ask) _kelmar_print_among "$(_kelmar_print_keys)" ;;
    --save-preset | --delete-preset) _kelmar_print_among "$(_kelmar_print_ask --presets | sed -n 's|^[^ /]*/||p')" ;;
    --panel)
        _kelmar_print_among "general more job summary print-mode color-settings-1 color-settings-2
            $(_kelmar_print_ask --list-options |
            sed -n 's|^    .* (.*\.\([a-z0-9-]*\))$|\1|p')"
        ;;
    --color-scheme) _kelmar_print_among "light dark" ;;
    --ppd) _kelmar_print_files '@(*.ppd|*.ppd.gz)' ;;
    --bundle) _kelmar_print_files / ;;
    --output) _kelmar_print_files '*.pdf' ;;
    --screenshot) _kelmar_print_files '*.png' ;;
    -n | --copies | -P | --pages | -t | --title) ;;
    *)
        if [[ $cur == -* ]]; then
            _kelmar_print_among "$("${words[0]}" --help 2>/dev/null | sed -n 's/^  \(-[^ ].*\)/\1/p' |
                sed 's/   *.*//' | grep -oE -e '(^| )--?[A-Za-z-]+')"
        else
            _kelmar_print_files '*.@(pdf|ps|eps|png|jpg|jpeg|tif|tiff|gif|bmp|txt|gz)'
        fi
        ;;
    esac
    # If readline has split the word, it completes only the part after the last "=" or ":".
    local split=${COMP_WORDS[COMP_CWORD]}
    [[ $split != [=:] ]] || split=
    [[ $cur == "$split" ]] || COMPREPLY=("${COMPREPLY[@]#"${cur%"$split"}"}")
} && complete -F _kelmar_print kelmar-print
