// What the grammar makes of lines, by the library that VS Code uses.
// usage: grammar.js DIRECTORY-OF-PACKAGES GRAMMAR
'use strict';
const fs = require('fs');
const path = require('path');
const [packages, grammarFile] = process.argv.slice(2);
const textmate = require(path.join(packages, 'vscode-textmate'));
const oniguruma = require(path.join(packages, 'vscode-oniguruma'));

// Lines of one file; below each, the innermost scope of every part that is no white space.
const cases = [
    ["Files.Count = {$count: 'one; \\'f\\t', $n} ; localize: ignore x", [
        'Files.Count|entity.name.tag', '=|keyword.operator.assignment', '{|punctuation.section.braces',
        '$count|variable.parameter', ':|punctuation.separator', "'|string.quoted.single", 'one; |string.quoted.single',
        "\\'|constant.character.escape", 'f\\t|string.quoted.single', "'|string.quoted.single",
        ',|punctuation.separator', '$n|variable.parameter', '}|punctuation.section.braces',
        ';|comment.line.semicolon', 'localize: ignore|keyword.other', ' x|comment.line.semicolon']],
    ["  + App.Name B='two", [
        '+|keyword.operator', 'App.Name|variable.other.constant', 'B|entity.name.tag', '=|keyword.operator.assignment',
        "'|string.quoted.single", 'two|string.quoted.single']],
    ["lines' + C", ['lines|string.quoted.single', "'|string.quoted.single", '+|keyword.operator',
        'C|variable.other.constant']],
];

(async () => {
    const wasm = fs.readFileSync(path.join(packages, 'vscode-oniguruma/release/onig.wasm')).buffer;
    await oniguruma.loadWASM(wasm);
    const registry = new textmate.Registry({
        onigLib: Promise.resolve({
            createOnigScanner: patterns => new oniguruma.OnigScanner(patterns),
            createOnigString: text => new oniguruma.OnigString(text),
        }),
        loadGrammar: async () => textmate.parseRawGrammar(fs.readFileSync(grammarFile, 'utf8'), grammarFile),
    });
    const grammar = await registry.loadGrammar('source.localize');
    let stack = textmate.INITIAL;
    for (const [line, expected] of cases) {
        const result = grammar.tokenizeLine(line, stack);
        stack = result.ruleStack;
        const seen = result.tokens
            .map(token => [line.substring(token.startIndex, token.endIndex), token.scopes[token.scopes.length - 1]])
            .filter(([text]) => text.trim() !== '')
            .map(([text, scope]) => `${text}|${scope.replace(/\.localize$/, '')}`);
        if (JSON.stringify(seen) !== JSON.stringify(expected)) {
            console.error(`${line}\n  seen     ${seen.join('  ')}\n  expected ${expected.join('  ')}`);
            process.exitCode = 1;
        }
    }
})();
