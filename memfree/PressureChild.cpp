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

/// Bytes per madvise(). The calls are short because a kernel may not preempt itself within one. With a whole
/// step per call, a program that wakes up every few milliseconds was delayed more than twice as much as usual
/// in five of thirteen rounds; with this size in none of six.
constexpr std::size_t pieceSize = 64 * bytesPerKiB;

/// The next request usually comes at once. If it does not come within this time, the parent is suspended.
constexpr int msPatience = 5000;

bool PopulatePiece(char *start, std::size_t bytes, bool bFile)
{
    if (madvise(start, bytes, bFile ? MADV_POPULATE_READ : MADV_POPULATE_WRITE) == 0) {
        return true;
    }
    // EINVAL: kernels before 5.14 do not know this advice. Any other error means that a page cannot be had.
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

bool PopulateStep(char *start, std::size_t bytes, bool bFile)
{
    for (std::size_t done = 0; done < bytes; done += pieceSize) {
        if (!PopulatePiece(start + done, std::min(pieceSize, bytes - done), bFile)) {
            return false;
        }
    }
    return true;
}

/// The mapped file pages or the mapped anonymous pages, in bytes. statm has all resident pages in its second
/// column and file pages in its third.
std::uint64_t ResidentBytes(bool bFile)
{
    std::string statm;
    unsigned long long totalPages = 0;
    unsigned long long residentPages = 0;
    unsigned long long filePages = 0;
    if (!ReadFile("/proc/self/statm", statm) ||
        sscanf(statm.c_str(), "%llu %llu %llu", &totalPages, &residentPages, &filePages) != 3) {
        return 0;
    }
    return (bFile ? filePages : residentPages - std::min(residentPages, filePages)) *
           static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
}

bool WaitForRequest(int requests, std::uint64_t &bytes)
{
    pollfd request = {requests, POLLIN, 0};
    return poll(&request, 1, msPatience) == 1 && read(requests, &bytes, sizeof bytes) == sizeof bytes;
}

[[noreturn]] void RunChild(const PressureSource &source, pid_t parent, int requests, int replies)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    // A stop signal from the terminal must not suspend this process too.
    setpgid(0, 0);
    // The parent may have died before the prctl().
    if (getppid() != parent) {
        _exit(1);
    }
    // A process may raise its own score without privileges.
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
    // With MADV_SEQUENTIAL the kernel does not count these pages as used because they are mapped. When all
    // older cache is gone, it evicts them rather than the pages that other programs use.
    madvise(memory, source.size, bFile ? MADV_SEQUENTIAL : MADV_HUGEPAGE);
    const std::uint64_t residentBefore = ResidentBytes(bFile);

    std::uint64_t populated = 0;
    std::uint64_t bytes = 0;
    while (WaitForRequest(requests, bytes)) {
        PressureReply reply;
        bytes = std::min(bytes, source.size - populated);
        reply.bPopulated = PopulateStep(static_cast<char *>(memory) + populated, bytes, bFile);
        populated += bytes;
        reply.resident = ResidentBytes(bFile) - residentBefore;
        if (write(replies, &reply, sizeof reply) != sizeof reply) {
            break;
        }
    }
    _exit(0);
}

} // namespace

PressureChild::PressureChild(const PressureSource &source)
{
    int requestPipe[2];
    int replyPipe[2];
    if (pipe2(requestPipe, O_CLOEXEC) != 0) {
        return;
    }
    if (pipe2(replyPipe, O_CLOEXEC) != 0) {
        close(requestPipe[0]);
        close(requestPipe[1]);
        return;
    }
    const pid_t parent = getpid();
    child = fork();
    if (child == 0) {
        close(requestPipe[1]);
        close(replyPipe[0]);
        RunChild(source, parent, requestPipe[0], replyPipe[1]);
    }
    close(requestPipe[0]);
    close(replyPipe[1]);
    requests = requestPipe[1];
    replies = replyPipe[0];
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

bool PressureChild::Populate(std::uint64_t bytes)
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

ChildEnd PressureChild::End() const
{
    siginfo_t end = {};
    // A dying process closes its pipes shortly before it becomes a zombie, so this waits for the end.
    if (!bGone || waitid(P_PID, static_cast<id_t>(child), &end, WEXITED | WNOWAIT) != 0) {
        return ChildEnd::Failed;
    }
    if (end.si_code != CLD_EXITED) {
        return ChildEnd::Killed;
    }
    return end.si_status == 0 ? ChildEnd::NotNeeded : ChildEnd::Failed;
}
