// The texts that callbacks of the host take.
#pragma once

#include <string_view>

#include "qor/Allocator.h"
#include "qor/basic_string_t.h"

namespace localization_manager {

/// A framework string for one call, in storage of the object's allocator. It borrows the reference on
/// the allocator that the object holds during the call: threads that counted it up and down with each
/// request would wait for each other. What the host copies has a reference of its own.
class CallbackText {
public:
    explicit CallbackText(qor::IAllocator& lender)
        : lender_(lender),
          text_(qor::Allocator<char16_t>(qor::objptr_t<qor::IAllocator>::Adopt(&lender))) {}

    CallbackText(std::u16string_view text, qor::IAllocator& lender) : CallbackText(lender) {
        text_.append(text);
    }

    CallbackText(const CallbackText&) = delete;
    CallbackText& operator=(const CallbackText&) = delete;

    /// Frees the storage, without giving back what was borrowed.
    ~CallbackText() {
        if (text_.capacity() > qor::string16_t().capacity()) {
            lender_.Free(const_cast<char16_t*>(text_.data()));
        }
    }

    qor::string16_t& get() noexcept { return text_; }

private:
    qor::IAllocator& lender_;
    union {
        qor::string16_t text_;  // not destroyed
    };
};

}  // namespace localization_manager
