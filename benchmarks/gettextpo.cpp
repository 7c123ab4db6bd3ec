// Has gettext's library read a PO file and write it: what nobody who uses it can go below. A program of its
// own, as the library is under the GPL.
//
//     lm_bench_gettextpo FILE NEW-FILE
#include <gettext-po.h>

#include <cstdlib>

namespace {

void Stop(int severity, po_message_t /*message*/, const char* /*file*/, std::size_t /*line*/,
          std::size_t /*column*/, int /*isMultiline*/, const char* /*text*/) {
    if (severity != PO_SEVERITY_WARNING) {
        std::exit(1);
    }
}

void StopForTwo(int severity, po_message_t message, const char* file, std::size_t line,
                std::size_t column, int isMultiline, const char* text, po_message_t /*other*/,
                const char* /*otherFile*/, std::size_t /*otherLine*/, std::size_t /*otherColumn*/,
                int /*otherIsMultiline*/, const char* /*otherText*/) {
    Stop(severity, message, file, line, column, isMultiline, text);
}

}  // namespace

int main(int argc, char** argv) {
    const po_xerror_handler handler = {&Stop, &StopForTwo};
    po_file_t file = argc == 3 ? po_file_read(argv[1], &handler) : nullptr;
    return file != nullptr && po_file_write(file, argv[2], &handler) != nullptr ? 0 : 1;
}
