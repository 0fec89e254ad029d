#include "compat/AutostartDirectory.h"

#include "compat/Files.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// The variable's value if it is an absolute path, else nothing: the base-directory rules say to ignore a
/// relative one.
std::string AbsolutePathIn(const char *variable)
{
    const char *const value = std::getenv(variable);
    return value != nullptr && *value == '/' ? value : "";
}

/// From the password file itself: asking through the C library would load its modules into a static program.
std::string HomeOfUser()
{
    std::string home;
    std::FILE *const file = std::fopen("/etc/passwd", "re");
    while (const passwd *const user = file != nullptr ? fgetpwent(file) : nullptr) {
        if (user->pw_uid == geteuid() && *user->pw_dir == '/') {
            home = user->pw_dir;
            break;
        }
    }
    if (file != nullptr) {
        std::fclose(file);
    }
    return home;
}

/// What errno says, with what was tried.
Failure SystemFailure(const std::string &what, const std::string &path)
{
    return {HandlerFailed, "Cannot " + what + ' ' + path + ": " + LastError() + '.'};
}

} // namespace

Failure AutostartDirectory(std::string &directory)
{
    std::string config = AbsolutePathIn("XDG_CONFIG_HOME");
    if (config.empty()) {
        std::string home = AbsolutePathIn("HOME");
        if (home.empty()) {
            home = HomeOfUser();
        }
        if (home.empty()) {
            return {HandlerFailed, "The user has no home directory."};
        }
        config = home + "/.config";
    }
    directory = config + "/autostart";
    return {};
}

Failure MakeDirectories(const std::string &directory)
{
    for (std::size_t nEnd = 0; nEnd != std::string::npos;) {
        nEnd = directory.find('/', nEnd + 1);
        const std::string path = directory.substr(0, nEnd);
        if (mkdir(path.c_str(), S_IRWXU) != 0 && errno != EEXIST) {
            return SystemFailure("make", path);
        }
    }
    struct stat status = {};
    if (stat(directory.c_str(), &status) != 0) {
        return SystemFailure("use", directory);
    }
    if (!S_ISDIR(status.st_mode)) {
        errno = ENOTDIR;
        return SystemFailure("use", directory);
    }
    return {};
}

Failure ReplaceFile(const std::string &path, const std::string &text)
{
    std::string target = path;
    struct stat status = {};
    if (lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode)) {
        const std::unique_ptr<char, void (*)(void *)> resolved(realpath(path.c_str(), nullptr), std::free);
        if (resolved == nullptr) {
            return SystemFailure("follow", path);
        }
        target = resolved.get();
    }

    std::string temporary = target + ".XXXXXX";
    const int descriptor = mkostemp(temporary.data(), O_CLOEXEC);
    if (descriptor < 0) {
        return SystemFailure("write", temporary);
    }
    Failure failure;
    if (!WriteAll(descriptor, text) || fchmod(descriptor, S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH) != 0 ||
        fsync(descriptor) != 0 || std::rename(temporary.c_str(), target.c_str()) != 0) {
        failure = SystemFailure("write", target);
        unlink(temporary.c_str());
    }
    close(descriptor);
    return failure;
}
