#include "KeyResolver.h"

#include <boost/current_function.hpp>
#include <boost/format.hpp>
#include <boost/variant/apply_visitor.hpp>
#include <boost/variant/static_visitor.hpp>
#include <locale>
#include <stdexcept>
#include <utility>

#include "Notify.h"
#include "Utf8.h"
#include "qor/objptr_t.h"
#include "qor/rtl/contracts/checks.h"

namespace LocalizationManager::StringLocalizing::Resolving {

namespace {

using localization_manager::IResolveListener;
using localization_manager::ResolveKind;

void CheckFormCount(std::size_t expected, const Model::PluralForm& pluralForm) {
    if (pluralForm.forms.size() != expected) {
        boost::format text(
            "Invalid plural form count (expected: %1%, got: %2%, discriminator: %3%)",
            std::locale::classic());
        text % expected % pluralForm.forms.size() % Text::ToUtf8(pluralForm.paramName);
        throw std::logic_error(text.str());
    }
}

/// Appends the text of each operand it visits.
class OperandResolver : public boost::static_visitor<> {
public:
    OperandResolver(IParamResolver& paramResolver, IPluralResolver& pluralResolver,
                    IResolveListener* listener, std::u16string& output)
        : paramResolver_(paramResolver),
          pluralResolver_(pluralResolver),
          listener_(listener),
          output_(output) {}

    void ResolveAll(const Model::Value& value) {
        for (const Model::Operand& operand : value.operands) {
            boost::apply_visitor(*this, operand);
        }
    }

    void operator()(const std::u16string& text) { output_ += text; }

    void operator()(const Model::KeyRef& ref) {
        throw std::logic_error("Key reference found (" + Text::ToUtf8(ref.key) +
                               "). Run compiler first");
    }

    void operator()(const Model::Param& param) {
        const std::u16string text = paramResolver_.Resolve(param.name);
        Notify(listener_, ResolveKind::Param, {}, param.name, text);
        output_ += text;
    }

    void operator()(const Model::PluralForm& pluralForm) {
        const std::uint16_t index = pluralResolver_.Resolve(pluralForm.paramName);
        CheckFormCount(pluralResolver_.GetFormCount(), pluralForm);
        const std::size_t start = output_.size();
        ResolveAll(pluralForm.forms[index]);
        Notify(listener_, ResolveKind::PluralForm, {}, pluralForm.paramName,
               std::u16string_view(output_).substr(start));
    }

private:
    IParamResolver& paramResolver_;
    IPluralResolver& pluralResolver_;
    IResolveListener* listener_;
    std::u16string& output_;
};

}  // namespace

KeyResolver::KeyResolver(boost::shared_ptr<IParamResolver> paramResolver,
                         boost::shared_ptr<IPluralResolver> pluralResolver)
    : paramResolver_(std::move(paramResolver)), pluralResolver_(std::move(pluralResolver)) {
    code_contracts::RequireNotNull(paramResolver_,
                                   {"paramResolver", BOOST_CURRENT_FUNCTION, __FILE__, __LINE__});
    code_contracts::RequireNotNull(pluralResolver_,
                                   {"pluralResolver", BOOST_CURRENT_FUNCTION, __FILE__, __LINE__});
}

std::u16string KeyResolver::Resolve(const Model::Value& value, IResolveListener* listener) {
    const qor::objptr_t<IResolveListener> held(listener);
    std::u16string output;
    OperandResolver(*paramResolver_, *pluralResolver_, listener, output).ResolveAll(value);
    return output;
}

}  // namespace LocalizationManager::StringLocalizing::Resolving
