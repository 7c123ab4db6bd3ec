#include "lsp/Engine.h"

#include <boost/make_shared.hpp>
#include <set>
#include <stdexcept>
#include <string_view>

#include "BufferProcessingPipeline.h"
#include "FromUtf8.h"
#include "localization_manager/host/shortened.h"
#include "localization_manager/host/text.h"
#include "source/Encoding.h"

namespace lm_lsp {

namespace engine = LocalizationManager::StringLocalizing;
namespace host = localization_manager::host;
using lm_tree::CultureName;
using lm_tree::FileId;
using LocalizationManager::Text::FromUtf8;

/// Reads what the snapshot shows. It knows its culture, so that whatever is asked for is of that one.
class Engine::Sources : public engine::Pipeline::IResourceProvider {
public:
    using Content = engine::Pipeline::ResourceContent;
    using RuleId = engine::Model::PluralFormRuleId;

    Sources(const Snapshot& snapshot, const CultureName& culture)
        : tree_(snapshot.GetTree()), culture_(culture) {}

    Content GetResource(const std::u16string& name,
                        const localization_manager::Culture& /*culture*/) const override {
        const std::string scope = host::ToUtf8(name);
        const auto file = tree_.Answer(culture_, scope);
        if (!file) {
            throw std::runtime_error("no file " + lm_tree::TextsPath("*", scope) + " answers");
        }
        return ContentOf(*file);
    }

    bool HasPluralFormRules(const RuleId& /*id*/) const override {
        return tree_.RuleOf(culture_).has_value();
    }

    Content GetPluralFormRules(const RuleId& /*id*/) const override {
        return ContentOf(*tree_.RuleOf(culture_));
    }

    std::u16string GetResourcePath(const std::u16string& /*scope*/,
                                   const localization_manager::Culture& /*culture*/,
                                   const std::u16string& /*fileName*/) const override {
        return {};  // no text asks for one
    }

private:
    Content ContentOf(FileId file) const {
        const std::string bytes = tree_.Read(file);
        const lm_source::Range content = lm_source::EncodingOf(bytes).content;
        return {FromUtf8(std::string_view(bytes).substr(content.begin, content.size())),
                FromUtf8(tree_.Files()[file].path)};
    }

    const lm_tree::Tree& tree_;
    const CultureName& culture_;
};

class Engine::Params : public engine::Resolving::IParamResolver {
public:
    Params(const Snapshot& snapshot, const CultureName& culture, const std::string& scope)
        : samples_(snapshot.GetSettings().params) {
        for (const std::string& source : {scope, lm_tree::CommonScope()}) {
            if (const auto* const texts =
                    snapshot.Get(snapshot.GetTree().Answer(culture, source))) {
                AddNumbers(*texts);
            }
        }
    }

    void Resolve(std::u16string_view name, engine::Resolving::ResolvedText& output) override {
        const std::string param = host::ToUtf8(name);
        const auto sample = samples_.find(param);
        const bool isNumber = sample == samples_.end() && numbers_.count(param) != 0;
        usesNumber_ = usesNumber_ || isNumber;
        output.Append(FromUtf8(isNumber                   ? number_
                               : sample != samples_.end() ? sample->second
                                                          : "\u2039" + param + "\u203A"));
    }

    void Begin(std::uint64_t number) {
        number_ = std::to_string(number);
        usesNumber_ = false;
    }
    bool UsesNumber() const noexcept { return usesNumber_; }

private:
    void AddNumbers(const lm_source::Document& texts) {
        for (const lm_source::Entry& entry : texts.Entries()) {
            for (const lm_source::Operand& operand : texts.OperandsOf(entry)) {
                if (operand.kind == lm_source::OperandKind::PluralForm) {
                    numbers_.emplace(texts.Name(operand));
                }
            }
        }
    }

    const std::map<std::string, std::string>& samples_;
    std::set<std::string> numbers_;  // parameters that choose forms
    std::string number_;
    bool usesNumber_ = false;
};

Engine::Engine(const Snapshot& snapshot, const CultureName& culture, const std::string& scope)
    : params_(boost::make_shared<Params>(snapshot, culture, scope)),
      pipeline_(std::make_unique<engine::Pipeline::BufferProcessingPipeline>(
          boost::make_shared<Sources>(snapshot, culture), params_, *culture.culture,
          FromUtf8(scope), engine::Pipeline::kCommonResourceName)) {}

Engine::~Engine() = default;

Engine::Answer Engine::Ask(const std::string& key, std::uint64_t number) {
    params_->Begin(number);
    try {
        engine::Resolving::ResolvedText text;
        pipeline_->GetString(FromUtf8(key), nullptr, text);
        return {true, host::ToUtf8(text.view()), params_->UsesNumber()};
    } catch (const std::exception& error) {
        return {false, host::Shortened(error.what()), params_->UsesNumber()};
    }
}

}  // namespace lm_lsp
