// Memory that the host provides for component objects and for the storage of framework strings.
#pragma once

#include <cstddef>
#include <cstdint>

#include "qor/IObject.h"

namespace qor {

/// Implemented by the host; called from every thread that uses an object made with it, so from all that
/// ask for texts, several at once if the host does: what the host's callbacks take is stored here. A
/// call may come under the lock that the localizers of a culture share; it must not ask for a text.
class IAllocator : public IObject {
public:
    static constexpr std::uint32_t InterfaceId = 0x9CCA5603;

    /// @param size  bytes wanted.
    /// @return memory aligned for any ordinary type, or null when there is none.
    virtual void* Alloc(std::size_t size) = 0;

    /// Belongs to the framework; components never call it.
    virtual void* Reserved(void* pointer, std::size_t size) = 0;

    /// Takes back what `Alloc` of the same allocator returned.
    virtual void Free(void* pointer) = 0;

protected:
    ~IAllocator() = default;
};

}  // namespace qor
