// What the tool tells scripts in the end.
#pragma once

namespace localize {

enum class ExitStatus {
    Done = 0,
    Failed = 1,      // something was not answered, or a check found something
    WrongUsage = 2,  // or, of a command that judges or writes files, it could not run
};

}  // namespace localize
