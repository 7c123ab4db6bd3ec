// The way in to localisation: makes localizers over a directory tree or over texts in memory.
#pragma once

#include <cstdint>

#include "localization_manager/Culture.h"
#include "localization_manager/IErrorListener.h"
#include "localization_manager/ILocalizer.h"
#include "localization_manager/IParamResolver.h"
#include "qor/IObject.h"
#include "qor/basic_string_t.h"
#include "qor/platform/object_argument.h"

namespace localization_manager {

/// Implemented by the module (`class_id::LocalizationManager`). The creators may be called from
/// several threads at once; `Init` and `InitEx` must have returned before, and must not run beside
/// any other call. Failures with `rcUnspecifiedError` write a record to the host's tracer at level
/// 300. Localizers do not keep the manager alive and may outlive it.
///
/// Arguments that all creators have:
///  - `culture`: whose texts are served; the record is copied, its strings with their allocators.
///  - `paramResolver`: gives the texts of external parameters; the localizer takes a reference. May
///    be null, and then every text that asks for a parameter fails.
///  - `localizer`: receives the new localizer with one reference that the caller owns; written on
///    `rcOk` only.
/// Results of all creators: `rcOk`; `rcInvalidArgument` for a null `localizer`;
/// `rcUnspecifiedError`. Before initialisation `CreateLocalizer` answers `rcInvalidState`. The
/// creators that take texts throw then: a contract violation, caught as `std::runtime_error`; they
/// also let `std::bad_alloc` and `std::length_error` out. On Windows they answer `rcUnknownException`
/// then, and `rcOutOfMemory`.
class ILocalizationManager : public qor::IObject {
public:
    static constexpr std::uint32_t InterfaceId = 0x9E168F3F;

    /// `InitEx` without a listener: reports go to the host's tracer.
    virtual qor::result_t Init(const qor::string16_t& root, const qor::string16_t& alternative) = 0;

    /// A localizer over the files of a scope.
    /// @param scope  name of the scope's source, a file name without ".lt". It becomes part of a
    ///               path as it stands, and may lead out of the tree.
    virtual qor::result_t CreateLocalizer(const qor::string16_t& scope, const Culture& culture,
                                          IParamResolver* paramResolver,
                                          ILocalizer** localizer) = 0;

    /// Makes the manager usable, or replaces what it was initialised with; localizers made before
    /// keep what they have, and common texts that are cached stay cached.
    /// @param root           directory of the localisation tree.
    /// @param alternative    directory of a tree that is searched first; may be empty.
    /// @param errorListener  hears the reports of localizers made from now on; the manager takes a
    ///                       reference. Null makes the module's own, which writes to the tracer.
    /// @return `rcOk`; `rcInvalidState` for an empty `root`; `rcUnspecifiedError` when a directory
    ///         does not exist or memory runs out: the previous directories then stay in use, but
    ///         the listener may already be the new one.
    virtual qor::result_t InitEx(const qor::string16_t& root, const qor::string16_t& alternative,
                                 qor::platform::object_argument<IErrorListener> errorListener) = 0;

    /// A localizer whose own texts are given in memory; common texts and plural rules come from the
    /// tree. It has no resource files: they are looked for below a generated scope name.
    /// @param buffer  text in the format of localisation files; copied.
    virtual qor::result_t CreateLocalizerFromBuffer(const qor::string16_t& buffer,
                                                    const Culture& culture,
                                                    IParamResolver* paramResolver,
                                                    ILocalizer** localizer) = 0;

    /// A localizer for strings only, whose own texts and, if given, common texts are in memory. It
    /// shares no texts with other localizers and answers `HasString` and `GetResolvedString`.
    /// @param scopePrefix   put in front of the generated name that reports show for the buffer.
    /// @param buffer        text of the scope; copied.
    /// @param commonBuffer  text of the common source; empty to take the tree's. Copied.
    virtual qor::result_t CreateBufferLocalizer(const qor::string16_t& scopePrefix,
                                                const qor::string16_t& buffer,
                                                const qor::string16_t& commonBuffer,
                                                const Culture& culture,
                                                IParamResolver* paramResolver,
                                                ILocalizer** localizer) = 0;

protected:
    ~ILocalizationManager() = default;
};

}  // namespace localization_manager
