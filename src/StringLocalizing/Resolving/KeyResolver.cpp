#include "KeyResolver.h"

#include <boost/current_function.hpp>
#include <boost/format.hpp>
#include <locale>
#include <stdexcept>
#include <utility>

#include "MessageUtf8.h"
#include "qor/rtl/contracts/checks.h"

namespace LocalizationManager::StringLocalizing::Resolving {

namespace {

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

[[noreturn]] void ThrowKeyReference(std::u16string_view key) {
    throw std::logic_error("Key reference found (" + Text::ToUtf8(key) + "). Run compiler first");
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
        for (std::u16string_view rest = value.code(); !rest.empty();) {
            const Model::OperandView operand = Model::TakeOperand(rest);
            switch (operand.kind) {
                case OperandKind::Text:
                    output_.AppendLasting(operand.text);
                    break;
                case OperandKind::KeyRef:
                    ThrowKeyReference(operand.text);
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
        const std::size_t start = output_.size();
        paramResolver_.Resolve(param.text, output_);
        Notify(ResolveKind::Param, param.text, start);
    }

    void ResolvePluralForm(const Model::OperandView& pluralForm) {
        const std::uint16_t index = pluralResolver_.Resolve(pluralForm.text);
        const Model::ValueView form = FormOf(pluralForm, index, pluralResolver_.GetFormCount());
        const std::size_t start = output_.size();
        ResolveAll(form);
        Notify(ResolveKind::PluralForm, pluralForm.text, start);
    }

    /// @param start  of the text that was put in place, in the output.
    void Notify(ResolveKind kind, std::u16string_view name, std::size_t start) {
        if (listener_ != nullptr) {
            listener_->OnResolved(kind, {}, name, output_.view().substr(start));
        }
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

void KeyResolver::Resolve(Model::ValueView value, IResolveListener* listener,
                          ResolvedText& output) {
    OperandResolver(*paramResolver_, *pluralResolver_, listener, output).ResolveAll(value);
}

}  // namespace LocalizationManager::StringLocalizing::Resolving
