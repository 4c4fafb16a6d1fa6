#compdef kelmar-print
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0

# The output of the program with this option, for the printer that is named on the command line.
_kelmar_print_ask() { # OPTION
    local -a named
    local i
    for ((i = 2; i < CURRENT; i++)); do
        case ${words[i]} in
        (-d | --printer | -h | --server | --ppd | --bundle) named+=("${words[i]}" "${(Q)words[++i]}") ;;
        (--printer=* | --server=* | --ppd=* | --bundle=*) named+=("${(Q)words[i]}") ;;
        esac
    done
    ${(Q)words[1]} $named $1 </dev/null 2>/dev/null
}

_kelmar_print_queues() {
    local -a queues
    queues=(${(f)"$(lpstat -e 2>/dev/null)"})
    _wanted queues expl queue compadd -a queues
}

_kelmar_print_keys() { # [compadd options]
    local -a keys
    keys=(${(f)"$(_kelmar_print_ask --list-options | sed -n 's|^    \([^/ ]*\)[/ ].*|\1|p')"})
    _wanted keys expl key compadd "$@" -a keys
}

_kelmar_print_setting() {
    if ! compset -P '*='; then
        _kelmar_print_keys -S =
        return
    fi
    local key=${IPREFIX%=}
    key=${key##*=}
    local -a choices
    case $key in
    (number-up) choices=(1 2 4 6 9 16) ;;
    (number-up-layout) choices=(lrtb lrbt rltb rlbt tblr tbrl btlr btrl) ;;
    (page-border) choices=(none single single-thick double double-thick) ;;
    (orientation-requested) choices=(3 4 5 6) ;;
    (page-set) choices=(all odd even) ;;
    (outputorder) choices=(normal reverse) ;;
    (print-scaling) choices=(auto auto-fit fit fill none) ;;
    (natural-scaling) choices=(25 50 70 100 141 200 400) ;;
    (job-hold-until) choices=(no-hold day-time evening night second-shift third-shift weekend indefinite) ;;
    (job-priority) choices=(25 50 75 100) ;;
    (job-sheets) choices=(none standard form unclassified classified confidential secret topsecret) ;;
    (collate|booklet|mirror) choices=(True False) ;;
    (*) choices=(${=${"$(_kelmar_print_ask --list-options | sed -n "s|^    ${key//[^A-Za-z0-9._-]/}/.*: ||p")"//\*/}}) ;;
    esac
    _wanted choices expl choice compadd -a choices
}

_kelmar_print_setting_file() {
    if compset -P '*='; then _files; else _kelmar_print_keys -S =; fi
}

_kelmar_print_presets() {
    local -a presets
    presets=(${(f)"$(_kelmar_print_ask --presets | sed -n 's|^[^ /]*/||p')"})
    _wanted presets expl preset compadd -a presets
}

_kelmar_print_panels() {
    local -aU panels
    panels=(general more job summary print-mode color-settings-1 color-settings-2
        ${(f)"$(_kelmar_print_ask --list-options | sed -n 's|^    .* (.*\.\([a-z0-9-]*\))$|\1|p')"})
    _wanted panels expl pane compadd -a panels
}

_arguments -s \
    '(-d --printer)'{-d,--printer=}'[print to this queue or preset]:queue:_kelmar_print_queues' \
    '(-n --copies)'{-n,--copies=}'[number of copies]:number' \
    '(-P --pages)'{-P,--pages=}'[pages to print, for example 1-3,8]:pages' \
    '(-t --title)'{-t,--title=}'[title of the job]:title' \
    '(-h --server)'{-h,--server=}'[print server to use]:host:_hosts' \
    '*'{-s,--set=}'[set an option of the printer or a key of a panel]:key=value:_kelmar_print_setting' \
    '*--set-file=[the same with the value from a file]:key=file:_kelmar_print_setting_file' \
    '*--ask=[the same with the value asked for on the terminal]:key:_kelmar_print_keys' \
    '*-o[the same; unknown names become job options]:name=value:_kelmar_print_setting' \
    '--batch[print without opening a window]' \
    '--output=[write the pages into a PDF file instead of printing them]:file:_files -g "*.pdf"' \
    '--resolve[accept the proposal when settings cannot be used together]' \
    '--allow-no-password[print even if a password or a department code is missing]' \
    '--summary[write the summary of the settings]' \
    '--list-options[write the options of the printer and their choices]' \
    '--presets[write the presets of the printer]' \
    '--save-preset=[save the settings as a preset of the printer]:name:_kelmar_print_presets' \
    '--delete-preset=[delete a preset of the printer]:name:_kelmar_print_presets' \
    '--json[write results and errors as JSON]' \
    '--ppd=[take the options from this PPD file]:file:_files -g "*.ppd(|.gz)"' \
    '*--bundle=[load the panels of this bundle]:folder:_files -/' \
    '--panel=[open the dialog at this pane]:pane:_kelmar_print_panels' \
    '--screenshot=[save a screenshot of the dialog and exit]:file:_files -g "*.png"' \
    '--color-scheme=[colors of the dialog]:scheme:(light dark)' \
    '--startup-time[open the dialog, write the start-up time and exit]' \
    '--help[show the help]' \
    '--version[show the version]' \
    '*:document:_files -g "*.(pdf|ps|eps|png|jpg|jpeg|tif|tiff|gif|bmp|txt|gz)(-.)"'
