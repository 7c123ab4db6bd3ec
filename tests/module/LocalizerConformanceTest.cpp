// What every kind of localizer answers, and reports when it cannot, in every locale.
#include <fstream>
#include <initializer_list>
#include <iomanip>
#include <map>
#include <sstream>
#include <stdexcept>
#include <tuple>

#include "GlobalLocale.h"
#include "ModuleHost.h"
#include "SystemTraits.h"

namespace {

using namespace lm_test;
using host::ToUtf16;
using qor::string16_t;

/// The resolver and the resolve listener. While they are called, the host uses the string of the key
/// for something else. They answer a success other than `rcOk`, and a failure that nobody asks for.
class Callbacks : public host::HostObject<IParamResolver, IResolveListener> {
public:
    explicit Callbacks(const qor::IAllocator& memory) : memory_(memory) {}

    std::map<std::string, std::string> params = {{"one", "1"}, {"word", "x"}, {"Who", "Ada"}};
    string16_t key;
    std::uint32_t references = 0;  // outside of requests
    std::string heard, last;

    qor::result_t Resolve(const string16_t& name, string16_t& result) override {
        ExpectOwn({&name, &result});
        EXPECT_EQ(References(*this), references + 1) << "a listener is held during a request";
        key = u"something else";
        const auto found = params.find(host::ToUtf8(name));
        if (params["n"] == "throws") {
            throw std::runtime_error("host failed");
        }
        result = found != params.end() ? ToUtf16(found->second) : u"";
        return found != params.end() ? qor::rcFalse : qor::rcNotFound;
    }

    qor::result_t OnResolved(ResolveKind kind, const string16_t& source, const string16_t& name,
                             const string16_t& value) override {
        ExpectOwn({&source, &name, &value});
        last = host::ToUtf8(value);
        heard += std::to_string(static_cast<int>(kind)) + ' ' + host::ToUtf8(source) + '|' +
                 host::ToUtf8(name) + '|' + last + '\n';
        return last != "throws" ? qor::rcUnspecifiedError : throw std::runtime_error("host failed");
    }

private:
    void ExpectOwn(std::initializer_list<const string16_t*> texts) const {
        for (const string16_t* const text : texts) {
            EXPECT_EQ(text->get_allocator().source(), &memory_);
        }
    }

    const qor::IAllocator& memory_;
};

/// The parameters: which operation of the manager makes the localizer, and the global locale.
class LocalizerConformanceTest : public ModuleHost,
                                 public testing::WithParamInterface<std::tuple<Kind, const char*>> {
protected:
    LocalizerConformanceTest() {
        EXPECT_EQ(Init(tree.Path(), tree.Path(), listener), qor::rcOk);
        replaced.emplace_back(kind_ == Kind::File      ? "<root>/neutral/Locs/app.lt|\\bapp\\b"
                              : kind_ == Kind::Buffers ? "x_<uuid>"
                                                       : "<uuid>",
                              "<scope>");
        replaced.emplace_back(kind_ == Kind::Buffers ? ":400D" : ":265D", ":<line>D");
        replaced.emplace_back("\n", "\u240A");
    }

    qor::objptr_t<ILocalizer> Make(const std::string& source, const Culture& culture,
                                   IParamResolver* resolver) {
        tree.Write("neutral/Locs/app.lt", kind_ == Kind::File ? source : "never read");
        qor::objptr_t<ILocalizer> made;
        EXPECT_EQ(CreateLocalizer(kind_, kind_ == Kind::File ? u"app" : ToUtf16(source), culture,
                                  resolver, made.Ref()),
                  qor::rcOk);
        return made;
    }

    /// What the listeners hear of a request for a text.
    std::string Answer(ILocalizer& localizer, const std::string& key) {
        const string16_t sameKey = host::ToString16(key);
        callbacks_->key = sameKey;
        callbacks_->heard.clear();
        callbacks_->references = References(*callbacks_);
        string16_t text(u"before");
        const qor::result_t code =
            localizer.GetResolvedString(callbacks_->key, text, callbacks_.get());
        const std::string report = TakeReports();
        EXPECT_EQ(code, report.empty() ? qor::rcOk : qor::rcUnspecifiedError);
        EXPECT_EQ(host::ToUtf8(text), report.empty() ? callbacks_->last : "before");
        EXPECT_EQ(References(*callbacks_), callbacks_->references);
        const bool isThere = localizer.HasString(sameKey) == qor::rcOk;
        const std::string again = TakeReports();
        EXPECT_EQ(again, again.empty() ? "" : report);
        return callbacks_->heard + report + (isThere ? "" : again.empty() ? "(no key)" : "(again)");
    }

    const Kind kind_ = std::get<0>(GetParam());
    const GlobalLocale locale_{std::get<1>(GetParam())};
    const qor::objptr_t<Callbacks> callbacks_ = lm_test::Make<Callbacks>(allocator);
};

std::vector<const char*> Locales() {
    return kSharesLocales ? std::vector{"C", "en_US.UTF-8"} : std::vector{"C"};
}

INSTANTIATE_TEST_SUITE_P(FileBufferAndBuffers, LocalizerConformanceTest,
                         testing::Combine(testing::Values(Kind::File, Kind::Buffer, Kind::Buffers),
                                          testing::ValuesIn(Locales())));

TEST_P(LocalizerConformanceTest, RequestsAreAnsweredAsListed) {
    const std::string arrow = " \u2192 ";
    std::string& number = callbacks_->params["n"];
    std::ifstream file(ANSWERS);
    for (std::string line; std::getline(file, line);) {
        const std::size_t end = line.find(arrow);
        std::istringstream words(line.substr(0, end));
        std::string name, key, source;
        int language = 0;
        const bool throws = line.find("throws") != std::string::npos;
        if (end != std::string::npos && throws && !qor::platform::kExceptionsPass) {
            continue;
        }
        if (end != std::string::npos) {
            words >> language >> std::quoted(name) >> std::quoted(number) >> key;
            std::getline(words >> std::ws, source);
            const auto localizer = Make(source, MakeCulture(language, name.c_str()),
                                        number == "none" ? nullptr : callbacks_.get());
            EXPECT_EQ(Shown(Answer(*localizer, key)), line.substr(end + arrow.size()));
        } else if (line[0] != '#') {
            words >> name;
            std::getline(words >> std::ws, source);
            tree.Write(name, source);
        }
    }
    EXPECT_FALSE(callbacks_->last.empty());
}

}  // namespace
