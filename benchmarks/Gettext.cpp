// GNU gettext of the C library. Its catalogues stay loaded until the process ends.
#include <libintl.h>

#include <array>
#include <cstdio>

#include "System.h"
#include "gettext_catalogue.h"

namespace lm_bench {

namespace {

thread_local std::string kept;

class Gettext : public System {
public:
    explicit Gettext(const std::filesystem::path& directory) {
        bindtextdomain(kGettextDomain, directory.c_str());
    }

    void Answer(const Request& request) override {
        const char* const key = request.key.c_str();
        switch (request.kind) {
            case Kind::Plain:
                kept = dgettext(kGettextDomain, key);
                break;
            case Kind::Parameter:
                Keep(dgettext(kGettextDomain, key), request.parameter.c_str());
                break;
            case Kind::Plural:
                Keep(
                    dngettext(kGettextDomain, key, key, static_cast<unsigned long>(request.number)),
                    request.number);
                break;
        }
    }

    std::string Kept() const override { return kept; }

private:
    template <class Argument>
    static void Keep(const char* format, Argument argument) {
        std::array<char, 1024> text;
        const int length = std::snprintf(text.data(), text.size(), format, argument);
        kept.assign(text.data(), static_cast<std::size_t>(length));
    }
};

std::unique_ptr<System> Open(const std::filesystem::path& directory) {
    return std::make_unique<Gettext>(directory);
}

}  // namespace

const SystemType kGettext{"gettext", GettextFile, WriteGettextCatalogue, Open};

}  // namespace lm_bench
