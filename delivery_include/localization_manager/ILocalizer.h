// The texts and resource files of one scope in one culture.
#pragma once

#include <cstdint>

#include "localization_manager/IResolveListener.h"
#include "qor/IIO.h"
#include "qor/IObject.h"
#include "qor/basic_string_t.h"

namespace localization_manager {

/// Implemented by the module; made by `ILocalizationManager`, which it may outlive. All operations
/// may be called from several threads at once. Out arguments are written on `rcOk` only.
///
/// The sources are read and compiled at the first request for a string; when that fails, the
/// request fails and the next one tries again. Keys of strings do not depend on letter case. Keys
/// of resource files become part of a path as they stand, and may lead out of the tree.
///
/// "Reported" failures send one text to the error listener that the manager was initialised with.
class ILocalizer : public qor::IObject {
public:
    static constexpr std::uint32_t InterfaceId = 0xD4AEF19D;

    /// The final text of a key: `GetResolvedString` without a listener.
    /// A localizer made by `CreateBufferLocalizer` answers `rcNotImplemented`.
    virtual qor::result_t GetString(const qor::string16_t& key, qor::string16_t& result) = 0;

    /// Opens the resource file `key` of the scope for reading.
    /// @param key     file name below the scope's directory.
    /// @param stream  receives the stream with one reference that the caller owns; the file stays
    ///                open until its last release.
    /// @return `rcOk`; `rcInvalidArgument` for a null `stream`; `rcNotFound` when no culture
    ///         directory has the file; `rcUnspecifiedError`, reported, when it cannot be opened;
    ///         `rcNotImplemented` from a localizer made by `CreateBufferLocalizer`.
    virtual qor::result_t GetStream(const qor::string16_t& key, qor::IIO** stream) = 0;

    /// Whether the scope has a resource file `key`.
    /// @return `rcOk` when it exists, `rcUnspecifiedError` when not; `rcNotImplemented` from a
    ///         localizer made by `CreateBufferLocalizer`.
    /// @throws std::range_error for a culture whose language is none of `Language`; std::bad_alloc
    ///         (Windows: `rcUnknownException` and `rcOutOfMemory` instead).
    virtual qor::result_t HasResource(const qor::string16_t& key) = 0;

    /// Whether the scope's or the common source has the key.
    /// @return `rcOk` when it has; `rcUnspecifiedError` when not, and, reported, when the sources
    ///         cannot be read.
    virtual qor::result_t HasString(const qor::string16_t& key) = 0;

    /// The final text of a key.
    /// @param result    receives the text; keeps its allocator.
    /// @param listener  hears of each parameter, plural form and key; may be null.
    /// @return `rcOk`, or `rcUnspecifiedError`, reported.
    virtual qor::result_t GetResolvedString(const qor::string16_t& key, qor::string16_t& result,
                                            IResolveListener* listener) = 0;

    /// The full path of the resource file `key` of the scope.
    /// @param key   file name below the scope's directory.
    /// @param path  receives a path that opens as it stands; keeps its allocator.
    /// @return `rcOk`; `rcInvalidArgument` for an empty key; `rcNotFound` when no culture directory
    ///         has the file; `rcUnspecifiedError`, reported; `rcNotImplemented` from a localizer
    ///         made by `CreateBufferLocalizer`.
    virtual qor::result_t GetPath(const qor::string16_t& key, qor::string16_t& path) = 0;

protected:
    ~ILocalizer() = default;
};

}  // namespace localization_manager
