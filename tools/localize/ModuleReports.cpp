#include "ModuleReports.h"

#include <algorithm>
#include <iostream>
#include <utility>

#include "localization_manager/host/shortened.h"
#include "read_text.h"
#include "tree/Tree.h"

namespace localize {

namespace host = localization_manager::host;

namespace {

constexpr std::string_view kGenerated = "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx";

bool IsGenerated(std::string_view name) {
    return name.size() == kGenerated.size() &&
           std::equal(name.begin(), name.end(), kGenerated.begin(), [](char unit, char pattern) {
               return pattern == '-' ? unit == '-'
                                     : (unit >= '0' && unit <= '9') || (unit >= 'a' && unit <= 'f');
           });
}

}  // namespace

ModuleReports::ModuleReports(const RequestSettings& settings)
    : prefix_(settings.scope),
      buffer_(ShownName(settings.buffer)),
      commonBuffer_(ShownName(settings.commonBuffer)) {}

host::Report ModuleReports::Callback() {
    return [this](std::uint32_t /*level*/, std::string_view text) {
        ++count_;
        std::string report = Translated(host::Shortened(text));
        // Each key of a source that cannot be used gives the same one.
        const bool isTold = report == last_;
        last_ = std::move(report);
        if (!isQuiet_ && !isTold) {
            std::cerr << last_ << '\n' << std::flush;
        }
    };
}

std::string ModuleReports::SourceName(const std::string& source) const {
    if (!commonBuffer_.empty() && source == lm_tree::CommonScope()) {
        return commonBuffer_;
    }
    const bool isOwn = !buffer_.empty() && source.size() == prefix_.size() + kGenerated.size() &&
                       IsGenerated(std::string_view(source).substr(prefix_.size()));
    return isOwn ? buffer_ : source;
}

/// Names stand behind "file " and "scope ", and end with a blank.
std::string ModuleReports::Translated(std::string_view text) const {
    std::string translated(text);
    for (const std::string_view before : {"at file ", "for scope "}) {
        const std::size_t begin = translated.find(before);
        if (buffer_.empty() || begin == std::string::npos) {
            continue;
        }
        const std::size_t name = begin + before.size();
        const std::size_t own = prefix_.size() + kGenerated.size();
        const std::size_t common = lm_tree::CommonScope().size();
        for (const std::size_t size : {own, common}) {
            const std::string found = translated.substr(name, size);
            if (translated.substr(name + size, 1) == " " && SourceName(found) != found) {
                translated.replace(name, size, SourceName(found));
                break;
            }
        }
    }
    return translated;
}

}  // namespace localize
