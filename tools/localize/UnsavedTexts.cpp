#include "UnsavedTexts.h"

#include <tuple>
#include <utility>

#include "localization_manager/host/host.h"

namespace localize {

namespace lm = localization_manager;
namespace host = localization_manager::host;

bool UnsavedTexts::IsKept() const {
    const auto partsOf = [](const lm_lsp::EngineRequest& request) {
        return std::tie(request.root, request.alternative, request.culture, request.file,
                        request.commonFile, request.texts, request.common);
    };
    return localizer_ && partsOf(request_) == partsOf(made_);
}

void UnsavedTexts::Create() {
    if (!module_) {
        module_.emplace(modulePath_.empty() ? host::DefaultModulePath() : modulePath_);
    }
    localizer_ = {};
    RequestSettings names;
    names.buffer = request_.file;
    names.commonBuffer = request_.commonFile;
    auto reports = std::make_unique<ModuleReports>(names);
    reports->SetQuiet(true);
    const host::Report report = reports->Callback();
    const auto services = host::Make<host::ServiceLocator>(report);
    lm::Culture culture;
    host::Check(module_->CreateCultureConverter(*services)->GetCultureByIsoName(
                    qor::string8_t(request_.culture), culture),
                request_.culture.c_str());
    const auto manager = module_->CreateManager(*services);
    host::Check(
        manager->InitEx(host::ToString16(request_.root), host::ToString16(request_.alternative),
                        host::Make<host::ErrorListener>(report)),
        "cannot use the localisation tree");
    const auto params =
        host::Make<host::ParamResolver>([this](const std::string& name) { return Param(name); });
    // No common texts at all would stand for those of the tree.
    const std::string common = request_.common.empty() ? "\n" : request_.common;
    host::Check(manager->CreateBufferLocalizer(
                    host::ToString16(""), host::ToString16(request_.texts),
                    host::ToString16(common), culture, params.get(), localizer_.Ref()),
                "cannot create a localizer");
    reports_ = std::move(reports);
    made_ = request_;
}

std::optional<std::string> UnsavedTexts::Param(const std::string& name) {
    const bool isNumber = request_.numbers.count(name) != 0;
    usesNumber_ = usesNumber_ || isNumber;
    const auto sample = request_.params.find(name);
    if (isNumber) {
        return request_.number;
    }
    return sample != request_.params.end() ? sample->second : "\u2039" + name + "\u203A";
}

lm_lsp::EngineAnswer UnsavedTexts::Ask(const lm_lsp::EngineRequest& request) {
    request_ = request;
    if (!IsKept()) {
        Create();
    }
    usesNumber_ = false;
    qor::string16_t text;
    const bool isText =
        !qor::Failed(localizer_->GetResolvedString(host::ToString16(request.key), text, nullptr));
    return {isText, isText ? host::ToUtf8(text) : reports_->Last(), usesNumber_};
}

}  // namespace localize
