# Completion of vantrix for bash.
_vantrix() {
    local word=$2 chosen="" words=""
    case $3 in
    --print) words="text json waybar" ;;
    --doctor) words="text json --replay --proc-root --sys-root" ;;
    --show-settings) words="general menuBar popover alerts" ;;
    --modules)
        chosen=${word%"${word##*,}"}
        words="cpu memory network disk gpu temperature battery processes"
        ;;
    --interval | --count) ;;
    --capture | --replay | --proc-root | --sys-root | -exportScreenshots)
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -d -- "$word")
        return
        ;;
    *)
        words="--print --interval --count --modules --doctor --capture --replay --show-popover --show-settings --quit
            -exportScreenshots --proc-root --sys-root --version --help -h"
        ;;
    esac
    mapfile -t COMPREPLY < <(compgen -P "$chosen" -W "$words" -- "${word#"$chosen"}")
}
complete -F _vantrix vantrix
