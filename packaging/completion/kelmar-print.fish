# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
# Completion of kelmar-print for fish.

# The output of the program with these options, for the printer that is named on the command line.
function __kelmar_print_ask
    set -l words (commandline -opc)
    set -l named
    for i in (seq 2 (count $words))
        switch $words[$i]
            case -d --printer -h --server --ppd --bundle
                set -l next (math $i + 1)
                test $next -le (count $words); and set -a named $words[$i] $words[$next]
            case '--printer=*' '--server=*' '--ppd=*' '--bundle=*'
                set -a named $words[$i]
        end
    end
    $words[1] $named $argv </dev/null 2>/dev/null
end

function __kelmar_print_keys
    __kelmar_print_ask --list-options | string replace -rf '^    ([^/ ]*)[/ ].*' '$1'
end

function __kelmar_print_settings
    set -l known number-up={1,2,4,6,9,16} number-up-layout={lrtb,lrbt,rltb,rlbt,tblr,tbrl,btlr,btrl} \
        page-border={none,single,single-thick,double,double-thick} orientation-requested={3,4,5,6} \
        page-set={all,odd,even} outputorder={normal,reverse} print-scaling={auto,auto-fit,fit,fill,none} \
        natural-scaling={25,50,70,100,141,200,400} {collate,booklet,mirror}={True,False} \
        job-hold-until={no-hold,day-time,evening,night,second-shift,third-shift,weekend,indefinite} \
        job-priority={25,50,75,100} \
        job-sheets={none,standard,form,unclassified,classified,confidential,secret,topsecret}
    set -l key (string match -r '^(?:--set=|-s|-o)?+([^=]+)=' -- (commandline -ct))[2]
    if test -z "$key"
        string replace -r '$' = -- (__kelmar_print_keys)
    else if string match -q -- "$key=*" $known
        string match -- "$key=*" $known
    else
        for line in (__kelmar_print_ask --list-options | string match -r "^    $key/.*: .*")
            string replace -r '^\*?' "$key=" -- (string split ' ' (string replace -r '.*: ' '' -- $line))
        end
    end
end

function __kelmar_print_setting_files
    set -l key (string match -r '^(?:--set-file=)?+([^=]+)=(.*)' -- (commandline -ct))
    if test (count $key) -eq 3
        string replace -r -- '^' "$key[2]=" (__fish_complete_path $key[3] | string replace -r '\t.*' '')
    else
        string replace -r '$' = -- (__kelmar_print_keys)
    end
end

function __kelmar_print_presets
    __kelmar_print_ask --presets | string replace -rf '^[^ /]*/' ''
end

function __kelmar_print_panels
    printf '%s\n' general more job summary print-mode color-settings-1 color-settings-2
    __kelmar_print_ask --list-options | string replace -rf '^    .* \(.*\.([a-z0-9-]*)\)$' '$1'
end

complete -c kelmar-print -s d -l printer -x -a '(lpstat -e 2>/dev/null)' -d 'print to this queue or preset'
complete -c kelmar-print -s n -l copies -x -d 'number of copies'
complete -c kelmar-print -s P -l pages -x -d 'pages to print, for example 1-3,8'
complete -c kelmar-print -s t -l title -x -d 'title of the job'
complete -c kelmar-print -s h -l server -x -a '(__fish_print_hostnames)' -d 'print server to use'
complete -c kelmar-print -s s -l set -x -a '(__kelmar_print_settings)' -d 'set an option of the printer or a key of a panel'
complete -c kelmar-print -l set-file -x -a '(__kelmar_print_setting_files)' -d 'the same with the value from a file'
complete -c kelmar-print -l ask -x -a '(__kelmar_print_keys)' -d 'the same with the value asked for on the terminal'
complete -c kelmar-print -s o -x -a '(__kelmar_print_settings)' -d 'the same; unknown names become job options'
complete -c kelmar-print -l batch -d 'print without opening a window'
complete -c kelmar-print -l output -r -d 'write the pages into a PDF file instead of printing them'
complete -c kelmar-print -l resolve -d 'accept the proposal when settings cannot be used together'
complete -c kelmar-print -l allow-no-password -d 'print even if a password or a department code is missing'
complete -c kelmar-print -l summary -d 'write the summary of the settings'
complete -c kelmar-print -l list-options -d 'write the options of the printer and their choices'
complete -c kelmar-print -l presets -d 'write the presets of the printer'
complete -c kelmar-print -l save-preset -x -a '(__kelmar_print_presets)' -d 'save the settings as a preset of the printer'
complete -c kelmar-print -l delete-preset -x -a '(__kelmar_print_presets)' -d 'delete a preset of the printer'
complete -c kelmar-print -l json -d 'write results and errors as JSON'
complete -c kelmar-print -l ppd -r -d 'take the options from this PPD file'
complete -c kelmar-print -l bundle -x -a '(__fish_complete_directories (commandline -ct))' -d 'load the panels of this bundle'
complete -c kelmar-print -l panel -x -a '(__kelmar_print_panels)' -d 'open the dialog at this pane'
complete -c kelmar-print -l screenshot -r -d 'save a screenshot of the dialog and exit'
complete -c kelmar-print -l color-scheme -x -a 'light dark' -d 'colors of the dialog'
complete -c kelmar-print -l startup-time -d 'open the dialog, write the start-up time and exit'
complete -c kelmar-print -l help -d 'show the help'
complete -c kelmar-print -l version -d 'show the version'
