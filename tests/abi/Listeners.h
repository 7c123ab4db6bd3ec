// What the module calls back.
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "Strings.h"

namespace abi_host {

class ErrorListener : public HostObject {
public:
    ErrorListener()
        : HostObject({Entry<&ErrorListener::Forbidden>(), Entry<&ErrorListener::Forbidden>(),
                      Entry<&ErrorListener::OnError>()}) {}

private:
    Result OnError(const String8* text) {
        Remember(text->Text());
        MaybeThrow();
        return kUnspecifiedError;  // nobody asks
    }
};

class ParamResolver : public HostObject {
public:
    ParamResolver() : HostObject({Entry<&ParamResolver::Resolve>()}) {}

    std::map<std::u16string, std::u16string> values;

private:
    Result Resolve(const String16* name, String16* result) {
        MaybeThrow();
        const auto value = values.find(std::u16string(name->Text()));
        if (value == values.end()) {
            return kNotFound;
        }
        result->Assign(value->second);
        return kFalse;  // a success, too
    }
};

class ResolveListener : public HostObject {
public:
    ResolveListener() : HostObject({Entry<&ResolveListener::OnResolved>()}) {}

private:
    Result OnResolved(std::int32_t kind, const String16* source, const String16* name,
                      const String16* value) {
        MaybeThrow();
        Remember(std::to_string(kind) + ' ' + source->Narrow() + '|' + name->Narrow() + '|' +
                 value->Narrow());
        return kUnspecifiedError;  // nobody asks
    }
};

}  // namespace abi_host
