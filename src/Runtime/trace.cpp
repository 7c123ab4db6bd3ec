#include "qor/rtl/error_handling/trace.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace qor {

namespace {

constexpr std::uint32_t kFirstCapacity = 512;

/// A record under construction in a buffer that the tracer owns.
class TraceRecord {
public:
    TraceRecord(ITracer& tracer, std::uint32_t level) : tracer_(tracer) {
        if (!Request(level, kFirstCapacity)) {
            buffer_ = nullptr;
        }
    }

    bool IsGranted() const noexcept { return buffer_ != nullptr; }

    void Append(std::string_view text) {
        if (text.size() > capacity_ - length_ && !Enlarge(text.size())) {
            length_ = 0;
            return;
        }
        std::memcpy(buffer_ + length_, text.data(), text.size());
        length_ += static_cast<std::uint32_t>(text.size());
    }

    void Write() {
        if (buffer_ != nullptr) {
            tracer_.WriteRecord(buffer_, length_);
        }
    }

private:
    bool Enlarge(std::size_t extra) {
        const std::uint64_t needed = std::uint64_t{length_} + extra;
        const std::uint64_t capacity = std::max(needed, std::uint64_t{capacity_} * 2);
        return capacity <= std::numeric_limits<std::uint32_t>::max() &&
               Request(trace_level::Enlarge, static_cast<std::uint32_t>(capacity));
    }

    bool Request(std::uint32_t level, std::uint32_t capacity) {
        if (tracer_.RequestRecord(level, &buffer_, capacity) != rcOk || buffer_ == nullptr) {
            return false;
        }
        capacity_ = capacity;
        return true;
    }

    ITracer& tracer_;
    char* buffer_ = nullptr;
    std::uint32_t length_ = 0;
    std::uint32_t capacity_ = 0;
};

}  // namespace

void Trace(ITracer* tracer, std::uint32_t level, std::string_view text) {
    if (tracer == nullptr) {
        return;
    }
    TraceRecord record(*tracer, level);
    if (record.IsGranted()) {
        record.Append(text);
        record.Write();
    }
}

}  // namespace qor
