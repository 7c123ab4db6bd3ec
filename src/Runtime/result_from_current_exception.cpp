#include "qor/rtl/error_handling/result_from_current_exception.h"

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

/// Traces what is caught, in words that are made only for a tracer, and passes its code on.
class CaughtTracer {
public:
    CaughtTracer(ITracer* tracer, const char* prefix, std::uint32_t level) noexcept
        : tracer_(tracer), prefix_(OrNull(prefix)), level_(level) {}

    result_t operator()(result_t code, const Exception& caught) const noexcept {
        TraceNoThrow(tracer_, level_, [&] { return prefix_ + NarrowDisplayText(caught); });
        return code;
    }

    result_t operator()(result_t code, const std::exception& caught) const noexcept {
        TraceNoThrow(tracer_, level_, [&] { return std::string(prefix_) + OrNull(caught.what()); });
        return code;
    }

private:
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
