# Completion of the vantrel command for bash.

_vantrel() {
    local word=${COMP_WORDS[COMP_CWORD]}
    COMPREPLY=()
    if [[ $COMP_CWORD == 1 ]]; then
        mapfile -t COMPREPLY < <(compgen -W 'info save --help --version' -- "$word")
    elif [[ $word == -* ]]; then
        local options=--help
        [[ ${COMP_WORDS[1]} == info ]] && options+=' --json'
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
    fi
}
complete -o default -F _vantrel vantrel
