#include "KeyResolver.h"

#include <boost/current_function.hpp>
#include <boost/format.hpp>
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
using Model::OperandKind;

/// The form at an index, of as many as are expected.
Model::ValueView FormOf(const Model::OperandView& pluralForm, std::size_t index,
                        std::size_t expected) {
    Model::ValueView form({});
    std::size_t count = 0;
    ForEachForm(pluralForm, [&](Model::ValueView next) {
        form = count == index ? next : form;
        ++count;
    });
    if (count != expected) {
        boost::format text(
            "Invalid plural form count (expected: %1%, got: %2%, discriminator: %3%)",
            std::locale::classic());
        throw std::logic_error((text % expected % count % Text::ToUtf8(pluralForm.text)).str());
    }
    return form;
}

/// Appends the texts of operands.
class OperandResolver {
public:
    OperandResolver(IParamResolver& paramResolver, IPluralResolver& pluralResolver,
                    IResolveListener* listener, ResolvedText& output)
        : paramResolver_(paramResolver),
          pluralResolver_(pluralResolver),
          listener_(listener),
          output_(output) {}

    void ResolveAll(Model::ValueView value) {
        for (const Model::OperandView& operand : value) {
            switch (operand.kind) {
                case OperandKind::Text:
                    output_.AppendLasting(operand.text);
                    break;
                case OperandKind::KeyRef:
                    throw std::logic_error("Key reference found (" + Text::ToUtf8(operand.text) +
                                           "). Run compiler first");
                case OperandKind::Param:
                    ResolveParam(operand);
                    break;
                case OperandKind::PluralForm:
                    ResolvePluralForm(operand);
                    break;
            }
        }
    }

private:
    void ResolveParam(const Model::OperandView& param) {
        const qor::string16_t name(param.text);
        const qor::string16_t text = paramResolver_.Resolve(name);
        Notify(listener_, ResolveKind::Param, {}, param.text, text.view());
        output_.Append(text.view());
    }

    void ResolvePluralForm(const Model::OperandView& pluralForm) {
        const std::uint16_t index = pluralResolver_.Resolve(qor::string16_t(pluralForm.text));
        const Model::ValueView form = FormOf(pluralForm, index, pluralResolver_.GetFormCount());
        const std::size_t start = output_.size();
        ResolveAll(form);
        Notify(listener_, ResolveKind::PluralForm, {}, pluralForm.text,
               output_.view().substr(start));
    }

    IParamResolver& paramResolver_;
    IPluralResolver& pluralResolver_;
    IResolveListener* listener_;
    ResolvedText& output_;
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

ResolvedText KeyResolver::Resolve(Model::ValueView value, IResolveListener* listener) {
    const qor::objptr_t<IResolveListener> held(listener);
    ResolvedText output;
    OperandResolver(*paramResolver_, *pluralResolver_, listener, output).ResolveAll(value);
    return output;
}

}  // namespace LocalizationManager::StringLocalizing::Resolving
