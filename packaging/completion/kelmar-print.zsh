#compdef kelmar-print
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0

_kelmar_print_queues() {
    local -a queues
    queues=(${(f)"$(lpstat -e 2>/dev/null)"})
    compadd -a queues
}

_arguments -s \
    '(-d --printer)'{-d,--printer}'[print to this queue or preset]:queue:_kelmar_print_queues' \
    '(-n --copies)'{-n,--copies}'[number of copies]:number' \
    '(-P --pages)'{-P,--pages}'[pages to print, for example 1-3,8]:pages' \
    '(-t --title)'{-t,--title}'[title of the job]:title' \
    '(-h --server)'{-h,--server}'[print server to use]:host:_hosts' \
    '*'{-s,--set}'[set an option of the printer or a key of a panel]:key=value' \
    '*--set-file[the same with the value from a file]:key=file' \
    '*--ask[the same with the value asked for on the terminal]:key' \
    '*-o[the same; unknown names go to the print system]:name=value' \
    '--batch[print without opening a window]' \
    '--output[write the pages into a PDF file instead of printing them]:file:_files -g "*.pdf"' \
    '--resolve[accept the proposal when settings cannot be used together]' \
    '--allow-no-password[print even if a password or a department code is missing]' \
    '--summary[write the summary of the settings]' \
    '--list-options[write the options of the printer and their choices]' \
    '--presets[write the presets of the printer]' \
    '--save-preset[keep the settings as a preset of the printer]:name' \
    '--delete-preset[delete a preset of the printer]:name' \
    '--json[write results and errors as JSON]' \
    '--ppd[take the options from this PPD file]:file:_files -g "*.ppd(|.gz)"' \
    '*--bundle[load the panels of this bundle]:folder:_files -/' \
    '--panel[open the dialog at this pane]:pane:(general more summary print-mode)' \
    '--screenshot[write a picture of the dialog and exit]:file:_files -g "*.png"' \
    '--color-scheme[colors of the dialog]:scheme:(light dark)' \
    '--startup-time[open the dialog, write how long it took and exit]' \
    '--help[show the help]' \
    '--version[show the version]' \
    '*:document:_files -g "*.(pdf|ps|eps|png|jpg|jpeg|tif|tiff|gif|txt)"'
