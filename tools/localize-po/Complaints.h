// What gettext's library says of files and messages.
#pragma once

#include <gettext-po.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace localize_po {

/// What the library complains of while a function of it runs. It takes no object along.
class Complaints {
public:
    /// @param name  of the file that the library works on, as users know it.
    explicit Complaints(std::string name = {}) : name_(std::move(name)) { current = this; }
    Complaints(const Complaints&) = delete;
    Complaints& operator=(const Complaints&) = delete;
    ~Complaints() { current = nullptr; }

    static const po_xerror_handler* Handler();

    const std::vector<std::string>& All() const noexcept { return all_; }

private:
    static void Take(int severity, po_message_t message, const char* file, std::size_t line,
                     std::size_t column, int isMultiline, const char* text);
    static void TakeTwo(int severity, po_message_t message, const char* file, std::size_t line,
                        std::size_t column, int isMultiline, const char* text, po_message_t other,
                        const char* otherFile, std::size_t otherLine, std::size_t otherColumn,
                        int otherIsMultiline, const char* otherText);

    static Complaints* current;

    std::string name_;
    std::vector<std::string> all_;
};

}  // namespace localize_po
