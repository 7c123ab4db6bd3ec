#include "Module.h"

#include <iostream>

namespace lm_bench {

namespace lm = localization_manager;
namespace host = localization_manager::host;

namespace {

thread_local qor::string16_t kept;
thread_local const Request* current_request = nullptr;

/// Gives the parameters of the request that the calling thread makes.
class RequestParameters : public host::HostObject<lm::IParamResolver> {
public:
    qor::result_t Resolve(const qor::string16_t& name, qor::string16_t& result) override {
        if (name.view() == u"name") {
            result = std::u16string_view(current_request->parameter16);
        } else {
            const std::string digits = std::to_string(current_request->number);
            result = std::u16string_view(std::u16string(digits.begin(), digits.end()));
        }
        return qor::rcOk;
    }
};

std::string Gapped(const Pattern& form, const std::string& parameter) {
    return '\'' + form.before + "' + $" + parameter + " + '" + form.after + '\'';
}

std::string Value(const Message& message) {
    const auto& forms = message.forms;
    switch (message.kind) {
        case Kind::Plain:
            return '\'' + forms[0].before + '\'';
        case Kind::Parameter:
            return Gapped(forms[0], "name");
        case Kind::Plural:
            return "{$count: " + Gapped(forms[0], "count") + ", " + Gapped(forms[1], "count") +
                   ", " + Gapped(forms[2], "count") + '}';
    }
    return {};
}

std::filesystem::path ScopeFile(const std::filesystem::path& tree, const std::string& scope) {
    return tree / "ru" / "Locs" / (scope + ".lt");
}

std::filesystem::path File(const std::filesystem::path& directory) {
    return ScopeFile(directory, "main");
}

void Write(const std::filesystem::path& directory, const Workload& workload) {
    WriteScope(directory, "main", workload);
    WriteFile(ScopeFile(directory, "common"), "");
}

std::unique_ptr<System> Open(const std::filesystem::path& directory) {
    return std::make_unique<Module>(*OpenManager(directory), u"main");
}

}  // namespace

const SystemType kModule{"module", File, Write, Open};

qor::objptr_t<lm::ILocalizationManager> OpenManager(const std::filesystem::path& tree) {
    static const host::Module module;
    const auto services = host::Make<host::ServiceLocator>(host::LinesTo(std::cerr));
    auto manager = module.CreateManager(*services);
    host::Check(manager->Init(host::ToString16(tree.string()), u""), "cannot open the tree");
    return manager;
}

void WriteScope(const std::filesystem::path& tree, const char* scope, const Workload& workload) {
    std::string source;
    for (const Message& message : workload.Messages()) {
        source += message.key + " = " + Value(message) + '\n';
    }
    WriteFile(ScopeFile(tree, scope), source);
}

Module::Module(lm::ILocalizationManager& manager, const char16_t* scope) {
    const lm::Culture culture{lm::Language::Russian, {}, {}};
    host::Check(manager.CreateLocalizer(scope, culture, host::Make<RequestParameters>().get(),
                                        localizer_.Ref()),
                "cannot create a localizer");
}

void Module::Answer(const Request& request) {
    current_request = &request;
    host::Check(localizer_->GetString(request.key16, kept), "cannot get a text");
}

std::string Module::Kept() const {
    return host::ToUtf8(kept);
}

}  // namespace lm_bench
