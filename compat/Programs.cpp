#include "compat/Programs.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

bool IsProgram(const std::string &path)
{
    struct stat status = {};
    return access(path.c_str(), X_OK) == 0 && stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

bool IsInPath(const std::string &name)
{
    // Without the variable, Debian's shell searches these.
    const char *const variable = std::getenv("PATH");
    std::string_view path =
        variable != nullptr ? variable : "/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin";
    for (;;) {
        const std::string_view directory = path.substr(0, path.find(':'));
        // An empty entry is the current directory.
        if (IsProgram((directory.empty() ? "." : std::string(directory)) + '/' + name)) {
            return true;
        }
        if (directory.size() == path.size()) {
            return false;
        }
        path.remove_prefix(directory.size() + 1);
    }
}
