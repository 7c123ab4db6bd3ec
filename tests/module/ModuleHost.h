// A host of the built module, which keeps books of what it gives and hears.
#pragma once

#include <gtest/gtest.h>

#include <mutex>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "FakeServiceLocator.h"
#include "TempTree.h"
#include "localization_manager/host/host.h"

namespace lm_test {

using namespace localization_manager;

/// The operations that make localizers; texts are in a file, in one buffer, or in two.
enum class Kind { File, Buffer, Buffers };

Culture MakeCulture(int language, const char* region = "", const char* variant = "");

/// Expects that an exception leaves a call of the module, or its code where none passes.
template <class Exception, class Call>
void ExpectLeavesOr(qor::result_t code, Call call) {
    if constexpr (qor::platform::kExceptionsPass) {
        EXPECT_THROW(call(), Exception);
    } else {
        EXPECT_EQ(call(), code);
    }
}

/// Everything must have been given back in the end, and reported and traced what the file of reports
/// lists for the test.
class ModuleHost : public testing::Test {
protected:
    ModuleHost();
    ~ModuleHost() override;

    /// A function that the module exports.
    template <class Function>
    static Function Export(const char* name) {
        return reinterpret_cast<Function>(FindExport(name));
    }

    /// `InitEx` with a listener, `Init` without.
    qor::result_t Init(const std::u16string& root, const std::u16string& alternative = u"",
                       const qor::objptr_t<host::ErrorListener>& reportsTo = nullptr) const;

    qor::objptr_t<ILocalizationManager> MakeManager() const;

    /// A listener that reports as all do, and fails.
    qor::objptr_t<host::ErrorListener> MakeListener();

    /// @param scopeOrText  the name of the scope, or its text in memory, whose name then begins with
    ///                     "x_" if that can be chosen.
    qor::result_t CreateLocalizer(Kind kind, std::u16string_view scopeOrText,
                                  const Culture& culture, IParamResolver* resolver,
                                  ILocalizer** out, std::u16string_view commonText = u"") const;
    qor::objptr_t<ILocalizer> MakeLocalizer(std::u16string_view scope,
                                            const Culture& culture = MakeCulture(8)) const;

    /// The text of a key that must have one.
    static std::u16string Get(ILocalizer& localizer, const char16_t* key);

    /// Expects that so many objects of the module hold each service, and the locator, once.
    void ExpectHeldBy(std::uint32_t objects) const;

    std::string TakeReports() { return std::exchange(reports_, ""); }

    /// A text without what differs from run to run.
    std::string Shown(std::string text) const;

    const host::Module& module;
    const qor::objptr_t<FakeServiceLocator> services = Make<FakeServiceLocator>();
    FakeAllocator& allocator = *services->allocator;
    const TempTree tree;
    const qor::objptr_t<host::ErrorListener> listener = MakeListener();
    const qor::objptr_t<host::ParamMap> params = Make<host::ParamMap>();
    qor::objptr_t<ILocalizationManager> manager;
    /// What differs from run to run, and what is shown for it.
    std::vector<std::pair<std::string, std::string>> replaced = {
        {"' at .* at (src|source)", "' at <function> at $1"},
        {"\xED\xA0\xBD\xED\xB8\x80", "<D83D><DE00>"},  // as no valid UTF-8 file could hold it
        {"[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}", "<uuid>"}};

private:
    static void* FindExport(const char* name);

    std::mutex turn_;
    std::string reports_;
};

}  // namespace lm_test
