# Completion for fish.

function __zpsg_exports
    set -l words (commandline -opc)
    test (count $words) -gt 1; and test $words[2] = export
end

function __zpsg_first
    test (count (commandline -opc)) -eq 1
end

# The models that have an efficiency curve, with their rated watts.
function __zpsg_models
    zpsg --list-models 2>/dev/null | string replace -r '^\d+\t(\S+)\t(\d+)\t.*' '$1\t$2 W'
end

function __zpsg_dates
    printf '%s\ttoday\n' (date +%F)
    printf '%s\tyesterday\n' (date -d yesterday +%F 2>/dev/null)
end

complete -c zpsg -f
complete -c zpsg -n __zpsg_first -a open -d 'Start, then hide in the tray'
complete -c zpsg -n __zpsg_first -a export -d 'Write records as comma-separated text'
complete -c zpsg -l data-dir -r -a '(__fish_complete_directories)' -d 'Keep settings and records there'
complete -c zpsg -s h -l help -d 'Print a summary of the options'

complete -c zpsg -n 'not __zpsg_exports' -l demo -d 'Run against a simulated supply'
complete -c zpsg -n 'not __zpsg_exports; and string match -q -- "--demo=*" (commandline -ct)' \
    -a '--demo=(__zpsg_models)'
complete -c zpsg -n 'not __zpsg_exports' -l fast-clock -d 'With --demo: time runs faster'
complete -c zpsg -n 'not __zpsg_exports' -l headless -d 'No window, a line for each reading'
complete -c zpsg -n 'not __zpsg_exports' -l json -d 'With --headless: one JSON object for each reading'
complete -c zpsg -n 'not __zpsg_exports' -l list-models -d 'Print the models with an efficiency curve'
complete -c zpsg -n 'not __zpsg_exports' -l version -d 'Print the version'

complete -c zpsg -n __zpsg_exports -l demo -d 'The records of a demo'
complete -c zpsg -n __zpsg_exports -l from -x -a '(__zpsg_dates)' -d 'The first day'
complete -c zpsg -n __zpsg_exports -l to -x -a '(__zpsg_dates)' -d 'The last day'
complete -c zpsg -n __zpsg_exports -l minutes -d 'Each minute'
complete -c zpsg -n __zpsg_exports -l days -d 'The sums of each day'
complete -c zpsg -n __zpsg_exports -l output -r -F -d 'A file to write to'
