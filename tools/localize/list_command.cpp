// `list` prints the keys of a tree, and what their texts are made of.
#include <algorithm>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <utility>

#include "Answers.h"
#include "UsageError.h"
#include "commands.h"
#include "request_options.h"
#include "source/Document.h"
#include "source/mistake_text.h"
#include "tree/Tree.h"
#include "tree/choose_cultures.h"
#include "tree/path_text.h"

namespace localize {

using Json = nlohmann::ordered_json;
using lm_source::Document;
using lm_source::OperandKind;

namespace {

constexpr const char* kBegin = R"({"version":1,"keys":[)";

struct ListSettings {
    std::string root;
    std::string alternative;
    std::vector<std::string> cultures;
    std::vector<std::string> scopes;
    bool json = false;
};

/// What a text is made of; each name once, in the order of the text.
struct Parts {
    std::vector<std::string> params;
    std::vector<std::string> references;
    std::vector<std::pair<std::string, std::size_t>> forms;  // the parameter, and how many

    Parts(const Document& document, const lm_source::Entry& entry) {
        for (const lm_source::Operand& operand : document.OperandsOf(entry)) {
            const std::string name(document.Name(operand));
            if (operand.kind == OperandKind::KeyRef) {
                AddOnce(references, name);
            } else if (operand.kind != OperandKind::Text) {
                AddOnce(params, name);
            }
            if (operand.kind == OperandKind::PluralForm) {
                forms.emplace_back(name, FormsOf(operand).size());
            }
        }
    }

private:
    static void AddOnce(std::vector<std::string>& names, const std::string& name) {
        if (std::find(names.begin(), names.end(), name) == names.end()) {
            names.push_back(name);
        }
    }
};

class List {
public:
    explicit List(const ListSettings& settings)
        : settings_(settings),
          tree_(lm_tree::PathOf(settings.root), lm_tree::PathOf(settings.alternative)) {}

    /// @return whether no file has a mistake.
    bool Print() {
        for (const auto& [culture, file] : Answers()) {
            PrintFile(culture, file);
        }
        if (settings_.json) {
            std::cout << (isFirst_ ? kBegin : "\n") << "]}\n";
        }
        return isWhole_;
    }

private:
    std::vector<lm_tree::CultureName> Cultures() const {
        std::vector<lm_tree::CultureName> cultures;
        for (const std::string& name : settings_.cultures) {
            cultures.push_back(lm_tree::NamedCulture(name));
        }
        if (cultures.empty()) {
            cultures.push_back(ChooseReference(tree_, ""));
        }
        return cultures;
    }

    /// All that will be printed, before anything is.
    std::vector<std::pair<lm_tree::CultureName, lm_tree::FileId>> Answers() const {
        std::vector<std::pair<lm_tree::CultureName, lm_tree::FileId>> answers;
        for (const lm_tree::CultureName& culture : Cultures()) {
            std::vector<std::string> scopes = settings_.scopes;
            if (scopes.empty()) {
                scopes = tree_.ScopesOf(culture);
                scopes.insert(scopes.begin(), lm_tree::CommonScope());
            }
            for (const std::string& scope : scopes) {
                if (const auto file = tree_.Answer(culture, scope)) {
                    answers.emplace_back(culture, *file);
                } else if (!settings_.scopes.empty()) {
                    throw UsageError("'" + culture.name + "' has no scope '" + scope + "'");
                }
            }
        }
        return answers;
    }

    void PrintFile(const lm_tree::CultureName& culture, lm_tree::FileId file) {
        const std::string path = lm_tree::Utf8Of(tree_.FullPath(file));
        try {
            PrintDocument(culture, file, path, Document(tree_.Read(file)));
        } catch (const std::runtime_error& unreadable) {
            isWhole_ = false;
            std::cerr << "localize: '" << path << "' " << unreadable.what() << '\n';
        }
    }

    void PrintDocument(const lm_tree::CultureName& culture, lm_tree::FileId file,
                       const std::string& path, const Document& document) {
        for (const lm_source::Entry& entry : document.Entries()) {
            const Parts parts(document, entry);
            const std::uint32_t line = document.PlaceOf(entry.key.begin).line;
            if (settings_.json) {
                PrintJson(culture, file, document, entry, parts);
            } else {
                std::cout << tree_.Files()[file].scope << '\t' << document.Key(entry) << '\t'
                          << path << ':' << line << '\t' << Joined("$", parts.params) << '\t'
                          << Joined("", parts.references) << '\t' << Joined(parts.forms) << '\n';
            }
        }
        if (!document.Mistakes().empty()) {
            isWhole_ = false;
            std::cerr << "localize: " << TextOf(document, document.Mistakes().front(), path)
                      << '\n';
        }
    }

    static std::string Joined(const char* before, const std::vector<std::string>& names) {
        std::string joined;
        for (const std::string& name : names) {
            joined += (joined.empty() ? "" : " ") + (before + name);
        }
        return joined;
    }

    static std::string Joined(const std::vector<std::pair<std::string, std::size_t>>& forms) {
        std::string joined;
        for (const auto& [param, count] : forms) {
            joined += (joined.empty() ? "$" : " $") + param + ':' + std::to_string(count);
        }
        return joined;
    }

    void PrintJson(const lm_tree::CultureName& culture, lm_tree::FileId file,
                   const Document& document, const lm_source::Entry& entry, const Parts& parts) {
        const lm_source::Place place = document.PlaceOf(entry.key.begin);
        Json json = {{"culture", culture.name},    {"scope", tree_.Files()[file].scope},
                     {"key", document.Key(entry)}, {"file", lm_tree::Utf8Of(tree_.FullPath(file))},
                     {"line", place.line},         {"column", place.column},
                     {"parameters", parts.params}, {"references", parts.references},
                     {"forms", Json::array()}};
        for (const auto& [param, count] : parts.forms) {
            json["forms"].push_back({{"parameter", param}, {"count", count}});
        }
        std::cout << (isFirst_ ? std::string(kBegin) + "\n" : ",\n") << Dump(json);
        isFirst_ = false;
    }

    const ListSettings& settings_;
    lm_tree::Tree tree_;
    bool isFirst_ = true;
    bool isWhole_ = true;
};

}  // namespace

void AddListCommand(CLI::App& app, Task& chosen) {
    const auto settings = std::make_shared<ListSettings>();
    CLI::App& list = AddCommand(
        app, chosen,
        {"list",
         "Print keys: scope, key, file and line, parameters, references, plural forms, with tabs "
         "between them",
         "0 all printed, 1 a file has mistakes or cannot be read, 2 could not run",
         "localize list --root texts --culture de --scope main"},
        ThatRuns([settings] { return List(*settings).Print(); }));
    AddRoot(list, settings->root);
    AddAlternative(list, settings->alternative);
    AddList(list, "--culture", settings->cultures,
            "Culture whose keys to print, instead of en where the tree has it, else neutral; may "
            "be repeated",
            "ISO");
    AddList(list, "--scope", settings->scopes, "Scope to print, instead of all; may be repeated",
            "NAME");
    AddJson(list, settings->json);
}

}  // namespace localize
