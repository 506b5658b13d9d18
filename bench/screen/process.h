#pragma once

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace quarvel::bench {

/// Ends the benchmark: what cannot be measured is told, and no figure stands for it.
[[noreturn]] inline void fail(const std::string& what) {
    std::fprintf(stderr, "%s: %s\n", program_invocation_short_name, what.c_str());
    std::exit(EXIT_FAILURE); // NOLINT(concurrency-mt-unsafe): one thread only
}

/// A program of its own; `command` is its path, or a name that PATH knows, and its arguments.
class Process {
public:
    explicit Process(std::vector<std::string> command) {
        std::vector<char*> arguments;
        for (std::string& word : command) arguments.push_back(word.data());
        arguments.push_back(nullptr);
        posix_spawn_file_actions_t files;
        ::posix_spawn_file_actions_init(&files);
        // Rows go to standard output, and what a peer writes there is none.
        ::posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        const int error = ::posix_spawnp(&id_, arguments[0], &files, nullptr, arguments.data(), environ);
        ::posix_spawn_file_actions_destroy(&files);
        if (error != 0) fail("'" + command[0] + "' cannot be started");
    }
    Process(Process&& other) noexcept : id_(other.id_) { other.id_ = 0; }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;
    Process& operator=(Process&&) = delete;
    ~Process() { end(); }

    /// Ends it at once, whatever it is doing, and waits until it has gone.
    void end() {
        if (id_ == 0) return;
        ::kill(id_, SIGKILL);
        ::waitpid(id_, nullptr, 0);
        id_ = 0;
    }
    /// Waits until it ends by itself, successfully.
    void waitForEnd() {
        int status = 0;
        ::waitpid(id_, &status, 0);
        id_ = 0;
        if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) fail("a program did not end by itself");
    }
    [[nodiscard]] pid_t id() const { return id_; }

private:
    pid_t id_ = 0;
};

/// Whether Debian's place for programs has one of this name.
inline bool isInstalled(const std::string& program) {
    return ::access(("/usr/bin/" + program).c_str(), X_OK) == 0;
}

} // namespace quarvel::bench
