#include "compat/RunShell.h"

#include "compat/Files.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/signalfd.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr std::size_t nMaxOutputBytes = std::size_t(64) << 20;
constexpr std::size_t nMaxErrorBytes = std::size_t(64) << 10;

/// While it lives: the child's end and the signals that would end this process arrive at a descriptor, so
/// that one poll sees everything.
class SignalInbox
{
public:
    SignalInbox()
    {
        std::signal(SIGCHLD, SIG_DFL);
        sigset_t caught;
        sigemptyset(&caught);
        sigaddset(&caught, SIGCHLD);
        for (const int signal : {SIGHUP, SIGINT, SIGTERM}) {
            struct sigaction now = {};
            if (sigaction(signal, nullptr, &now) == 0 && now.sa_handler != SIG_IGN) {
                sigaddset(&caught, signal);
            }
        }
        sigprocmask(SIG_BLOCK, &caught, &before);
        descriptor = signalfd(-1, &caught, SFD_CLOEXEC | SFD_NONBLOCK);
    }
    ~SignalInbox()
    {
        close(descriptor);
        sigprocmask(SIG_SETMASK, &before, nullptr);
    }
    SignalInbox(const SignalInbox &) = delete;
    SignalInbox &operator=(const SignalInbox &) = delete;

    /// A signal that has arrived, else 0.
    int Take() const
    {
        signalfd_siginfo info = {};
        return read(descriptor, &info, sizeof info) == ssize_t(sizeof info) ? static_cast<int>(info.ssi_signo)
                                                                            : 0;
    }

    int descriptor = -1;
    sigset_t before = {};
};

/// The reading end of a pipe from the child.
struct Outlet
{
    std::string &text;
    const std::size_t nMaxBytes;
    int reading = -1;
    int writing = -1;

    bool Open()
    {
        int ends[2] = {-1, -1};
        const bool bOpen = pipe2(ends, O_CLOEXEC) == 0;
        reading = ends[0];
        writing = ends[1];
        return bOpen;
    }
    static void Close(int &descriptor)
    {
        if (descriptor >= 0) {
            close(descriptor);
        }
        descriptor = -1;
    }
    ~Outlet()
    {
        Close(reading);
        Close(writing);
    }
    /// Reads what is there, and closes at the end. What is beyond the maximum is read and lost. @return false
    /// then
    bool Read()
    {
        char chunk[65536];
        const ssize_t nRead = read(reading, chunk, sizeof chunk);
        if (nRead <= 0) {
            if (nRead == 0 || errno != EINTR) {
                Close(reading);
            }
            return true;
        }
        const auto nBytes = static_cast<std::size_t>(nRead);
        text.append(chunk, std::min(nBytes, nMaxBytes - text.size()));
        return text.size() < nMaxBytes;
    }
};

/// @return the child's process id and process group, or -1 with the reason in spawnError
pid_t StartShell(const std::string &command, const sigset_t &mask, int output, int errors, int &spawnError)
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, errors, STDERR_FILENO);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK);
    posix_spawnattr_setsigmask(&attributes, &mask);

    std::string script = command;
    char shell[] = "sh";
    char option[] = "-c";
    char *const arguments[] = {shell, option, script.data(), nullptr};
    pid_t child = -1;
    spawnError = posix_spawn(&child, "/bin/sh", &actions, &attributes, arguments, environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    return spawnError == 0 ? child : -1;
}

int MillisecondsUntil(Deadline deadline)
{
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Deadline::clock::now());
    return static_cast<int>(std::max<std::chrono::milliseconds::rep>(left.count(), 0));
}

} // namespace

Failure RunShell(const std::string &command, Deadline deadline, ShellOutcome &outcome)
{
    const SignalInbox inbox;
    Outlet output = {outcome.output, nMaxOutputBytes};
    Outlet errors = {outcome.errors, nMaxErrorBytes};
    if (inbox.descriptor < 0 || !output.Open() || !errors.Open()) {
        return {HandlerFailed, "Cannot start a command: " + LastError() + "."};
    }
    int spawnError = 0;
    const pid_t child = StartShell(command, inbox.before, output.writing, errors.writing, spawnError);
    if (child < 0) {
        return {HandlerFailed, std::string("Cannot start /bin/sh: ") + std::strerror(spawnError) + "."};
    }
    Outlet::Close(output.writing);
    Outlet::Close(errors.writing);

    int status = 0;
    for (bool bRunning = true; bRunning || output.reading >= 0 || errors.reading >= 0;) {
        // A closed descriptor is negative, which poll passes over.
        pollfd polled[] = {
            {output.reading, POLLIN, 0}, {errors.reading, POLLIN, 0}, {inbox.descriptor, POLLIN, 0}};
        const int msLeft = MillisecondsUntil(deadline);
        if (msLeft == 0) {
            kill(-child, SIGKILL);
            return {TimedOut, "The command did not end in time and was stopped."};
        }
        poll(polled, std::size(polled), msLeft);
        if (polled[0].revents != 0 && !output.Read()) {
            kill(-child, SIGKILL);
            return {HandlerFailed, "The command wrote more than 64 MiB and was stopped."};
        }
        if (polled[1].revents != 0) {
            errors.Read();
        }
        if (const int signal = inbox.Take(); signal != 0 && signal != SIGCHLD) {
            kill(-child, SIGKILL);
            std::raise(signal);
            return {HandlerFailed, "Stopped by a signal."};
        }
        bRunning = bRunning && waitpid(child, &status, WNOHANG) == 0;
    }
    outcome.nStatus = WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
    return {};
}
