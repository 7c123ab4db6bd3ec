// The root of the framework's exceptions.
#pragma once

#include <cstdint>
#include <exception>
#include <memory>

#include "qor/basic_string_t.h"

#undef GetMessage  // <windows.h> makes a macro of the name

namespace qor {

/// An exception that knows where it was raised, what it has to say in UTF-16, and, optionally, the
/// exception that caused it. Concrete classes derive through `ExceptionBase`.
class Exception : public std::exception {
public:
    /// @param what        name of the concrete class; static.
    /// @param sourceFile  path of the raising source file; static.
    Exception(const char* what, const char* sourceFile, std::int32_t sourceLine, string16_t message,
              std::unique_ptr<Exception> inner = nullptr);

    /// Clones the inner exception.
    Exception(const Exception& other);
    Exception& operator=(const Exception&) = delete;
    ~Exception() override;

    /// The name of the concrete class.
    const char* what() const noexcept override { return what_; }

    virtual string16_t GetMessage() const { return message_; }

    /// Throws a copy of the most derived object.
    [[noreturn]] virtual void Rethrow() const = 0;

    /// A copy of the most derived object.
    virtual std::unique_ptr<Exception> Clone() const = 0;

    const char* GetSourceFile() const noexcept { return sourceFile_; }
    std::int32_t GetSourceLine() const noexcept { return sourceLine_; }
    const Exception* GetInner() const noexcept { return inner_.get(); }

private:
    const char* what_;
    const char* sourceFile_;
    std::int32_t sourceLine_;
    string16_t message_;
    std::unique_ptr<Exception> inner_;
};

}  // namespace qor
