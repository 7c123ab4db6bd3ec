#include "Requests.h"

#include <algorithm>
#include <boost/make_shared.hpp>
#include <functional>
#include <iterator>
#include <map>
#include <stdexcept>
#include <vector>

#include "FileResourceProvider.h"
#include "FromUtf8.h"
#include "IResourceProvider.h"
#include "LocFileParser.h"
#include "ResourceProcessingPipeline.h"
#include "localization_manager/host/DerivedParam.h"
#include "tree/Tree.h"
#include "tree/path_text.h"

namespace lm_test {

namespace {

using namespace LocalizationManager;
using namespace LocalizationManager::StringLocalizing;
using localization_manager::Culture;
using Names = std::set<std::u16string>;

/// Supplies a number for every parameter that is known, written for people where its name says so, and
/// remembers what is asked for.
class Params : public Resolving::IParamResolver {
public:
    void Resolve(std::u16string_view name, Resolving::ResolvedText& output) override {
        const std::string asName(name.begin(), name.end());  // of ASCII
        const auto supplied = localization_manager::host::SuppliedParam(asName);
        const std::u16string param(name.substr(0, supplied.size()));
        asked.insert(param);
        if (!isOpen && known.count(param) == 0) {
            throw std::runtime_error("unknown parameter");
        }
        output.Append(FromNumber(number) + (param != name ? u",0" : u""));
    }

    static std::u16string FromNumber(int value) { return Text::FromUtf8(std::to_string(value)); }

    Names known;
    Names asked;
    bool isOpen = false;
    int number = 0;
};

constexpr int kNumbers[] = {0,  1,  2,  3,  4,  5,   7,   10,  11,  12,  14,
                            20, 21, 22, 25, 99, 100, 101, 102, 111, 999, 70000};

class Requests {
public:
    Requests(const std::filesystem::path& root, const std::set<std::string>& params)
        : tree_(root, {}),
          provider_(
              boost::make_shared<File::FileResourceProvider>(root.u16string(), std::u16string())) {
        for (const std::string& param : params) {
            supplied_.insert(Text::FromUtf8(param));
        }
        reference_ = *lm_tree::CultureOfName("en");
        scopes_ = tree_.ScopesOf(reference_);
        scopes_.push_back(lm_tree::CommonScope());
    }

    std::set<std::string> Failing() {
        std::set<std::string> failing;
        for (const lm_tree::CultureName& culture : tree_.Cultures()) {
            for (const std::string& scope : scopes_) {
                if (!Answers(culture, scope)) {
                    failing.insert(culture.name);
                }
            }
        }
        return failing;
    }

private:
    using Localizer = Pipeline::ResourceProcessingPipeline;

    std::unique_ptr<Localizer> Make(const Culture& culture, const std::string& scope,
                                    const boost::shared_ptr<Params>& params) {
        return std::make_unique<Localizer>(provider_, params,
                                           boost::make_shared<Model::ResourceDictionary>(), culture,
                                           Text::FromUtf8(scope), std::u16string(u"common"));
    }

    /// The keys of the file that answers and of the common one, as far as they can be read.
    Names KeysOf(const Culture& culture, const std::string& scope) {
        Names keys;
        for (const std::string& source : {scope, lm_tree::CommonScope()}) {
            Model::ResourceDictionary dictionary;
            try {
                const auto content = provider_->GetResource(Text::FromUtf8(source), culture);
                const auto range = Parsing::MakeSourceRange(content.content, content.sourceName);
                Parsing::ParseResourceDictionary(range.first, range.last, dictionary);
            } catch (const std::exception&) {
                // What was read before the mistake counts.
            }
            dictionary.ForEach([&](auto position) { keys.emplace(dictionary.At(position).key); });
        }
        return keys;
    }

    /// The parameters of a reference text; empty when it fails itself.
    bool ParamsOf(Localizer& reference, Params& params, const std::u16string& key, Names& names) {
        params.asked.clear();
        try {
            for (const int number : kNumbers) {
                params.number = number;
                Resolving::ResolvedText text;
                reference.GetString(key, nullptr, text);
            }
        } catch (const std::exception&) {
            return false;
        }
        names = params.asked;
        return true;
    }

    /// Whether a host asks for the key only where there is such a text, and else for another.
    static bool IsVariant(const std::u16string& key, const Names& known) {
        const std::size_t at = key.rfind(u"._");
        return at != std::u16string::npos && key.find(u'.', at + 1) == std::u16string::npos &&
               known.count(key.substr(0, at)) != 0;
    }

    bool Answers(const lm_tree::CultureName& culture, const std::string& scope) {
        try {
            const auto params = boost::make_shared<Params>();
            const auto referenceParams = boost::make_shared<Params>();
            referenceParams->isOpen = true;
            const auto pipeline = Make(*culture.culture, scope, params);
            std::unique_ptr<Localizer> reference;
            try {
                reference = Make(*reference_.culture, scope, referenceParams);
            } catch (const std::exception&) {
            }
            Names keys = KeysOf(*culture.culture, scope);
            const Names known = KeysOf(*reference_.culture, scope);
            std::copy_if(known.begin(), known.end(), std::inserter(keys, keys.end()),
                         [&](const auto& key) { return !IsVariant(key, known); });
            for (const std::u16string& key : keys) {
                params->isOpen =
                    !reference || !ParamsOf(*reference, *referenceParams, key, params->known);
                params->known.insert(supplied_.begin(), supplied_.end());
                for (const int number : kNumbers) {
                    params->number = number;
                    Resolving::ResolvedText text;
                    pipeline->GetString(key, nullptr, text);
                    if (text.view().find(u'\uFFFD') != std::u16string_view::npos) {
                        return false;
                    }
                }
            }
            return FindsResources(culture, scope);
        } catch (const std::exception&) {
            return false;
        }
    }

    bool FindsResources(const lm_tree::CultureName& culture, const std::string& scope) {
        const std::filesystem::path base = tree_.FullPath(lm_tree::Side::Root, "en/" + scope);
        if (scope == lm_tree::CommonScope() || !std::filesystem::is_directory(base)) {
            return true;
        }
        for (const auto& entry : std::filesystem::directory_iterator(base)) {
            if (provider_
                    ->GetResourcePath(Text::FromUtf8(scope), *culture.culture,
                                      entry.path().filename().u16string())
                    .empty()) {
                return false;
            }
        }
        return true;
    }

    lm_tree::Tree tree_;
    boost::shared_ptr<Pipeline::IResourceProvider> provider_;
    lm_tree::CultureName reference_;
    std::vector<std::string> scopes_;
    Names supplied_;
};

}  // namespace

std::set<std::string> CulturesWithFailures(const std::filesystem::path& root,
                                           const std::set<std::string>& params) {
    return Requests(root, params).Failing();
}

}  // namespace lm_test
