#include "Requests.h"

#include <iostream>

#include "qor/result_messages.h"

namespace localize {

std::string Requests::FailureOf(qor::result_t code, const std::string& file,
                                std::size_t before) const {
    if (reports_.Count() != before) {
        return reports_.Last();
    }
    std::string why(qor::ResultText(code));
    if (!reports_.IsQuiet()) {
        std::cerr << "localize: " << file << ": " << why << '\n';
    }
    return why;
}

}  // namespace localize
