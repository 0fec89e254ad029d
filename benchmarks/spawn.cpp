// The least that a sample can cost: posix_spawn of the very interpreter that the runner starts, the script
// through one pipe and the answer through another.
//   bench_spawn INTERPRETER COUNT
// One line: median microseconds.

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr std::string_view script = "do shell script \"vm_stat\"";

/// Bytes of the answer; 0 or less when there was none.
ssize_t Sample(const char *interpreter)
{
    std::array<int, 2> in{};
    std::array<int, 2> out{};
    if (pipe2(in.data(), O_CLOEXEC) != 0 || pipe2(out.data(), O_CLOEXEC) != 0) {
        return -1;
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, in[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, out[1], STDOUT_FILENO);
    std::array<char *, 4> arguments{const_cast<char *>(interpreter), const_cast<char *>("-l"),
                                    const_cast<char *>("AppleScript"), nullptr};
    pid_t pid = 0;
    const int error = posix_spawn(&pid, interpreter, &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(in[0]);
    close(out[1]);

    ssize_t nAnswer = error == 0 ? write(in[1], script.data(), script.size()) : -1;
    close(in[1]);
    std::array<char, 65536> answer{};
    if (nAnswer > 0) {
        nAnswer = read(out[0], answer.data(), answer.size());
    }
    close(out[0]);
    if (error == 0) {
        waitpid(pid, nullptr, 0);
    }
    return nAnswer;
}

} // namespace

int main(int argc, char **argv)
{
    const size_t nSamples = argc > 2 ? std::max(1UL, std::strtoul(argv[2], nullptr, 10)) : 300;
    std::vector<double> microseconds;
    for (size_t i = 0; i < nSamples; ++i) {
        const auto start = std::chrono::steady_clock::now();
        if (argc < 2 || Sample(argv[1]) <= 0) {
            std::fputs("bench_spawn: no answer from the interpreter\n", stderr);
            return 1;
        }
        microseconds.push_back(
            std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count());
    }
    const auto middle = microseconds.begin() + static_cast<std::ptrdiff_t>(nSamples / 2);
    std::nth_element(microseconds.begin(), middle, microseconds.end());
    std::printf("%.1f\n", *middle);
}
