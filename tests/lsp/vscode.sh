#!/usr/bin/env bash
# The extension for Visual Studio Code can be packaged, and the package has all that it loads.
# usage: vscode.sh DIRECTORY-OF-PACKAGES PROJECT
set -euo pipefail
packages=$1
directory=$(mktemp -d)
trap 'rm -rf "$directory"' EXIT
cp -r "$2/editors/vscode" "$directory/extension"
cd "$directory/extension"
rm -rf node_modules
touch package-lock.json
cp -r "$packages/vscode/node_modules" .
node "$packages/node_modules/@vscode/vsce/vsce" package --allow-missing-repository --skip-license --out ../localize.vsix

mkdir ../unpacked
cd ../unpacked
python3 -m zipfile -e ../localize.vsix .
cd extension
if find . -name '.*' -type f | grep . || [ -e package-lock.json ]; then
    echo "the package has what the extension does not need" >&2
    exit 1
fi
# Of the editor there is only the name of each thing.
mkdir node_modules/vscode
cat >node_modules/vscode/index.js <<'END'
module.exports = new Proxy(class {}, { get: (target, name) => (name === 'version' ? '1.75.0' : target) });
END
node - <<'END'
const fs = require('fs');
const manifest = JSON.parse(fs.readFileSync('package.json', 'utf8'));
const { languages, grammars } = manifest.contributes;
for (const file of [...grammars.map(one => one.path), ...languages.map(one => one.configuration).filter(Boolean)]) {
    JSON.parse(fs.readFileSync(file, 'utf8'));
}
const { activate, deactivate } = require(fs.realpathSync(manifest.main));
if (typeof activate !== 'function' || typeof deactivate !== 'function') {
    throw new Error('no extension');
}
END
