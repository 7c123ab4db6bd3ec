#include "ModuleTexts.h"

#include "localization_manager/host/host.h"
#include "source/Document.h"

namespace localize {

namespace lm = localization_manager;
namespace host = localization_manager::host;

namespace {

/// The parameters that choose forms. A file that cannot be read has none; the check tells of it.
std::set<std::string> NumbersOf(const lm_tree::Tree& tree) {
    std::set<std::string> names;
    for (lm_tree::FileId file = 0; file < tree.Files().size(); ++file) {
        if (tree.Files()[file].kind != lm_tree::FileKind::Texts) {
            continue;
        }
        try {
            const lm_source::Document document(tree.Read(file));
            for (const lm_source::Entry& entry : document.Entries()) {
                for (const lm_source::Operand& operand : document.OperandsOf(entry)) {
                    if (operand.kind == lm_source::OperandKind::PluralForm) {
                        names.emplace(document.Name(operand));
                    }
                }
            }
        } catch (const std::exception&) {
            continue;
        }
    }
    return names;
}

}  // namespace

ModuleTexts::ModuleTexts(const std::string& module, const lm_tree::Tree& tree,
                         const std::string& root, const std::string& alternative)
    : numbers_(NumbersOf(tree)), module_(module.empty() ? host::DefaultModulePath() : module) {
    const host::Report report = [this](std::uint32_t /*level*/, std::string_view text) {
        reported_ = host::Shortened(text);
    };
    services_ = host::Make<host::ServiceLocator>(report);
    converter_ = module_.CreateCultureConverter(*services_);
    manager_ = module_.CreateManager(*services_);
    host::Check(manager_->InitEx(host::ToString16(root), host::ToString16(alternative),
                                 host::Make<host::ErrorListener>(report)),
                "cannot use the localisation tree");
    params_ = host::Make<host::ParamResolver>([this](const std::string& name) {
        const std::string supplied(host::SuppliedParam(name));
        return numbers_.count(supplied) != 0 ? std::to_string(number_) : "\u2039" + name + "\u203A";
    });
}

ModuleTexts::Localizer ModuleTexts::Create(const std::string& culture, const std::string& scope) {
    lm::Culture asked;
    Localizer localizer;
    host::Check(converter_->GetCultureByIsoName(qor::string8_t(culture), asked), culture.c_str());
    host::Check(
        manager_->CreateLocalizer(host::ToString16(scope), asked, params_.get(), localizer.Ref()),
        "cannot create a localizer");
    return localizer;
}

lm_report::Answer ModuleTexts::Ask(const std::string& culture, const std::string& scope,
                                   const std::string& key, int number) {
    if (scope != scope_) {
        localizers_.clear();
        scope_ = scope;
    }
    const auto found = localizers_.find(culture);
    Localizer& localizer = found != localizers_.end()
                               ? found->second
                               : localizers_.emplace(culture, Create(culture, scope)).first->second;
    number_ = number;
    qor::string16_t text;
    if (qor::Failed(localizer->GetString(host::ToString16(key), text))) {
        return {false, reported_};
    }
    return {true, host::ToUtf8(text)};
}

}  // namespace localize
