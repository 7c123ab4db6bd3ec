#include "Complaints.h"

#include <stdexcept>

namespace localize_po {

Complaints* Complaints::current = nullptr;

const po_xerror_handler* Complaints::Handler() {
    static const po_xerror_handler handler = {&Take, &TakeTwo};
    return &handler;
}

/// After a fatal one the library cannot go on.
void Complaints::Take(int severity, po_message_t /*message*/, const char* file, std::size_t line,
                      std::size_t /*column*/, int /*isMultiline*/, const char* text) {
    if (severity == PO_SEVERITY_WARNING) {
        return;
    }
    std::string complaint(text);
    complaint.resize(complaint.find_last_not_of('\n') + 1);
    if (file != nullptr && line != static_cast<std::size_t>(-1)) {
        complaint = current->name_ + ':' + std::to_string(line) + ": " + complaint;
    }
    current->all_.push_back(complaint);
    if (severity == PO_SEVERITY_FATAL_ERROR) {
        throw std::runtime_error(current->all_.front());
    }
}

void Complaints::TakeTwo(int severity, po_message_t message, const char* file, std::size_t line,
                         std::size_t column, int isMultiline, const char* text,
                         po_message_t /*other*/, const char* /*otherFile*/,
                         std::size_t /*otherLine*/, std::size_t /*otherColumn*/,
                         int /*otherIsMultiline*/, const char* /*otherText*/) {
    Take(severity, message, file, line, column, isMultiline, text);
}

}  // namespace localize_po
