#include "ChildProcess.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace zpsg::hardware {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

void check(int error, const char *what) {
    if (error != 0) {
        throw std::system_error(error, std::generic_category(), what);
    }
}

bool readable(int descriptor, Clock::time_point deadline) {
    while (true) {
        const auto left = std::chrono::ceil<milliseconds>(deadline - Clock::now()).count();
        pollfd wait{descriptor, POLLIN, 0};
        const int count = poll(&wait, 1, left > 0 ? static_cast<int>(left) : 0);
        if (count >= 0 || errno != EINTR) {
            return count > 0;
        }
    }
}

} // namespace

ChildProcess::ChildProcess(const std::string &program, const std::vector<std::string> &arguments) {
    // A child that has gone is a failed write, not the end of the test program.
    std::signal(SIGPIPE, SIG_IGN);
    std::array<int, 2> in{}, out{};
    check(pipe2(in.data(), O_CLOEXEC) == 0 ? 0 : errno, "pipe");
    check(pipe2(out.data(), O_CLOEXEC) == 0 ? 0 : errno, "pipe");

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, in[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, out[1], STDOUT_FILENO);
    std::vector<std::string> words{program};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char *> pointers;
    pointers.reserve(words.size() + 1);
    for (auto &word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    const int error = posix_spawn(&pid_, program.c_str(), &actions, nullptr, pointers.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(in[0]);
    close(out[1]);
    input_ = in[1];
    output_ = out[0];
    if (error == 0) {
        ended_ = static_cast<int>(syscall(SYS_pidfd_open, pid_, 0));
        return;
    }
    close(input_);
    close(output_);
    check(error, program.c_str());
}

ChildProcess::~ChildProcess() {
    if (!status_) {
        signal(SIGKILL);
        waitpid(pid_, nullptr, 0);
    }
    closeInput();
    close(output_);
    close(ended_);
}

bool ChildProcess::write(const std::string &text) const {
    return ::write(input_, text.data(), text.size()) == static_cast<ssize_t>(text.size());
}

void ChildProcess::closeInput() {
    if (input_ >= 0) {
        close(input_);
        input_ = -1;
    }
}

std::optional<std::string> ChildProcess::readLine(milliseconds wait) {
    const auto deadline = Clock::now() + wait;
    while (true) {
        if (const auto end = buffer_.find('\n'); end != std::string::npos) {
            std::string line = buffer_.substr(0, end);
            buffer_.erase(0, end + 1);
            return line;
        }
        std::array<char, 4096> bytes{};
        const ssize_t count = readable(output_, deadline) ? read(output_, bytes.data(), bytes.size()) : 0;
        if (count <= 0) {
            return std::nullopt;
        }
        buffer_.append(bytes.data(), static_cast<std::size_t>(count));
    }
}

std::optional<std::string> ChildProcess::readLineWith(const std::string &part, milliseconds wait) {
    const auto deadline = Clock::now() + wait;
    while (true) {
        auto line = readLine(std::chrono::ceil<milliseconds>(deadline - Clock::now()));
        if (!line || line->find(part) != std::string::npos) {
            return line;
        }
    }
}

void ChildProcess::signal(int number) const {
    if (!status_) {
        kill(pid_, number);
    }
}

std::optional<int> ChildProcess::wait(milliseconds wait) {
    int status = 0;
    if (!status_ && readable(ended_, Clock::now() + wait) && waitpid(pid_, &status, 0) == pid_) {
        status_ = WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
    }
    return status_;
}

} // namespace zpsg::hardware
