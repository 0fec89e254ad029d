#include "compat/LoginItems.h"

#include "compat/AutostartDirectory.h"
#include "compat/DesktopEntry.h"
#include "compat/Files.h"
#include "compat/Programs.h"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::string_view suffix = ".desktop";

/// The application that this interpreter is shipped with. A directory is taken for an application if its
/// executable lies there, since the application knows no other path of itself than the directory that it was
/// started from.
struct Product
{
    std::string executable = "kelvo";
    std::string name = "Kelvo";
    std::string icon = "kelvo";
    std::string comment = "Shows and frees the machine's memory";
};

struct LoginItem
{
    std::string file;
    DesktopEntry entry;
};

struct Application
{
    std::string program;
    std::string name;
    std::string icon;
    std::string comment;
};

Failure ReadLoginItems(const std::string &directory, std::vector<LoginItem> &items)
{
    DIR *const stream = opendir(directory.c_str());
    if (stream == nullptr) {
        const int openError = errno;
        struct stat status = {};
        if (openError == ENOENT && lstat(directory.c_str(), &status) != 0 && errno == ENOENT) {
            return {};
        }
        errno = openError;
        return {HandlerFailed, "Cannot read " + directory + ": " + LastError() + '.'};
    }
    while (const dirent *const file = readdir(stream)) {
        const std::string name = file->d_name;
        if (!name.ends_with(suffix)) {
            continue;
        }
        // One that cannot be read is empty here: the desktop would not start it either.
        std::string text;
        LoginItem item = {directory, {}};
        item.file.append("/").append(name);
        if (ReadFile(item.file, text)) {
            item.entry = ParseDesktopEntry(text);
        }
        items.push_back(std::move(item));
    }
    closedir(stream);
    std::ranges::sort(items, {}, &LoginItem::file);
    return {};
}

Failure FindLoginItems(std::string &directory, std::vector<LoginItem> &items)
{
    Failure failure = AutostartDirectory(directory);
    return failure ? failure : ReadLoginItems(directory, items);
}

Failure FindApplication(std::string path, Application &application)
{
    const Product kelvo;
    while (path.size() > 1 && path.ends_with('/')) {
        path.pop_back();
    }
    if (!path.starts_with('/')) {
        return {FileNotFound, "Not an absolute path: \"" + path + "\"."};
    }
    if (!IsExecutableName(path)) {
        return {HandlerFailed,
                "A login item's path cannot have an equals sign, a control character or broken UTF-8 in it."};
    }
    for (const std::string &program : {path, path + '/' + kelvo.executable}) {
        if (!IsProgram(program)) {
            continue;
        }
        const std::string file = program.substr(program.rfind('/') + 1);
        application = {program, file, file, ""};
        if (file == kelvo.executable) {
            application = {program, kelvo.name, kelvo.icon, kelvo.comment};
        }
        return {};
    }
    return {FileNotFound, "No application was found at \"" + path + "\"."};
}

} // namespace

Failure LoginItemNames(std::vector<std::string> &names)
{
    std::string directory;
    std::vector<LoginItem> items;
    Failure failure = FindLoginItems(directory, items);
    for (LoginItem &item : items) {
        if (!item.entry.name.empty()) {
            names.push_back(std::move(item.entry.name));
        }
    }
    return failure;
}

Failure MakeLoginItem(const std::string &path, std::string &name)
{
    Application application;
    std::string directory;
    std::vector<LoginItem> items;
    if (Failure failure = FindApplication(path, application)) {
        return failure;
    }
    if (Failure failure = FindLoginItems(directory, items)) {
        return failure;
    }
    name = application.name;

    std::string file = directory + '/' + name + std::string(suffix);
    // By either: a copy under another file name would be started twice, and "off" may stand in a file without
    // a name.
    const auto item = std::ranges::find_if(
        items, [&](const LoginItem &known) { return known.entry.name == name || known.file == file; });
    if (item != items.end()) {
        if (item->entry.bSwitchedOff || item->entry.exec == ExecValue(application.program)) {
            return {};
        }
        file = item->file;
    }
    if (Failure failure = MakeDirectories(directory)) {
        return failure;
    }
    return ReplaceFile(file,
                       DesktopEntryText(name, application.comment, application.icon, application.program));
}

Failure DeleteLoginItem(const std::string &name)
{
    std::string directory;
    std::vector<LoginItem> items;
    if (Failure failure = FindLoginItems(directory, items)) {
        return failure;
    }
    for (const LoginItem &item : items) {
        // Somebody else may delete it at the same time.
        if (item.entry.name == name && unlink(item.file.c_str()) != 0 && errno != ENOENT) {
            return {HandlerFailed, "Cannot delete " + item.file + ": " + LastError() + '.'};
        }
    }
    return {};
}
