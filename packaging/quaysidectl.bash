# Completion for bash. Commands and options are those that the program itself lists.

_quaysidectl_commands() {
    LC_ALL=C "$1" --help 2>/dev/null | sed -n 's/^  \([a-z][a-z0-9]*\) \([a-z][a-z0-9]*\) .*/\1 \2/p'
}

_quaysidectl_options() {
    LC_ALL=C "$@" --help 2>/dev/null | grep -oE -e '--[a-z0-9-]+' | sort -u
}

_quaysidectl() {
    local program=$1 current=${COMP_WORDS[COMP_CWORD]} words=() i
    for ((i = 1; i < COMP_CWORD; i++)); do
        case ${COMP_WORDS[i]} in
        --store) ((i++)) ;;
        -*) ;;
        *) words+=("${COMP_WORDS[i]}") ;;
        esac
    done
    if [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(_quaysidectl_options "$program" "${words[@]:0:2}")" -- "$current")
    elif [ "${#words[@]}" -eq 0 ]; then
        mapfile -t COMPREPLY < <(compgen -W "$(_quaysidectl_commands "$program" | cut -d ' ' -f 1 | sort -u)" -- "$current")
    elif [ "${#words[@]}" -eq 1 ]; then
        mapfile -t COMPREPLY < <(compgen -W "$(_quaysidectl_commands "$program" | sed -n "s/^${words[0]} //p")" -- "$current")
    else
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    fi
}

complete -o filenames -F _quaysidectl quaysidectl
