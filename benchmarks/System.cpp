#include "System.h"

#include <stdexcept>

namespace lm_bench {

void System::AnswerRightly(const Request& request) {
    Answer(request);
    if (Kept() != Expected(request)) {
        throw std::runtime_error("wrong answer for " + request.key + ": '" + Kept() +
                                 "', expected '" + Expected(request) + '\'');
    }
}

}  // namespace lm_bench
