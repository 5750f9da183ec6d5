# Completes the command line of quillon in fish.

set -l commands show practice library settings welcome sheet apps stats doctor quit
set -l none "not __fish_seen_subcommand_from $commands"
set -l in_show '__fish_seen_subcommand_from show'
set -l in_practice '__fish_seen_subcommand_from practice'
set -l in_sheet '__fish_seen_subcommand_from sheet'
set -l in_stats '__fish_seen_subcommand_from stats'

# The identifiers of the running applications that share their menus.
function __quillon_apps
    quillon apps 2>/dev/null | awk '$2 != "-" { print $2 }'
end

# The identifiers of those of which something was counted, running or not.
function __quillon_counted_apps
    quillon stats --format json 2>/dev/null | grep -o '"bundleID":"[^"]*"' | cut -d '"' -f 4
end

function __quillon_processes
    quillon apps 2>/dev/null | awk '{ print $1 }'
end

complete -c quillon -f

complete -c quillon -n "$none" -a show -d 'Open the overlay and keep it open'
complete -c quillon -n "$none" -a practice -d 'Open the practice window'
complete -c quillon -n "$none" -a library -d 'Open the library of all shortcuts'
complete -c quillon -n "$none" -a settings -d 'Open the settings'
complete -c quillon -n "$none" -a welcome -d 'Open the welcome'
complete -c quillon -n "$none" -a sheet -d 'Print an application\'s shortcuts'
complete -c quillon -n "$none" -a apps -d 'List the running applications that share their menus'
complete -c quillon -n "$none" -a stats -d 'Print what was counted'
complete -c quillon -n "$none" -a doctor -d 'Say what works on this desktop'
complete -c quillon -n "$none" -a quit -d 'End the running program'
complete -c quillon -n "$none" -l help -d 'Print a summary'
complete -c quillon -n "$none" -l verbose -d 'Tell on standard error what is read and shown'
complete -c quillon -n "$none" -l version -d 'Print the version'

complete -c quillon -n "$in_show" -l sample -d 'With a made-up drawing application'

complete -c quillon -n "$in_practice" -l app -x -a '(__quillon_apps)' -d 'For the application with this id or name'

complete -c quillon -n "$in_sheet" -l app -x -a '(__quillon_apps)' -d 'The application with this id or name'
complete -c quillon -n "$in_sheet" -l pid -x -a '(__quillon_processes)' -d 'The application of this process'
complete -c quillon -n "$in_sheet" -l front -d 'The front application'
complete -c quillon -n "$in_sheet" -l query -x -d 'Only the shortcuts that match'
complete -c quillon -n "$in_sheet" -l format -x -a 'text json markdown pdf' -d 'How the result is written'
complete -c quillon -n "$in_sheet" -l output -r -F -d 'The file of a PDF document'
complete -c quillon -n "$in_sheet" -l keys -x -a 'symbols names' -d 'How keys are shown'
complete -c quillon -n "$in_sheet" -l practice -x -d 'A practice round of this many commands'
complete -c quillon -n "$in_sheet" -l seed -x -d 'The same round every time'

complete -c quillon -n "$in_stats" -l app -x -a '(__quillon_counted_apps)' -d 'Of this application only'
complete -c quillon -n "$in_stats" -l format -x -a 'text json' -d 'How the result is written'

complete -c quillon -n "$in_sheet; or $in_stats" -l keys -x -a 'symbols names' -d 'How keys are written'
