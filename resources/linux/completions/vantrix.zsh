#compdef vantrix
# Completion of vantrix for zsh.
_arguments \
    '--print[write one line per pass to standard output]:format:(text json waybar)' \
    '--interval[time between passes]:seconds, 0.5 to 3600' \
    '--count[stop after so many passes]:passes' \
    '--modules[what to print]:module:_values -s , module cpu memory network disk gpu temperature battery processes' \
    '--doctor[tell what every reading comes from]::format:(text json)' \
    '--capture[write what is read on this machine]:empty folder:_files -/' \
    '--replay[show a capture instead of this machine]:capture:_files -/' \
    '--show-popover[open the popover of the running program]' \
    '--show-settings[open its settings]::tab:(general menuBar popover alerts)' \
    '--quit[end the running program]' \
    '-exportScreenshots[draw everything into PNG files]:folder:_files -/' \
    '--proc-root[read the process tree from a folder]:folder:_files -/' \
    '--sys-root[read the device tree from a folder]:folder:_files -/' \
    '(- *)--version[print the version]' \
    '(- *)'{--help,-h}'[print a summary of the options]'
