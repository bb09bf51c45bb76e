# SPDX-License-Identifier: MIT
complete -c ambrelle -f
complete -c ambrelle -k -a '(__fish_complete_suffix .ambrelle | string match -r ".*(?:/|\\.ambrelle)(?:\\t.*)?\$")'
complete -c ambrelle -l action -x -a 'open-window themes add-widgets settings edit lock toggle-focus skip reset check-for-updates update quit' -d 'Have the running program do something'
complete -c ambrelle -l render-previews -x -a '(__fish_complete_directories)' -d 'Write a picture of every theme and exit'
complete -c ambrelle -l render-wallpapers -x -a '(__fish_complete_directories)' -d 'Write the wallpaper of every theme and exit'
complete -c ambrelle -l render-window -x -a '(__fish_complete_directories)' -d 'Write live widgets of every theme and exit'
complete -c ambrelle -l render-ui -x -a '(__fish_complete_directories)' -d 'Write desktops and the main window and exit'
complete -c ambrelle -l check-update -d 'Look for a newer version, verify it, install nothing and exit'
complete -c ambrelle -l export-site -x -a '(__fish_complete_directories)' -d 'Write a site about the themes and exit'
complete -c ambrelle -l register -d 'Put this copy into the menu of programs and exit'
complete -c ambrelle -l unregister -d 'Take this copy out of the menu and exit'
complete -c ambrelle -s h -l help -d 'List the options and exit'
complete -c ambrelle -l version -d 'Show the version and exit'
