#!/usr/bin/env bash
# Plays a transcript in an empty folder, and shows the difference when it goes otherwise. After
# each command ("$ …") a transcript has the output, the errors ("! …"), and the status unless
# that is 0 ("[…]").
#   transcript_test.sh TRANSCRIPT DEVICE_FILE
set -o pipefail

play() {
    while IFS= read -r line; do
        case $line in
            '# '*) printf '\n%s\n' "$line" ;;
            '$ '*)
                printf '%s\n' "$line"
                eval "${line#??}" >.out 2>.err </dev/null
                status=$?
                cat .out
                sed 's/^/! /' .err
                [ "$status" -eq 0 ] || echo "[$status]"
                ;;
        esac
    done <"$1"
}

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cp "$2" "$scratch/device.json"
cd "$scratch" || exit
play "$1" | sed -e "s|$scratch|SCRATCH|g" -e 's/\x1b/ESC/g' -e 's/\r/CR/g' | diff -u "$1" -
