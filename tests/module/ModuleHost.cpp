#include "ModuleHost.h"

#include <fstream>
#include <regex>
#include <stdexcept>

namespace lm_test {

namespace {

const host::Module& LoadedModule() {
    static const host::Module module(MODULE);
    return module;
}

/// What the file lists for the present test, below a line with the test's name.
std::string ListedReports() {
    if (testing::Test::IsSkipped()) {
        return "";
    }
    const std::string test = testing::UnitTest::GetInstance()->current_test_info()->name();
    const std::string heading = "== " + test.substr(0, test.find('/'));
    std::ifstream file(REPORTS);
    std::string listed;
    bool listing = false;
    for (std::string line; std::getline(file, line);) {
        listing = line.rfind("== ", 0) == 0 ? line == heading : listing;
        listed += listing && line != heading ? line + '\n' : "";
    }
    return listed;
}

}  // namespace

Culture MakeCulture(int language, const char* region, const char* variant) {
    return {static_cast<Language>(language), region, variant};
}

ModuleHost::ModuleHost() : module(LoadedModule()), manager(MakeManager()) {}

ModuleHost::~ModuleHost() {
    manager = nullptr;
    EXPECT_TRUE(module.CanUnload());
    EXPECT_EQ(allocator.Live(), 0);
    EXPECT_EQ(References(*listener) + References(*params), 2U);
    ExpectHeldBy(0);
    EXPECT_EQ(Shown(TakeReports() + services->tracer->TakeRecords()), ListedReports());
}

void* ModuleHost::FindExport(const char* name) {
    static void* const library = qor::platform::OpenSharedLibrary(MODULE);
    return qor::platform::FindInSharedLibrary(library, name);
}

qor::result_t ModuleHost::Init(const std::u16string& root, const std::u16string& alternative,
                               const qor::objptr_t<host::ErrorListener>& reportsTo) const {
    const qor::string16_t rootText(root);
    const qor::string16_t alternativeText(alternative);
    return reportsTo ? manager->InitEx(rootText, alternativeText, reportsTo)
                     : manager->Init(rootText, alternativeText);
}

qor::objptr_t<ILocalizationManager> ModuleHost::MakeManager() const {
    return module.Create<ILocalizationManager>(class_id::LocalizationManager, *services);
}

qor::objptr_t<host::ErrorListener> ModuleHost::MakeListener() {
    return Make<Unordered<host::ErrorListener>>([this](std::uint32_t level, std::string_view text) {
        EXPECT_EQ(level, qor::trace_level::Error);
        const std::lock_guard<std::mutex> lock(turn_);
        reports_.append(text).append("\n");
        throw std::runtime_error("nobody hears");
    });
}

qor::result_t ModuleHost::CreateLocalizer(Kind kind, std::u16string_view scopeOrText,
                                          const Culture& culture, IParamResolver* resolver,
                                          ILocalizer** out, std::u16string_view commonText) const {
    const qor::string16_t text(scopeOrText);
    switch (kind) {
        case Kind::File:
            return manager->CreateLocalizer(text, culture, resolver, out);
        case Kind::Buffer:
            return manager->CreateLocalizerFromBuffer(text, culture, resolver, out);
        default:
            return manager->CreateBufferLocalizer(u"x_", text, qor::string16_t(commonText), culture,
                                                  resolver, out);
    }
}

qor::objptr_t<ILocalizer> ModuleHost::MakeLocalizer(std::u16string_view scope,
                                                    const Culture& culture) const {
    qor::objptr_t<ILocalizer> localizer;
    host::Check(CreateLocalizer(Kind::File, scope, culture, params.get(), localizer.Ref()),
                "cannot make a localizer");
    return localizer;
}

std::u16string ModuleHost::Get(ILocalizer& localizer, const char16_t* key) {
    qor::string16_t text;
    EXPECT_EQ(localizer.GetString(key, text), qor::rcOk);
    return std::u16string(text.view());
}

void ModuleHost::ExpectHeldBy(std::uint32_t objects) const {
    EXPECT_EQ(References(*services), 1 + objects);
    EXPECT_EQ(References(allocator), 1 + objects);
    EXPECT_EQ(References(*services->tracer), 1 + objects);
}

std::string ModuleHost::Shown(std::string text) const {
    // Paths below the root, with one kind of separator; as they would be regular expressions of their own,
    // they are not replaced by one.
    const std::string root = tree.Root().u8string();
    for (std::size_t at = 0; (at = text.find(root, at)) != std::string::npos;) {
        text.replace(at, root.size(), "<root>");
        for (; at < text.size() && text.find_first_of("' \n|", at) != at; ++at) {
            text[at] = text[at] == '\\' ? '/' : text[at];
        }
    }
    for (const auto& [pattern, word] : replaced) {
        text = std::regex_replace(text, std::regex(pattern), word);
    }
    return text;
}

}  // namespace lm_test
