#!/usr/bin/env bash
# An editor with the set-up of editors/ opens a tree with mistakes. Neovim mends it, and it is then clean; Emacs shows
# what is wrong.
# usage: editors.sh EDITOR DIRECTORY-OF-THE-TOOL PROJECT
set -euo pipefail
editor=$1
PATH=$2:$PATH
project=$3
directory=$(mktemp -d)
trap 'rm -rf "$directory"' EXIT
export HOME=$directory XDG_STATE_HOME=$directory XDG_DATA_HOME=$directory XDG_CONFIG_HOME=$directory TREE=$directory/tree
cp -r "$project/samples/tree" "$TREE"
sed -i "/^Greeting/d; s/^Menu.Quit .*/Menu.Quit = 'C:\\\\photos beenden: ' + App.Name/" "$TREE/de/Locs/main.lt"
if localize check --root "$TREE" >"$directory/found"; then
    echo "the tree is clean from the start" >&2
    exit 1
fi

if [ "$editor" = emacs ]; then
    timeout 120 emacs --batch -L "$project/editors/emacs" -l "$project/tests/lsp/emacs.el"
    exit
fi
timeout 120 nvim --headless -u NONE --cmd "set runtimepath^=$project/editors/vim" -c 'filetype plugin on' -c 'syntax on' \
    -c "luafile $project/editors/neovim/localize.lua" -c "luafile $project/tests/lsp/neovim.lua"
localize check --root "$TREE" --fail-on warning
grep -q '^Pictures.Count' "$TREE/ru/Locs/main.lt"
grep -q 'Pictures.Count' "$TREE/en-au/Locs/main.lt"
