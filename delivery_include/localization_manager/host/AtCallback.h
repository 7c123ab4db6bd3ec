// What a host's function throws while the module waits for it.
#pragma once

#include <new>

#include "localization_manager/host/ResultError.h"
#include "qor/platform/exceptions.h"
#include "qor/result_codes.h"

namespace localization_manager::host {

/// Does what a callback has to do. An exception goes on into the module, which reports it in its own words;
/// where none passes between the two it becomes a code, whose message the module reports instead: that of a
/// `ResultError`, `rcOutOfMemory` for `std::bad_alloc`, else `rcUnknownException`.
template <class Callback>
qor::result_t AtCallback(Callback callback) {
    if constexpr (qor::platform::kExceptionsPass) {
        return callback();
    } else {
        try {
            return callback();
        } catch (const ResultError& error) {
            return qor::Failed(error.code()) ? error.code() : qor::rcUnknownException;
        } catch (const std::bad_alloc&) {
            return qor::rcOutOfMemory;
        } catch (...) {
            return qor::rcUnknownException;
        }
    }
}

}  // namespace localization_manager::host
