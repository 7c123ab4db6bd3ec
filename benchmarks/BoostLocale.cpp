// Boost.Locale, over the compiled catalogues of gettext: translation without formatting. Narrow texts
// it takes out of the file as it lies in memory; wide ones it converts when it loads the file.
#include <boost/locale.hpp>

#include "System.h"
#include "gettext_catalogue.h"

namespace lm_bench {

namespace {

namespace locale = boost::locale;

thread_local std::string kept;
thread_local std::wstring kept_wide;

template <class Char>
auto Translate(const Char* key, const Request& request, const std::locale& in) {
    return request.kind == Kind::Plural ? locale::translate(key, key, request.number).str(in)
                                        : locale::translate(key).str(in);
}

class BoostLocale : public System {
public:
    explicit BoostLocale(const std::filesystem::path& directory,
                         locale::character_facet_type characters = locale::char_facet) {
        locale::generator generator;
        // Messages alone: loading should not pay for collation, calendars and the like.
        generator.categories(locale::message_facet);
        generator.characters(characters);
        generator.add_messages_path(directory.string());
        generator.add_messages_domain(kGettextDomain);
        locale_ = generator("ru_RU.UTF-8");
    }

    void Answer(const Request& request) override {
        kept = Translate(request.key.c_str(), request, locale_);
    }

    std::string Kept() const override { return kept; }

    std::string Expected(const Request& request) const override {
        const char* const gaps[] = {"", "%s", "%d"};
        const Pattern& form = request.Form();
        return form.before + gaps[static_cast<std::size_t>(request.kind)] + form.after;
    }

protected:
    std::locale locale_;
};

class BoostLocaleWide : public BoostLocale {
public:
    explicit BoostLocaleWide(const std::filesystem::path& directory)
        : BoostLocale(directory, locale::wchar_t_facet) {}

    void Answer(const Request& request) override {
        const std::wstring key(request.key.begin(), request.key.end());
        kept_wide = Translate(key.c_str(), request, locale_);
    }

    std::string Kept() const override { return locale::conv::utf_to_utf<char>(kept_wide); }
};

template <class SystemClass>
std::unique_ptr<System> Open(const std::filesystem::path& directory) {
    return std::make_unique<SystemClass>(directory);
}

}  // namespace

const SystemType kBoostLocale{"Boost.Locale", GettextFile, WriteGettextCatalogue,
                              Open<BoostLocale>};
const SystemType kBoostLocaleWide{"Boost.Locale, wide texts", GettextFile, WriteGettextCatalogue,
                                  Open<BoostLocaleWide>};

}  // namespace lm_bench
