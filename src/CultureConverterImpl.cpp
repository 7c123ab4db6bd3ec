#include "CultureConverterImpl.h"

#include <stdexcept>

#include "AtBoundary.h"
#include "CultureNames.h"
#include "failure_reports.h"
#include "qor/rtl/error_handling/trace.h"

namespace localization_manager {

namespace {

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
    : ObjectRoot(serviceLocator) {}

qor::result_t CultureConverterImpl::GetCultureByIsoName(const qor::string8_t& name,
                                                        Culture& culture) {
    return AtBoundary([&] {
        const auto found = cultures_.Find(name.view());
        if (!found) {
            return qor::rcUnspecifiedError;
        }
        Commit(culture, found->language, found->region, found->variant);
        return qor::rcOk;
    });
}

qor::result_t CultureConverterImpl::GetLanguageIsoName(Language language, qor::string8_t& isoName) {
    return AtBoundary([&] {
        try {
            isoName = LanguageToIsoName(language);
            return qor::rcOk;
        } catch (const std::range_error& unsupported) {
            TraceError(GetTracer(), [&] {
                return "localization manager error: GetLanguageIsoName cannot convert language "
                       "value"
                       " lang='" +
                       std::to_string(static_cast<std::int32_t>(language)) +
                       "', error: " + WhatOf(unsupported);
            });
            return qor::rcUnspecifiedError;
        }
    });
}

}  // namespace localization_manager
