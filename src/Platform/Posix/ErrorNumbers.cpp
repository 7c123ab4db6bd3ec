#include "ErrorNumbers.h"

#include <cerrno>

namespace Platform::Posix {

ErrorNumber LastError() noexcept {
    switch (errno) {
        case ENOENT:
            return 2;
        case ENOTDIR:
            return 3;
        case EACCES:
        case EPERM:
        case EISDIR:
            return kAccessDenied;
        case EBADF:
            return kInvalidHandle;
        case ENOMEM:
            return 8;
        case EWOULDBLOCK:
        case ETXTBSY:
            return kSharingViolation;
        case ENOTSUP:
            return 50;
        case EINVAL:
            return 87;
        case ENOSPC:
            return 112;
        case EILSEQ:
        case ENAMETOOLONG:
            return kInvalidName;
        case EEXIST:
            return 183;
        case ECANCELED:
            return 995;
        case EMFILE:
        case ENFILE:
            return 1450;
        case ETIMEDOUT:
            return 1460;
        default:
            return kGeneralFailure;
    }
}

}  // namespace Platform::Posix
