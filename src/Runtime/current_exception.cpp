#include "qor/rtl/error_handling/current_exception.h"

#include <exception>
#include <new>
#include <stdexcept>
#include <string>

#include "qor/rtl/error_handling/ResultCodeException.h"
#include "qor/rtl/error_handling/contract_violations.h"
#include "qor/rtl/error_handling/display_text.h"
#include "qor/rtl/error_handling/trace.h"

namespace qor {

namespace {

/// Traces what is caught, and lets no failure of that replace the failure that is told about.
class CaughtTracer {
public:
    CaughtTracer(ITracer* tracer, const char* prefix, std::uint32_t level) noexcept
        : tracer_(tracer), prefix_(OrNull(prefix)), level_(level) {}

    result_t operator()(result_t code, const Exception& caught) const noexcept {
        return Write(code, [&] { return NarrowDisplayText(caught); });
    }

    result_t operator()(result_t code, const std::exception& caught) const noexcept {
        return Write(code, [&] { return std::string(OrNull(caught.what())); });
    }

private:
    static const char* OrNull(const char* text) noexcept {
        return text != nullptr ? text : "(null)";
    }

    template <class MakeText>
    result_t Write(result_t code, MakeText makeText) const noexcept {
        if (tracer_ != nullptr) {
            try {
                Trace(tracer_, level_, prefix_ + makeText());
            } catch (...) {  // the code says what happened even without a record
            }
        }
        return code;
    }

    ITracer* tracer_;
    const char* prefix_;
    std::uint32_t level_;
};

}  // namespace

result_t ResultFromCurrentException(ITracer* tracer, const char* prefix, std::uint32_t level) {
    const CaughtTracer traced(tracer, prefix, level);
    try {
        throw;
    } catch (const contract::RequireViolation& caught) {
        return traced(rcRequireViolation, caught);
    } catch (const contract::InvariantViolation& caught) {
        return traced(rcInvariantViolation, caught);
    } catch (const contract::EnsureViolation& caught) {
        return traced(rcEnsureViolation, caught);
    } catch (const ResultCodeException& caught) {
        const result_t code = caught.GetResultCode();
        return traced(code == rcOk ? rcUnexpected : code, caught);
    } catch (const Exception& caught) {
        return traced(rcUnknownException, caught);
    } catch (const std::bad_alloc& caught) {
        return traced(rcOutOfMemory, caught);
    } catch (const std::length_error& caught) {
        return traced(rcOutOfMemory, caught);
    } catch (const std::exception& caught) {
        return traced(rcUnknownException, caught);
    } catch (...) {
        return rcUnknownException;
    }
}

result_t ResultFromCurrentException() {
    return ResultFromCurrentException(nullptr, nullptr, 0);
}

}  // namespace qor
