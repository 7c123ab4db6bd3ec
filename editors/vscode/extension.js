// Starts `localize lsp`, and stops it with the editor.
'use strict';
const vscode = require('vscode');
const { LanguageClient } = require('vscode-languageclient/node');

let client;

exports.activate = () => {
    const settings = vscode.workspace.getConfiguration('localize');
    client = new LanguageClient(
        'localize',
        'Localisation files',
        { command: settings.get('command'), args: ['lsp'] },
        {
            documentSelector: [
                { scheme: 'file', language: 'localize' },
                { scheme: 'file', language: 'localizerule' },
            ],
            initializationOptions: settings.get('options'),
            synchronize: {
                fileEvents: vscode.workspace.createFileSystemWatcher('**/{*.lt,Plural.rule,localize.lock}'),
            },
        });
    return client.start();
};

exports.deactivate = () => client && client.stop();
