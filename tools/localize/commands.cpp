#include "commands.h"

#include <array>
#include <cstdint>
#include <iostream>
#include <string>

#include "localization_manager/host/ResolveListener.h"
#include "localization_manager/host/text.h"
#include "qor/objptr_t.h"

namespace localize {

namespace lm = localization_manager;
namespace host = localization_manager::host;

namespace {

void PrintResolved(lm::ResolveKind kind, const std::string& source, const std::string& name,
                   const std::string& value) {
    switch (kind) {
        case lm::ResolveKind::Key:
            std::cerr << "key " << name << " from " << source;
            break;
        case lm::ResolveKind::Param:
            std::cerr << "parameter $" << name;
            break;
        case lm::ResolveKind::PluralForm:
            std::cerr << "plural form by $" << name;
            break;
    }
    std::cerr << ": " << value << '\n';
}

bool Get(const Options& options, lm::ILocalizer& localizer) {
    const auto listener =
        options.trace ? host::Make<host::ResolveListener>(&PrintResolved) : nullptr;
    bool all = true;
    for (const std::string& key : options.names) {
        qor::string16_t text;
        if (qor::Failed(localizer.GetResolvedString(host::ToString16(key), text, listener.get()))) {
            all = false;
        } else {
            std::cout << host::ToUtf8(text) << '\n';
        }
    }
    return all;
}

bool Has(const Options& options, lm::ILocalizer& localizer) {
    bool all = true;
    for (const std::string& key : options.names) {
        const bool exists = !qor::Failed(localizer.HasString(host::ToString16(key)));
        std::cout << (exists ? "yes" : "no") << '\n';
        all = all && exists;
    }
    return all;
}

/// @return whether the call for a file succeeded; tells of failures that the module does not.
bool Succeeded(qor::result_t code, const std::string& file) {
    if (qor::Failed(code) && code != qor::rcUnspecifiedError) {
        std::cerr << "localize: " << file << ": " << qor::ResultText(code) << '\n';
    }
    return !qor::Failed(code);
}

bool Path(const Options& options, lm::ILocalizer& localizer) {
    bool all = true;
    for (const std::string& file : options.names) {
        qor::string16_t path;
        if (Succeeded(localizer.GetPath(host::ToString16(file), path), file)) {
            std::cout << host::ToUtf8(path) << '\n';
        } else {
            all = false;
        }
    }
    return all;
}

bool Cat(const Options& options, lm::ILocalizer& localizer) {
    const std::string& file = options.names.front();
    qor::objptr_t<qor::IIO> stream;
    if (!Succeeded(localizer.GetStream(host::ToString16(file), stream.Ref()), file)) {
        return false;
    }
    std::array<char, 65536> buffer;
    std::uint32_t read = 0;
    do {
        const qor::result_t code = stream->Read(buffer.data(), buffer.size(), &read);
        if (qor::Failed(code)) {
            std::cerr << "localize: " << file << ": " << qor::ResultText(code) << '\n';
            return false;
        }
    } while (read != 0 && std::cout.write(buffer.data(), read));
    return true;
}

}  // namespace

bool Run(const Options& options, lm::ILocalizer& localizer) {
    switch (options.command) {
        case Command::Get:
            return Get(options, localizer);
        case Command::Has:
            return Has(options, localizer);
        case Command::Path:
            return Path(options, localizer);
        case Command::Cat:
            return Cat(options, localizer);
    }
    return false;
}

}  // namespace localize
