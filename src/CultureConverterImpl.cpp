#include "CultureConverterImpl.h"

#include <algorithm>
#include <locale>
#include <stdexcept>
#include <utility>

#include "CultureNames.h"
#include "Messages.h"
#include "qor/rtl/error_handling/trace.h"

namespace localization_manager {

namespace {

std::string LowerCase(std::string_view name) {
    std::string lower(name);
    const std::locale global;
    std::use_facet<std::ctype<char>>(global).tolower(lower.data(), lower.data() + lower.size());
    return lower;
}

/// Replaces `culture`, whose strings keep their allocators, whole or not at all.
void Commit(Culture& culture, Language language, std::string_view region,
            std::string_view variant) {
    qor::string8_t newRegion(region, culture.region.get_allocator());
    qor::string8_t newVariant(variant, culture.variant.get_allocator());
    culture.language = language;
    culture.region.swap_contents(newRegion);
    culture.variant.swap_contents(newVariant);
}

}  // namespace

CultureConverterImpl::CultureConverterImpl(qor::IServiceLocator& serviceLocator)
    : ObjectRoot(serviceLocator),
      cultures_{
          {"anz", {Language::English, "au"}},
          {"br", {Language::Portuguese, "br"}},
          {"hch", {Language::ChineseTraditional, "hk"}},
          {"la", {Language::Spanish, "mx"}},
          {"sch", {Language::ChineseSimplified, ""}},
          {"sea", {Language::English, "my"}},
          {"tch", {Language::ChineseTraditional, ""}},
      } {
    for (std::uint32_t value = 0; value < kLanguageCount; ++value) {
        const auto language = static_cast<Language>(value);
        // The names are ASCII, so that the table is the same in every locale.
        std::string name = LanguageToIsoName(language);
        std::transform(name.begin(), name.end(), name.begin(), [](char letter) {
            return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
        });
        cultures_.emplace(std::move(name), KnownCulture{language, ""});
    }
}

qor::result_t CultureConverterImpl::GetCultureByIsoName(const qor::string8_t& name,
                                                        Culture& culture) {
    const std::string lower = LowerCase(name.view());
    const auto known =
        std::find_if(cultures_.begin(), cultures_.end(), [&lower](const auto& candidate) {
            return lower.compare(0, candidate.first.size(), candidate.first) == 0;
        });
    if (known == cultures_.end()) {
        return qor::rcUnspecifiedError;
    }
    std::string_view rest = name.view().substr(known->first.size());
    if (rest.empty()) {
        Commit(culture, known->second.language, known->second.region, {});
        return qor::rcOk;
    }
    if (rest.front() != '-') {
        return qor::rcUnspecifiedError;
    }
    rest.remove_prefix(1);
    const std::size_t dash = rest.find('-');
    const bool hasVariant = dash != std::string_view::npos;
    Commit(culture, known->second.language, rest.substr(0, dash),
           hasVariant ? rest.substr(dash + 1) : std::string_view());
    return qor::rcOk;
}

qor::result_t CultureConverterImpl::GetLanguageIsoName(Language language, qor::string8_t& isoName) {
    try {
        isoName = LanguageToIsoName(language);
        return qor::rcOk;
    } catch (const std::range_error& unsupported) {
        TraceError(GetTracer(), [&] {
            return "localization manager error: GetLanguageIsoName cannot convert language value"
                   " lang='" +
                   std::to_string(static_cast<std::int32_t>(language)) +
                   "', error: " + WhatOf(unsupported);
        });
        return qor::rcUnspecifiedError;
    }
}

}  // namespace localization_manager
