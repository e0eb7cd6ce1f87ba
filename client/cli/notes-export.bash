# Completes the command line of notes-export: commands, options, the hashes of the books in the
# collection that -C names, and files.

# Prints the word without quotes and with ~ expanded; variables stay.
_notes_export_plain() {
    local word=${1/#'~/'/$HOME/}
    word=${word//\\/}
    printf '%s' "${word//[\"\']/}"
}

# Sets the caller's command, collection and hash from the words before the current one.
_notes_export_read_line() {
    local i
    for ((i = 1; i < COMP_CWORD; i++)); do
        case ${COMP_WORDS[i]} in
            -C)
                ((++i))
                collection=$(_notes_export_plain "${COMP_WORDS[i]}")
                ;;
            --note | --order | --dir | -o | --format | --color | --kind | --since | --match | --pictures | --pages) ((++i)) ;;
            -*) ;;
            *)
                if [[ -z $command ]]; then
                    command=${COMP_WORDS[i]}
                else
                    argument=${COMP_WORDS[i]}
                fi
                ;;
        esac
    done
}

# Prints the hashes of the books, with their titles if readline lists the choices.
_notes_export_books() {
    local program hash title
    program=$(_notes_export_plain "${COMP_WORDS[0]}")
    "$program" -C "$collection" books 2>/dev/null | while IFS=$'\t' read -r hash title _; do
        [[ $hash == "$1"* ]] || continue
        case ${COMP_TYPE-} in
            33 | 63 | 64) printf '%s  %s\n' "$hash" "$title" ;;
            *) printf '%s\n' "$hash" ;;
        esac
    done
}

# Prints the words that may come next if that is not the value of an option.
_notes_export_words() {
    local -A options=([books]='--format --json' [load]='--pages'
        [notes]='--format --json --note --color --kind --since --match --order --pictures'
        [export]='--note --color --kind --since --match --order --dir -o --new' [name]='--dir')
    if [[ -z $command && $1 == -* ]]; then
        compgen -W '-C --help --version' -- "$1"
    elif [[ -z $command ]]; then
        compgen -W 'load import books notes export name' -- "$1"
    elif [[ $1 == -* ]]; then
        compgen -W "${options[$command]-} -C --help" -- "$1"
    elif [[ $command =~ ^(notes|export)$ || -z $argument && $command == name ]]; then
        _notes_export_books "$1"
    fi
}

_notes_export() {
    local command='' collection=. argument='' current=${COMP_WORDS[COMP_CWORD]}
    local -A notes_formats=([notes]=annotations)
    COMPREPLY=()
    _notes_export_read_line
    case ${COMP_WORDS[COMP_CWORD - 1]} in
        -C | --dir | --pictures | --pages)
            compopt -o dirnames
            return
            ;;
        -o)
            compopt -o default
            return
            ;;
        --note | --color | --since | --match) return ;;
        --format) mapfile -t COMPREPLY < <(compgen -W "lines json csv markdown ${notes_formats[$command]-}" -- "$current") ;;
        --kind) mapfile -t COMPREPLY < <(compgen -W 'highlight note bookmark picture' -- "$current") ;;
        --order) mapfile -t COMPREPLY < <(compgen -W 'reading id newest' -- "$current") ;;
        *) mapfile -t COMPREPLY < <(_notes_export_words "$current") ;;
    esac
    # Readline itself quotes the names of files.
    if [[ $command =~ ^(load|import)$ && $current != -* ]]; then
        compopt -o default
    fi
}

complete -F _notes_export notes-export
