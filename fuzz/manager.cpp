// Fuzzes a whole manager over texts in memory, with a host whose parameter resolver is hostile.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>

#include "FakeServiceLocator.h"
#include "Input.h"
#include "LocalizationManager.h"
#include "localization_manager/host/ErrorListener.h"
#include "localization_manager/host/ResolveListener.h"
#include "qor/rtl/object_model/LocatorObjectFactory.h"

namespace {

namespace lm = localization_manager;
using lm::host::Make;
using lm_fuzz::Require;
using Manager = qor::ComponentObject<lm::LocalizationManager>;

/// What "%%" separates: texts of the scope, common texts, parameters, culture.
std::array<std::u16string, 4> Parts(std::u16string_view text) {
    std::array<std::u16string, 4> parts;
    for (std::u16string& part : parts) {
        part = text.substr(0, text.find(u"%%"));
        text.remove_prefix(std::min(part.size() + 2, text.size()));
    }
    return parts;
}

/// One of the texts that "|" separates, told by the last letter of the parameter's name.
std::u16string_view ParameterText(std::u16string_view texts, std::u16string_view name) {
    auto before = name.back() % (1 + std::count(texts.begin(), texts.end(), u'|'));
    for (; before > 0; --before) {
        texts.remove_prefix(texts.find(u'|') + 1);
    }
    return texts.substr(0, texts.find(u'|'));
}

/// The first unit of a text says what it does: "!" refuses, "?" throws, "&" asks the localizer.
class HostileResolver : public lm::host::HostObject<lm::IParamResolver> {
public:
    explicit HostileResolver(std::u16string_view texts) : texts_(texts) {}

    /// To be asked back, once.
    lm::ILocalizer* localizer = nullptr;

    qor::result_t Resolve(const qor::string16_t& name, qor::string16_t& result) override {
        const std::u16string_view text = ParameterText(texts_, name.view());
        result = text;
        const char16_t deed = text.empty() ? u' ' : text[0];
        if (deed == u'?') {
            throw std::runtime_error("the host fails");
        }
        if (deed == u'&' && localizer != nullptr) {
            return std::exchange(localizer, nullptr)
                ->GetResolvedString(qor::string16_t(text.substr(1)), result, nullptr);
        }
        return deed == u'!' ? static_cast<qor::result_t>(0x80000000U + text.size()) : qor::rcOk;
    }

private:
    std::u16string_view texts_;
};

/// The text or the report of a request.
std::string Ask(lm::ILocalizer& localizer, const qor::string16_t& key, HostileResolver& resolver,
                std::string& reports) {
    reports.clear();
    resolver.localizer = &localizer;
    std::string heard;
    const auto listener = Make<lm::host::ResolveListener>(
        [&heard](auto, const auto&, const auto&, const std::string& value) { heard = value; });
    qor::string16_t text(u"untouched");
    const qor::result_t code = localizer.GetResolvedString(key, text, listener.get());
    if (code == qor::rcOk) {
        Require(heard == lm::host::ToUtf8(text), "the listener hears the text last");
        Require(localizer.HasString(key) == qor::rcOk, "a key with a text is there");
    } else {
        Require(code == qor::rcUnspecifiedError && !reports.empty(), "failures are reported");
        Require(text.view() == u"untouched", "failures leave the text");
    }
    return lm::host::ToUtf8(text) + reports;
}

/// Makes localizers of each kind and asks them.
void Try(const std::array<std::u16string, 4>& input, qor::IServiceLocator& services) {
    std::string reports;
    const auto listener = Make<lm::host::ErrorListener>(
        [&reports](auto, std::string_view text) { reports.append(text) += '\n'; });
    const auto resolver = Make<HostileResolver>(input[2]);
    qor::objptr_t<Manager> manager;
    Require(Manager::CreateInstance(&services, manager.Ref()) == qor::rcOk, "creation works");
    Require(manager->InitEx(lm::host::ToString16(SAMPLES), {}, listener) == qor::rcOk,
            "initialisation works");

    lm::Culture culture;
    culture.language = static_cast<lm::Language>((input[3] + u'0')[0] % 40);  // some are none
    culture.region = std::string_view(lm::host::ToUtf8(input[3].substr(!input[3].empty())));
    const qor::string16_t buffer(input[0]);
    const qor::string16_t common(input[1]);
    for (const bool isShared : {false, true}) {
        qor::objptr_t<lm::ILocalizer> localizer;
        const qor::result_t code =
            isShared ? manager->CreateLocalizerFromBuffer(buffer, culture, resolver.get(),
                                                          localizer.Ref())
                     : manager->CreateBufferLocalizer({}, buffer, common, culture, resolver.get(),
                                                      localizer.Ref());
        Require(code == qor::rcOk, "a localizer is made");
        for (const char16_t* const key : {u"A", u"button.ok"}) {
            const std::string first = Ask(*localizer, key, *resolver, reports);
            Require(Ask(*localizer, key, *resolver, reports) == first, "requests repeat");
        }
    }
    manager = nullptr;
    Require(lm_test::References(*resolver) == 1, "the resolver is given back");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    testing::FLAGS_gtest_break_on_failure = true;  // the allocator expects its own blocks back
    const auto services = Make<lm_test::FakeServiceLocator>();
    Try(Parts(lm_fuzz::Decode(data, size)), *services);
    Require(services->allocator->Live() == 0, "all memory is given back");
    Require(qor::ModuleLockCount::Get() == 0, "all objects are gone");
    Require(lm_test::References(*services) == 1, "the services are given back");
    return 0;
}
