#include "lsp/Server.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "edit/format.h"
#include "lsp/RequestError.h"
#include "lsp/code_actions.h"
#include "lsp/completion.h"
#include "lsp/hover.h"
#include "lsp/key_uses.h"
#include "lsp/members.h"
#include "lsp/outline.h"
#include "lsp/places.h"
#include "lsp/uri.h"

namespace lm_lsp {

namespace {

Json Capabilities() {
    return {{"positionEncoding", "utf-16"},
            {"textDocumentSync", {{"openClose", true}, {"change", 2}, {"save", true}}},
            {"hoverProvider", true},
            {"completionProvider", {{"triggerCharacters", {"$", "{"}}}},
            {"definitionProvider", true},
            {"referencesProvider", true},
            {"documentSymbolProvider", true},
            {"workspaceSymbolProvider", true},
            {"foldingRangeProvider", true},
            {"documentFormattingProvider", true},
            {"renameProvider", {{"prepareProvider", true}}},
            {"codeActionProvider", {{"codeActionKinds", {"quickfix"}}}}};
}

/// Whether they are among the kinds of code actions that are asked for: an empty one is that of all.
bool WantsQuickFixes(const Json& only) {
    const Json ours = {"quickfix", ""};
    return !only.is_array() ||
           std::find_first_of(only.begin(), only.end(), ours.begin(), ours.end()) != only.end();
}

/// Where relative paths begin.
std::filesystem::path FolderOf(const Json& params) {
    const Json& uri = Find(params, "rootUri");
    const auto path = uri.is_string() ? PathOfUri(uri.get_ref<const std::string&>()) : std::nullopt;
    return path.value_or(std::filesystem::path());
}

}  // namespace

Server::Server(Host host)
    : host_(std::move(host)),
      diagnostics_(workspace_,
                   {[this](const char* method, Json params) { Notify(method, std::move(params)); },
                    host_.isAwaited}) {
    AddLifecycle();
    AddTexts();
    AddFeatures();
}

void Server::AddLifecycle() {
    dispatcher_.OnRequest("initialize", [this](const Json& params) { return Initialize(params); });
    dispatcher_.OnRequest("shutdown", [this](const Json&) {
        state_ = State::ShutDown;
        wasShutDown_ = true;
        return Json();
    });
}

Json Server::Initialize(const Json& params) {
    workspace_ = Workspace(ReadSettings(params, FolderOf(params)), [this] {
        if (const auto refusal = host_.refusal()) {
            throw RequestError(*refusal);
        }
    });
    takesSnippets_ =
        Find(params, "capabilities.textDocument.completion.completionItem.snippetSupport") == true;
    diagnostics_.TouchTrees();
    state_ = State::Running;
    return {{"capabilities", Capabilities()},
            {"serverInfo", {{"name", "localize"}, {"version", host_.version}}}};
}

void Server::AddTexts() {
    dispatcher_.OnNotification("textDocument/didOpen", [this](const Json& params) {
        const std::string& uri = StringAt(params, "textDocument.uri");
        workspace_.Open(
            uri, {StringAt(params, "textDocument.text"), VersionOf(Find(params, "textDocument"))});
        if (const auto path = PathOfUri(uri)) {
            diagnostics_.Touch(*path);
        }
    });
    dispatcher_.OnNotification("textDocument/didChange", [this](const Json& params) {
        const std::string& uri = StringAt(params, "textDocument.uri");
        OpenText* const text = workspace_.Find(uri);
        if (text == nullptr) {
            throw RequestError(ErrorCode::InvalidParams, "not open: " + uri);
        }
        text->Change(ArrayAt(params, "contentChanges"), VersionOf(Find(params, "textDocument")));
        if (const auto path = PathOfUri(uri)) {
            diagnostics_.Touch(*path);
        }
    });
    dispatcher_.OnNotification("textDocument/didClose", [this](const Json& params) {
        workspace_.Close(StringAt(params, "textDocument.uri"));
        diagnostics_.TouchTrees();
    });
    for (const char* const method : {"textDocument/didSave", "workspace/didChangeWatchedFiles"}) {
        dispatcher_.OnNotification(method, [this](const Json&) { diagnostics_.TouchTrees(); });
    }
}

void Server::AddFeatures() {
    OnText("textDocument/documentSymbol",
           [](const Target& target, const Json&) { return DocumentSymbols(target); });
    OnText("textDocument/foldingRange",
           [](const Target& target, const Json&) { return FoldingRanges(target); });
    OnText("textDocument/formatting", [](const Target& target, const Json&) {
        return EditsBetween(target.Document().Bytes(), lm_edit::Format(target.Document()));
    });
    OnText("textDocument/codeAction", [](const Target& target, const Json& params) {
        if (!WantsQuickFixes(Find(params, "context.only"))) {
            return Json::array();
        }
        return CodeActionsFor(target, target.RangeOf(params, "range"),
                              Find(params, "context.diagnostics"));
    });
    OnPlace("textDocument/hover", [](const Target& target, std::uint32_t offset, const Json&) {
        return HoverAt(target, offset);
    });
    OnPlace("textDocument/completion",
            [this](const Target& target, std::uint32_t offset, const Json&) {
                return CompletionAt(target, offset, takesSnippets_);
            });
    OnPlace("textDocument/definition", [](const Target& target, std::uint32_t offset, const Json&) {
        return DefinitionAt(target, offset);
    });
    OnPlace("textDocument/references", [](const Target& target, std::uint32_t offset,
                                          const Json& params) {
        return ReferencesAt(target, offset, Find(params, "context.includeDeclaration") == true);
    });
    OnPlace("textDocument/prepareRename",
            [](const Target& target, std::uint32_t offset, const Json&) {
                return RenamePlaceAt(target, offset);
            });
    OnPlace("textDocument/rename",
            [](const Target& target, std::uint32_t offset, const Json& params) {
                return RenameAt(target, offset, StringAt(params, "newName"));
            });
    dispatcher_.OnRequest("workspace/symbol", [this](const Json& params) {
        return WorkspaceSymbols(workspace_, StringAt(params, "query"));
    });
}

void Server::Handle(const Inbox::Message& message) {
    const Json& content = message.content;
    const auto id = content.is_object() ? content.find("id") : content.end();
    const bool hasId =
        content.is_object() && id != content.end() && (id->is_string() || id->is_number_integer());
    if (message.refusal) {
        Refuse(hasId ? *id : Json(), *message.refusal);
        return;
    }
    const auto method = content.is_object() ? content.find("method") : content.end();
    if (!content.is_object() || (method != content.end() && !method->is_string())) {
        Refuse(hasId ? *id : Json(), {ErrorCode::InvalidRequest, "the message is no request"});
        return;
    }
    if (method == content.end()) {
        return;  // a reply, though nothing was asked
    }
    static const Json none = Json::object();
    const auto given = content.find("params");
    const Json& params = given != content.end() && given->is_object() ? *given : none;
    if (hasId) {
        Answer(*id, method->get<std::string>(), params);
    } else {
        Note(method->get<std::string>(), params);
    }
}

void Server::Answer(const Json& id, const std::string& method, const Json& params) {
    const bool isFirst = method == "initialize";
    if (state_ == State::New && !isFirst) {
        Refuse(id, {ErrorCode::NotInitialized, "initialize comes first"});
    } else if (state_ == State::ShutDown || (state_ == State::Running && isFirst)) {
        Refuse(id, {ErrorCode::InvalidRequest, "too late for " + method});
    } else {
        try {
            host_.send(
                {{"jsonrpc", "2.0"}, {"id", id}, {"result", dispatcher_.Ask(method, params)}});
        } catch (const RequestError& error) {
            Refuse(id, error);
        }
    }
}

void Server::Note(const std::string& method, const Json& params) {
    if (method == "exit") {
        state_ = State::Over;
    }
    if (state_ != State::Running) {
        return;
    }
    try {
        dispatcher_.Tell(method, params);
    } catch (const RequestError& error) {
        Notify("window/logMessage", {{"type", 1}, {"message", method + ": " + error.what()}});
    }
}

void Server::Refuse(const Json& id, const RequestError& error) {
    host_.send({{"jsonrpc", "2.0"},
                {"id", id},
                {"error", {{"code", static_cast<int>(error.Code())}, {"message", error.what()}}}});
}

void Server::Notify(const char* method, Json params) {
    host_.send({{"jsonrpc", "2.0"}, {"method", method}, {"params", std::move(params)}});
}

}  // namespace lm_lsp
