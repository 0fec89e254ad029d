#include "memfree/PressureFile.h"

#include "memfree/TimedChild.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <linux/magic.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <unistd.h>

namespace {

// Missing from some versions of linux/magic.h.
constexpr std::uint32_t xfsMagic = 0x58465342;
constexpr std::uint32_t bcachefsMagic = 0xca451a4e;

/// A disk that sleeps may need longer, and is then awake for the smaller sizes.
constexpr int msDirectoryTimeout = 1000;

bool IsOnDisk(const std::string &directory)
{
    constexpr std::uint32_t known[] = {EXT4_SUPER_MAGIC, xfsMagic,      BTRFS_SUPER_MAGIC,
                                       F2FS_SUPER_MAGIC, bcachefsMagic, OVERLAYFS_SUPER_MAGIC};
    struct statfs about = {};
    return statfs(directory.c_str(), &about) == 0 &&
           std::ranges::find(known, static_cast<std::uint32_t>(about.f_type)) != std::end(known);
}

/// An overlay does not tell which file system is below it. On a live system that is often in memory, where
/// reading a hole allocates a block.
bool KeepsHoles(int descriptor)
{
    const auto pageBytes = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    void *page = mmap(nullptr, pageBytes, PROT_READ, MAP_SHARED, descriptor, 0);
    if (page == MAP_FAILED) {
        return false;
    }
    static_cast<void>(*static_cast<const volatile char *>(page));
    munmap(page, pageBytes);
    struct stat status = {};
    return fstat(descriptor, &status) == 0 && status.st_blocks == 0;
}

int OpenUnlinked(const std::string &directory)
{
    const int descriptor = open(directory.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600);
    if (descriptor >= 0 || (errno != EOPNOTSUPP && errno != EISDIR && errno != EINVAL)) {
        return descriptor;
    }
    // Overlays support O_TMPFILE only since kernel 6.3.
    std::string path = directory + "/.memfree-XXXXXX";
    const int named = mkostemp(path.data(), O_CLOEXEC);
    if (named >= 0) {
        unlink(path.c_str());
    }
    return named;
}

} // namespace

std::vector<std::string> PressureDirectories()
{
    std::vector<std::string> directories;
    const auto add = [&directories](const char *variable, const std::string &below) {
        const char *value = getenv(variable);
        if (value && value[0] == '/') {
            directories.push_back(value + below);
        }
    };
    add("XDG_CACHE_HOME", "");
    add("HOME", "/.cache");
    add("HOME", "");
    directories.insert(directories.end(), {"/var/tmp", "/tmp"});
    return directories;
}

PressureFile FindPressureFile(const std::vector<std::string> &directories, std::uint64_t size)
{
    for (const std::uint64_t divisor : {1U, 2U, 4U}) {
        for (const std::string &directory : directories) {
            PressureFile file = {directory, size / divisor};
            if (SucceedsWithin(msDirectoryTimeout, [&file] { return OpenPressureFile(file) >= 0; })) {
                return file;
            }
        }
    }
    return {};
}

int OpenPressureFile(const PressureFile &file)
{
    // Checked first, so that nothing is created on a network file system.
    const int descriptor = IsOnDisk(file.directory) ? OpenUnlinked(file.directory) : -1;
    if (descriptor < 0) {
        return -1;
    }
    const auto pageBytes = static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
    if (ftruncate(descriptor, static_cast<off_t>(std::max(file.size, pageBytes))) == 0 &&
        KeepsHoles(descriptor)) {
        return descriptor;
    }
    close(descriptor);
    return -1;
}
