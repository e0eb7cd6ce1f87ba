#!/usr/bin/env bash
# Compiles or runs the code blocks of a document, in order, in a scratch folder that has the
# project's folders.
#   code_blocks_test.sh DOCUMENT PROJECT CLIENT_FOLDER
#
# ```c, ```cpp   must compile
# ```json, ```xml   must be well-formed
# ```sh   is run, with the scratch folder as home
# ```sh ci   must be steps of .ci/run
# ```cmake, ```text   are not checked
#
# A name after the language saves a block as a file.
set -euo pipefail
document=$1 project=$2
export PATH=$3:$PATH

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export HOME=$scratch
cd "$scratch"
ln -s "$project"/{CMakeLists.txt,LICENSE,build,cmake,docs,examples,include,platform,src,tests,client} .

# Writes each block into a file: "block.NUMBER.LANGUAGE.NAME".
awk '/^ *```[a-z]/ {
         indent = index($0, "`"); sub(/^ *```/, ""); out = sprintf("block.%02d.%s.%s", ++n, $1, $2)
         next
     }
     /^ *```$/ { close(out); out = ""; next }
     out { print substr($0, indent) > out }' "$document"

inCi() {
    while read -r step; do
        grep -qFe "${step%%  *}" "$project/.ci/run" || { echo "not in CI: $step" && return 1; }
    done <"$1"
}

check() {
    case $2 in
        c) cc -std=c99 -Wall -Wextra -Werror -Iinclude -fsyntax-only -x c "$1" ;;
        cpp) c++ -std=c++17 -Wall -Wextra -Werror -Iinclude -fsyntax-only -x c++ "$1" ;;
        json) jq empty "$1" ;;
        xml) xmllint --nonet --noout "$1" ;;
        cmake | text) ;;
        sh)
            if [ "$3" = ci ]; then
                inCi "$1"
                return
            fi
            cat "$1" >>all.sh
            ;;
        *) echo "No rule for $2 blocks" >&2 && return 1 ;;
    esac
}

blocks=0
for block in block.*; do
    IFS=. read -r _ _ language name <<<"$block"
    echo "$block"
    [ -z "$name" ] || [ "$name" = ci ] || cp -n --remove-destination "$block" "$name"
    check "$block" "$language" "$name"
    blocks=$((blocks + 1))
done
[ "$blocks" -gt 0 ]
[ ! -e all.sh ] || bash -euxo pipefail all.sh
