// The everyday handle of the host kit, and what a host writes by hand in its place: both take and give
// UTF-8, with parameters that belong to the request.
#include "localization_manager/host/Texts.h"

#include "Module.h"
#include "localization_manager/host/ParamResolver.h"

namespace lm_bench {

namespace lm = localization_manager;
namespace host = localization_manager::host;

namespace {

thread_local std::string kept;
thread_local const Request* current_request = nullptr;

/// Over the module's tree, where `kModule` has written it.
class Utf8System : public System {
public:
    std::string Kept() const override { return kept; }
};

class TextsSystem : public Utf8System {
public:
    explicit TextsSystem(const std::filesystem::path& tree) : texts_(tree.string(), "main", "ru") {}

    void Answer(const Request& request) override {
        switch (request.kind) {
            case Kind::Plain:
                kept = texts_(request.key);
                break;
            case Kind::Parameter:
                kept = texts_(request.key, {{"name", request.parameter}});
                break;
            case Kind::Plural:
                kept = texts_(request.key, {{"count", request.number}});
                break;
        }
    }

private:
    host::Texts texts_;
};

class ByHandSystem : public Utf8System {
public:
    explicit ByHandSystem(const std::filesystem::path& tree) {
        const auto resolver = host::Make<host::ParamResolver>([](const std::string& name) {
            return std::optional(name == "name" ? current_request->parameter
                                                : std::to_string(current_request->number));
        });
        const lm::Culture culture{lm::Language::Russian, {}, {}};
        host::Check(
            OpenManager(tree)->CreateLocalizer(u"main", culture, resolver.get(), localizer_.Ref()),
            "cannot create a localizer");
    }

    void Answer(const Request& request) override {
        current_request = &request;
        qor::string16_t text;
        host::Check(localizer_->GetString(host::ToString16(request.key), text),
                    "cannot get a text");
        kept = host::ToUtf8(text);
    }

private:
    qor::objptr_t<lm::ILocalizer> localizer_;
};

template <class Opened>
std::unique_ptr<System> Open(const std::filesystem::path& directory) {
    return std::make_unique<Opened>(directory);
}

std::filesystem::path File(const std::filesystem::path& directory) {
    return kModule.file(directory);
}

void Write(const std::filesystem::path& directory, const Workload& workload) {
    kModule.write(directory, workload);
}

}  // namespace

const SystemType kTexts{"Texts", File, Write, Open<TextsSystem>};
const SystemType kByHand{"by hand", File, Write, Open<ByHandSystem>};

}  // namespace lm_bench
