#include "keys/cpp_header.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "keys/NameTable.h"
#include "keys/identifier.h"
#include "source/variant_key.h"

namespace lm_keys {

namespace {

/// Bytes beyond ASCII as numbers, so that a compiler's encoding changes nothing.
std::string Literal(std::string_view text) {
    std::string literal = "\"";
    for (const char unit : text) {
        const auto byte = static_cast<unsigned char>(unit);
        if (byte >= 0x20 && byte < 0x7F && unit != '"' && unit != '\\') {
            literal += unit;
        } else {
            for (const unsigned shift : {6U, 3U, 0U}) {
                literal += shift == 6 ? "\\" : "";
                literal += static_cast<char>('0' + ((byte >> shift) & 7U));
            }
        }
    }
    return literal + '"';
}

std::string ClassOf(const std::string& scope) {
    std::string name = scope + "Texts";
    if (name[0] >= 'a' && name[0] <= 'z') {
        name[0] = static_cast<char>(name[0] - 'a' + 'A');
    }
    return IdentifierOf(name);
}

void RequireNamespace(const std::string& nameSpace) {
    std::size_t begin = 0;
    while (true) {
        const std::size_t end = nameSpace.find("::", begin);
        const std::string part = nameSpace.substr(begin, end - begin);
        if (part.empty() || IdentifierOf(part) != part) {
            throw std::invalid_argument("'" + nameSpace + "' is no name of a namespace");
        }
        if (end == std::string::npos) {
            return;
        }
        begin = end + 2;
    }
}

/// A text with all its variants.
struct Function {
    const Key* key;
    std::vector<std::string> params;  // of any of them, ordered

    void Add(const std::vector<std::string>& others) {
        std::vector<std::string> all;
        std::set_union(params.begin(), params.end(), others.begin(), others.end(),
                       std::back_inserter(all));
        params = std::move(all);
    }
};

class Printer {
public:
    explicit Printer(const std::vector<ScopeKeys>& scopes) : common_(scopes.front()) {
        for (const ScopeKeys& scope : scopes) {
            names_.Reserve(ClassOf(scope.scope), "the class of the source '" + scope.scope + '\'');
        }
        AddKeys(common_, names_);
    }

    void PrintScope(const ScopeKeys& scope) {
        const bool isCommon = &scope == &common_;
        NameTable names = names_;
        AddKeys(scope, names);
        const std::string name = ClassOf(scope.scope);
        const std::string base = isCommon ? std::string() : ClassOf(common_.scope);
        out_ << (isCommon ? "\n/// The texts that all sources share."
                          : "\n/// The texts of source " + Literal(scope.scope) + '.')
             << "\nclass " << name << " : public "
             << (isCommon ? "::localization_manager::host::KeyedTexts" : base) << " {\npublic:\n";
        PrintKeys(scope, names, base);
        PrintConstruction(scope, name, base);
        for (const auto& [lower, function] : FunctionsOf(scope)) {
            PrintFunction(function, names.Of(*function.key));
        }
        out_ << "};\n";
    }

    std::string Text() const { return out_.str(); }

private:
    static void AddKeys(const ScopeKeys& scope, NameTable& names) {
        for (const Key& key : scope.keys) {
            names.Add(key);
        }
    }

    void PrintKeys(const ScopeKeys& scope, const NameTable& names, const std::string& base) {
        out_ << "    struct Keys" << (base.empty() ? "" : " : " + base + "::Keys") << " {\n";
        for (const Key& key : scope.keys) {
            out_ << "        static constexpr std::string_view " << names.Of(key) << " = "
                 << Literal(key.name) << ";\n";
        }
        out_ << "    };\n\n";
    }

    void PrintConstruction(const ScopeKeys& scope, const std::string& name,
                           const std::string& base) {
        constexpr const char* kHost = "::localization_manager::host::";
        if (!base.empty()) {
            out_ << "    /// @throws as `Tree::Open`.\n    " << name << "(const " << kHost
                 << "Tree& tree, const " << kHost << "CultureList& cultures)\n        : " << name
                 << "(tree.Open(" << Literal(scope.scope) << ", cultures)) {}\n";
        }
        out_ << "    /// @param texts  of " << (base.empty() ? "any" : "this") << " source.\n"
             << "    explicit " << name << '(' << kHost
             << "Texts texts, std::string_view variant = {})\n        : "
             << (base.empty() ? std::string(kHost) + "KeyedTexts" : base)
             << "(std::move(texts), variant) {}\n\n    /// The same texts for a case that is no "
                "number, as `Texts::Variant`.\n    "
             << name << " Variant(std::string_view variant) const { return " << name
             << "(handle(), variant); }\n";
    }

    /// By their keys in lower case. A variant of either source may answer for a text.
    std::map<std::string, Function> FunctionsOf(const ScopeKeys& scope) const {
        std::map<std::string, Function> functions;
        for (const Key& key : scope.keys) {
            const Key& owner = OwnerOf(key, scope);
            functions.try_emplace(owner.lower, Function{&owner, owner.params});
        }
        for (const ScopeKeys* const source : {&common_, &scope}) {
            for (const Key& key : source->keys) {
                const auto function =
                    functions.find(std::string(lm_source::BaseOfVariant(key.lower)));
                if (function != functions.end()) {
                    function->second.Add(key.params);
                }
            }
        }
        return functions;
    }

    /// The text that a key is a variant of, or the key itself.
    const Key& OwnerOf(const Key& key, const ScopeKeys& scope) const {
        const std::string base(lm_source::BaseOfVariant(key.lower));
        const Key* const own = scope.Find(base);
        const Key* const owner = own != nullptr ? own : common_.Find(base);
        return owner != nullptr ? *owner : key;
    }

    void PrintFunction(const Function& function, const std::string& name) {
        std::ostringstream types;
        std::ostringstream arguments;
        std::ostringstream values;
        NameTable names;
        for (std::size_t i = 0; i < function.params.size(); ++i) {
            const std::string& param = function.params[i];
            const std::string argument = IdentifierOf(param);
            names.Reserve(argument, function.key->Where() + ": the parameter $" + param);
            const char* const comma = i == 0 ? "" : ", ";
            types << comma << "class T" << i + 1;
            arguments << comma << "const T" << i + 1 << "& " << argument;
            values << comma << '{' << Literal(param) << ", " << argument << '}';
        }
        out_ << '\n';
        if (!function.params.empty()) {
            out_ << "    template <" << types.str() << ">\n";
        }
        out_ << "    std::string " << name << '(' << arguments.str()
             << ") const {\n        return Text(Keys::" << name
             << (function.params.empty() ? "" : ", {" + values.str() + '}') << ");\n    }\n";
    }

    const ScopeKeys& common_;
    NameTable names_;
    std::ostringstream out_;
};

}  // namespace

std::string CppHeader(const std::vector<ScopeKeys>& scopes, const CppHeaderSettings& settings) {
    RequireNamespace(settings.nameSpace);
    Printer printer(scopes);
    for (const ScopeKeys& scope : scopes) {
        printer.PrintScope(scope);
    }
    std::ostringstream header;
    header << kHeaderMark << " from the texts of " << settings.reference
           << ": what is changed here is lost.\n"
              "#pragma once\n\n"
              "#include <string>\n"
              "#include <string_view>\n"
              "#include <utility>\n\n"
              "#include \"localization_manager/host/KeyedTexts.h\"\n"
              "#include \"localization_manager/host/Tree.h\"\n\n"
           << "namespace " << settings.nameSpace << " {\n"
           << printer.Text() << "\n}  // namespace " << settings.nameSpace << '\n';
    return header.str();
}

}  // namespace lm_keys
