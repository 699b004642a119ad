# Completes the options of vantle in fish. Its options are those of "vantle --help".

complete -c vantle -f
complete -c vantle -n '__fish_is_first_arg' -l settings -d 'Open the settings'
complete -c vantle -n '__fish_is_first_arg' -l pause -d 'Stop watching until --resume'
complete -c vantle -n '__fish_is_first_arg' -l resume -d 'Resume watching'
complete -c vantle -n '__fish_is_first_arg' -l show -d 'Show screenshots or recordings on the card'
complete -c vantle -n '__fish_seen_argument -l show' -F
complete -c vantle -n '__fish_is_first_arg' -l dismiss -d 'Dismiss the card'
complete -c vantle -n '__fish_is_first_arg' -l restore -d 'Bring back what left the card lately'
complete -c vantle -n '__fish_is_first_arg' -l focus-panel -d 'Move the keyboard focus to the card'
complete -c vantle -n '__fish_is_first_arg' -l open-folder -d 'Open the screenshots folder'
complete -c vantle -n '__fish_is_first_arg' -l sample -d 'Show two sample captures'
complete -c vantle -n '__fish_is_first_arg' -l quit -d 'Quit Vantle'
complete -c vantle -n '__fish_is_first_arg' -l status -d 'Print the status of Vantle'
complete -c vantle -n '__fish_seen_argument -l status' -l verbose -d 'Include all details'
complete -c vantle -n '__fish_seen_argument -l status' -l with-paths -d 'Include paths as well'
complete -c vantle -n '__fish_is_first_arg' -l version -d 'Print the version'
complete -c vantle -n '__fish_is_first_arg' -l help -d 'Print the help'
