# Completion of dravik for bash.
_dravik() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]} verb=${COMP_WORDS[1]}
    local -A options=(
        [check]="--team --lines --passwords --json --threads --help"
        [show]="--team --teams --roster --lines --free-agents --schedule --farm --passwords --csv --json --threads --help"
        [verify]="--json --threads --help"
        [make]="--team --roster --roster-partial --lines --lines-partial --farm --days --out --passwords --json --help"
        [offers]="--team --read --csv --out --passwords --json --help"
        [draft]="--team --read --csv --out --passwords --json --help"
        [export]="--out --json --help"
        [diff]="--team --passwords --json --help"
        [sheet]="--team --lines --days --farm --roster --text --forum --markdown --html --out --passwords --help"
    )
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W "${!options[*]} --help --version" -- "$word")
    elif [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "${options[$verb]-}" -- "$word")
    elif [[ $before == --lines && $verb == show ]]; then
        mapfile -t COMPREPLY < <(compgen -W "1 2 3 4 5 6 7 8 9 10" -- "$word")
    else
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
    fi
}
complete -o filenames -F _dravik dravik
