# shellcheck shell=bash
# Completion for bash of the command line of tnf.

# _tnf_offer WORDS: those of them that go on what was typed.
_tnf_offer()
{
    mapfile -t COMPREPLY < <(compgen -W "$1" -- "$cur")
}

# _tnf_options COMMAND
_tnf_options()
{
    case $1 in
        render) echo '--output --smooth' ;;
        'import rtttl' | 'export rtttl') echo '--output --a440' ;;
        'import morse') echo '--output --speed --pitch --textbook' ;;
    esac
}

# Prints the command that was typed, of one word or two.
_tnf_command()
{
    local index
    for ((index = 1; index < cword; index++)); do
        case ${words[index]} in
            check | info | render)
                echo "${words[index]}"
                return
                ;;
            import | export)
                if ((index + 1 < cword)); then
                    echo "${words[index]} ${words[index + 1]}"
                else
                    echo "${words[index]}"
                fi
                return
                ;;
        esac
    done
}

_tnf()
{
    local cur prev words cword
    _init_completion || return

    case $prev in
        --color | --colour) _tnf_offer 'auto always never' ;;
        --a440) _tnf_offer '4 5' ;;
        --speed | --pitch) ;;
        -o | --output) _filedir ;;
        *) _tnf_word "$(_tnf_command)" ;;
    esac
}

# _tnf_word COMMAND: what is neither the command nor an option's value.
_tnf_word()
{
    local general='--help --color'
    case $1 in
        '') _tnf_offer "check info render import export --version $general" ;;
        import) _tnf_offer "rtttl morse $general" ;;
        export) _tnf_offer "rtttl $general" ;;
        *)
            if [[ $cur == -* ]]; then
                _tnf_offer "$(_tnf_options "$1") $general"
            elif [[ $1 == 'import rtttl' ]]; then
                _filedir
            elif [[ $1 != 'import morse' ]]; then
                _filedir tnf
            fi
            ;;
    esac
}

complete -F _tnf tnf
