// ICU: texts out of a resource bundle, formatted by MessageFormat with patterns that are parsed at
// every request, or beforehand.
#include <unicode/fieldpos.h>
#include <unicode/msgfmt.h>
#include <unicode/resbund.h>

#include <algorithm>
#include <stdexcept>
#include <unordered_map>

#include "System.h"
#include "gettext_catalogue.h"

namespace lm_bench {

namespace {

thread_local icu::UnicodeString kept;

std::filesystem::path File(const std::filesystem::path& directory) {
    return directory / "ru.res";
}

std::string PatternText(const Message& message) {
    const auto& forms = message.forms;
    if (message.kind != Kind::Plural) {
        const char* const gap = message.kind == Kind::Parameter ? "{0}" : "";
        return forms[0].before + gap + forms[0].after;
    }
    std::string text = "{0, plural,";
    for (const auto& [name, index] :
         {std::pair("one", 0U), {"few", 1U}, {"many", 2U}, {"other", 2U}}) {
        text +=
            std::string(" ") + name + " {" + forms[index].before + '#' + forms[index].after + '}';
    }
    return text + '}';
}

void Write(const std::filesystem::path& directory, const Workload& workload) {
    const std::filesystem::path compiled = File(directory);
    // Genrb keeps a sorted list that it searches from the front, so the last key comes first.
    std::vector<const Message*> order;
    for (const Message& message : workload.Messages()) {
        order.push_back(&message);
    }
    std::sort(order.begin(), order.end(),
              [](const Message* left, const Message* right) { return left->key > right->key; });
    std::string source = "ru {\n";
    for (const Message* message : order) {
        source += '"' + message->key + "\" { \"" + PatternText(*message) + "\" }\n";
    }
    WriteFile(compiled.parent_path() / "ru.txt", source + "}\n");
    Run("genrb --quiet --encoding UTF-8 --destdir " + compiled.parent_path().string() + ' ' +
        (compiled.parent_path() / "ru.txt").string());
}

void Check(UErrorCode status) {
    if (U_FAILURE(status) != 0) {
        throw std::runtime_error(std::string("ICU: ") + u_errorName(status));
    }
}

class Icu : public System {
public:
    explicit Icu(const std::filesystem::path& directory)
        : bundle_(directory.c_str(), locale_, status_) {
        Check(status_);
    }

    void Answer(const Request& request) override {
        UErrorCode status = U_ZERO_ERROR;
        const icu::UnicodeString text =
            bundle_.getStringEx(request.key.c_str(), status);  // lives in the bundle
        if (request.kind == Kind::Plain) {
            kept.setTo(text.getBuffer(), text.length());
        } else {
            Keep(icu::MessageFormat(text, locale_, status), request);
        }
        Check(status);
    }

    std::string Kept() const override {
        std::string text;
        return kept.toUTF8String(text);
    }

protected:
    static void Keep(const icu::MessageFormat& format, const Request& request) {
        UErrorCode status = U_ZERO_ERROR;
        const icu::Formattable argument =
            request.kind == Kind::Plural
                ? icu::Formattable(request.number)
                : icu::Formattable(
                      icu::UnicodeString(false, request.parameter16.data(),
                                         static_cast<std::int32_t>(request.parameter16.size())));
        icu::FieldPosition unused;
        kept.remove();
        format.format(&argument, 1, kept, unused, status);
        Check(status);
    }

    icu::Locale locale_{"ru"};
    UErrorCode status_ = U_ZERO_ERROR;
    icu::ResourceBundle bundle_;
};

class IcuParsed : public Icu {
public:
    explicit IcuParsed(const std::filesystem::path& directory) : Icu(directory) {
        while (bundle_.hasNext() != 0) {
            const icu::ResourceBundle entry = bundle_.getNext(status_);
            const icu::UnicodeString pattern = entry.getString(status_);
            if (pattern.indexOf(u'{') >= 0) {
                formats_.emplace(entry.getKey(), icu::MessageFormat(pattern, locale_, status_));
            }
        }
        Check(status_);
    }

    void Answer(const Request& request) override {
        const auto format = formats_.find(request.key);
        if (format == formats_.end()) {
            Icu::Answer(request);
        } else {
            Keep(format->second, request);
        }
    }

private:
    std::unordered_map<std::string, icu::MessageFormat> formats_;
};

template <class SystemClass>
std::unique_ptr<System> Open(const std::filesystem::path& directory) {
    return std::make_unique<SystemClass>(directory);
}

}  // namespace

const SystemType kIcu{"ICU", File, Write, Open<Icu>};
const SystemType kIcuParsed{"ICU, patterns parsed before", File, Write, Open<IcuParsed>};

}  // namespace lm_bench
