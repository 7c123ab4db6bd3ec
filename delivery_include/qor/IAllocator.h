// Memory that the host provides for component objects and for the storage of framework strings.
#pragma once

#include <cstddef>
#include <cstdint>

#include "qor/IObject.h"

namespace qor {

/// Implemented by the host; called from any thread that uses an object made with it.
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
