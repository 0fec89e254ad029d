#include "memfree/PressureChild.h"

#include "memfree/ByteCount.h"
#include "memfree/Files.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <poll.h>
#include <string>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// Short calls, since a kernel may not preempt itself before one ends. With a whole step in one, a program
/// that wakes up every few milliseconds was in five rounds of thirteen delayed more than twice as much as
/// usual; so in none of six.
constexpr std::size_t piece = 64 * bytesPerKiB;

/// Kernels before 5.14 do not know the request; others stop at a page that they cannot get.
bool PopulatePiece(char *start, std::size_t bytes, bool bFile)
{
    if (madvise(start, bytes, bFile ? MADV_POPULATE_READ : MADV_POPULATE_WRITE) == 0) {
        return true;
    }
    if (errno != EINVAL) {
        return false;
    }
    const auto pageBytes = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    for (std::size_t offset = 0; offset < bytes; offset += pageBytes) {
        volatile char *page = start + offset;
        if (bFile) {
            static_cast<void>(*page);
        } else {
            *page = 1;
        }
    }
    return true;
}

bool Populate(char *start, std::size_t bytes, bool bFile)
{
    for (std::size_t done = 0; done < bytes; done += piece) {
        if (!PopulatePiece(start + done, std::min(piece, bytes - done), bFile)) {
            return false;
        }
    }
    return true;
}

/// The pages mapped, in bytes: file pages stand third in statm, all pages second.
std::uint64_t ResidentBytes(bool bFile)
{
    std::string statm;
    unsigned long long total = 0;
    unsigned long long all = 0;
    unsigned long long file = 0;
    if (!ReadFile("/proc/self/statm", statm) ||
        sscanf(statm.c_str(), "%llu %llu %llu", &total, &all, &file) != 3) {
        return 0;
    }
    return (bFile ? file : all - std::min(all, file)) * static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
}

[[noreturn]] void Run(const PressureSource &source, pid_t parent, int requests, int replies)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent) {
        _exit(1);
    }
    // Raising one's own needs no privilege.
    if (const int score = open("/proc/self/oom_score_adj", O_WRONLY | O_CLOEXEC); score >= 0) {
        WriteAll(score, "1000");
        close(score);
    }

    const bool bFile = source.descriptor >= 0;
    void *memory =
        mmap(nullptr, source.size, bFile ? PROT_READ : PROT_READ | PROT_WRITE,
             bFile ? MAP_SHARED : MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, source.descriptor, 0);
    if (memory == MAP_FAILED) {
        _exit(1);
    }
    // Sequential: the kernel does not count these pages as used when it finds them mapped. When everything
    // older is gone it takes them, and not the pages that other programs use.
    madvise(memory, source.size, bFile ? MADV_SEQUENTIAL : MADV_HUGEPAGE);
    const std::uint64_t own = ResidentBytes(bFile);

    std::uint64_t pressed = 0;
    std::uint64_t bytes = 0;
    while (read(requests, &bytes, sizeof bytes) == sizeof bytes) {
        PressureReply reply;
        bytes = std::min(bytes, source.size - pressed);
        reply.bDone = Populate(static_cast<char *>(memory) + pressed, bytes, bFile);
        pressed += bytes;
        reply.resident = ResidentBytes(bFile) - own;
        if (write(replies, &reply, sizeof reply) != sizeof reply) {
            break;
        }
    }
    _exit(0);
}

} // namespace

PressureChild::PressureChild(const PressureSource &source)
{
    int there[2];
    int back[2];
    if (pipe2(there, O_CLOEXEC) != 0) {
        return;
    }
    if (pipe2(back, O_CLOEXEC) != 0) {
        close(there[0]);
        close(there[1]);
        return;
    }
    const pid_t parent = getpid();
    child = fork();
    if (child == 0) {
        close(there[1]);
        close(back[0]);
        Run(source, parent, there[0], back[1]);
    }
    close(there[0]);
    close(back[1]);
    requests = there[1];
    replies = back[0];
}

PressureChild::~PressureChild()
{
    if (child > 0) {
        kill(child, SIGKILL);
        while (waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
        }
    }
    if (requests >= 0) {
        close(requests);
        close(replies);
    }
}

bool PressureChild::Press(std::uint64_t bytes)
{
    bGone = write(requests, &bytes, sizeof bytes) != sizeof bytes;
    return !bGone;
}

bool PressureChild::WaitForReply(int ms, PressureReply &reply)
{
    pollfd answer = {replies, POLLIN, 0};
    if (poll(&answer, 1, ms) != 1) {
        return false;
    }
    if (read(replies, &reply, sizeof reply) != sizeof reply) {
        reply = {};
        bGone = true;
    }
    return true;
}

bool PressureChild::Killed() const
{
    siginfo_t end = {};
    // Its pipes are closed a moment before it can be waited for.
    return bGone && waitid(P_PID, static_cast<id_t>(child), &end, WEXITED | WNOWAIT) == 0 &&
           end.si_code != CLD_EXITED;
}
