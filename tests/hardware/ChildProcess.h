// A program run by a test: its input and output are pipes, and no wait is without a deadline.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace zpsg::hardware {

/// Not thread-safe. What still runs at the end of its life is killed.
class ChildProcess {
public:
    /// Starts `program` (a path) with these arguments. What it writes to stderr goes where the test's does.
    /// Throws std::system_error when it can't be started.
    explicit ChildProcess(const std::string &program, const std::vector<std::string> &arguments = {});
    ~ChildProcess();
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    /// To its standard input. False when it has closed it.
    [[nodiscard]] bool write(const std::string &text) const;
    void closeInput();

    /// The next line of its standard output, without the line's end. Nothing when none came in time, or the
    /// output has ended.
    std::optional<std::string> readLine(std::chrono::milliseconds wait);
    /// The next line that contains `part`; lines before it are dropped.
    std::optional<std::string> readLineWith(const std::string &part, std::chrono::milliseconds wait);

    void signal(int number) const;
    /// Its exit status, 128 + n when signal n ended it; nothing when it still runs after `wait`.
    std::optional<int> wait(std::chrono::milliseconds wait);

    [[nodiscard]] pid_t pid() const { return pid_; }

private:
    pid_t pid_ = -1;
    int ended_ = -1; // a pidfd: readable once the process has ended
    int input_ = -1;
    int output_ = -1;
    std::string buffer_;
    std::optional<int> status_;
};

} // namespace zpsg::hardware
