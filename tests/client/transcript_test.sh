#!/usr/bin/env bash
# Runs the commands of a transcript in a folder with copies of FILE, and prints the difference to
# the transcript. After each command ("$ …"), a transcript has the output, the errors ("! …"), and
# the status unless it is 0 ("[…]"). The transcript of a manual page is its literal blocks.
#   transcript_test.sh TRANSCRIPT FILE...
set -o pipefail
export LC_ALL=C.UTF-8  # transcripts contain text of many scripts

play() {
    while IFS= read -r line; do
        case $line in
            '# '*) printf '\n%s\n' "$line" ;;
            '$ '*)
                while [[ $line == *[\\\|] ]] && IFS= read -r rest; do
                    line+=$'\n'$rest
                done
                printf '%s\n' "$line"
                eval "${line#??}" >.out 2>.err </dev/null
                status=$?
                cat .out
                sed 's/^/! /' .err
                [ "$status" -eq 0 ] || echo "[$status]"
                ;;
        esac
    done <"$transcript"
}

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cp -r "${@:2}" "$scratch"
transcript=$(realpath "$1")
if [[ $1 == *.1 ]]; then
    transcript=$scratch/.transcript
    sed -n '/^\.Bd -literal/,/^\.Ed/{//d; s/\\e/\\/g; p}' "$1" >"$transcript"
fi
cd "$scratch" || exit
play | sed -e "s|$scratch|SCRATCH|g" -e 's/\x1b/ESC/g' -e 's/\r/CR/g' | diff -u "$transcript" -
