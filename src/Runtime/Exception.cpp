#include "qor/rtl/error_handling/Exception.h"

#include <utility>

namespace qor {

Exception::Exception(const char* what, const char* sourceFile, std::int32_t sourceLine,
                     string16_t message, std::unique_ptr<Exception> inner)
    : what_(what),
      sourceFile_(sourceFile),
      sourceLine_(sourceLine),
      message_(std::move(message)),
      inner_(std::move(inner)) {}

Exception::Exception(const Exception& other)
    : std::exception(other),
      what_(other.what_),
      sourceFile_(other.sourceFile_),
      sourceLine_(other.sourceLine_),
      message_(other.message_),
      inner_(other.inner_ ? other.inner_->Clone() : nullptr) {}

Exception::~Exception() = default;

}  // namespace qor
