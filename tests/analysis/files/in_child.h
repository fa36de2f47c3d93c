#pragma once

#include <functional>

#include <sys/wait.h>
#include <unistd.h>

namespace lv::test {

/// Runs a function in a process of its own, whose exit status it returns; how that ended, as `waitpid` says it.
inline int inChild(const std::function<int()>& run) {
    const pid_t process = ::fork();
    if (process == 0) {
        ::_exit(run());
    }
    int status = -1;
    ::waitpid(process, &status, 0);
    return status;
}

}  // namespace lv::test
