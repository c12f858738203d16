// SPDX-License-Identifier: MIT
//
// FaultTracer FOLDER LIST [FAULT…] -- PROGRAM [ARGUMENT…]: runs a program, writes a line to the
// file LIST for each change that it is about to make below FOLDER, and prints their number.
// A fault is
//   kill:N          kills the program before its N-th change
//   fail:N=ERROR    has the N-th change fail with ENOSPC, EIO, EDQUOT or EROFS; with "short" it
//                   writes half of the bytes
//   no-exchange     refuses to exchange two paths, as some file systems do, and does not count it
// "write:N" in place of N counts changes of that kind alone. Exits with the program's status, or
// 128 and the number of the signal that ended it.
//
// The program, its threads and the processes that it starts are stopped (seccomp and ptrace) at the
// calls that may be changes, direct ones included, and run at full speed otherwise. A child's kinds
// of changes begin with "child-". A child that outlives the program is waited for.
#include "StoppedCall.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <regex>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int cutShort = -1;
const std::map<std::string, int> errors{
    {"ENOSPC", ENOSPC}, {"EIO", EIO}, {"EDQUOT", EDQUOT}, {"EROFS", EROFS}, {"short", cutShort}};

[[noreturn]] void throwErrno(const char* what)
{
    throw std::system_error(errno, std::generic_category(), what);
}

/// Has the system stop this process, and all that it starts, at each call that may change files.
void installFilter()
{
    std::vector<sock_filter> filter{
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, arch)),
        // The calls of another architecture have other numbers, and would go unseen.
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, AUDIT_ARCH_X86_64, 1, 0),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_KILL_PROCESS),
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        // So would what the kernel is handed through a ring.
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_io_uring_setup, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | ENOSYS),
    };
    for (const auto number : StoppedCall::changing()) {
        filter.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned>(number), 0, 1));
        filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_TRACE));
    }
    filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
    const sock_fprog program{static_cast<unsigned short>(filter.size()), filter.data()};
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 ||
        ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) != 0)
        throwErrno("seccomp");
}

/// Starts the program, traced and with the filter in force.
pid_t start(char** program)
{
    const auto id = ::fork();
    if (id < 0)
        throwErrno("fork");
    if (id == 0) {
        ::raise(SIGSTOP); // until it is traced
        installFilter();
        ::execvp(program[0], program);
        throwErrno(program[0]);
    }
    constexpr auto options = PTRACE_O_TRACESECCOMP | PTRACE_O_TRACECLONE | PTRACE_O_TRACEFORK |
                             PTRACE_O_TRACEVFORK | PTRACE_O_EXITKILL;
    if (::waitpid(id, nullptr, WUNTRACED) != id ||
        ::ptrace(PTRACE_SEIZE, id, nullptr, options) != 0 || ::kill(id, SIGCONT) != 0)
        throwErrno("ptrace");
    return id;
}

class Trace final
{
public:
    Trace(const std::filesystem::path& folder, const std::string& list)
        : m_folder(std::filesystem::canonical(folder))
        , m_list(list)
    {
    }

    void add(const std::string& fault)
    {
        const std::regex form("(kill|fail):(?:([a-z-]+):)?(\\d+)(?:=(\\w+))?");
        std::smatch match;
        if (fault == "no-exchange") {
            m_refusesExchange = true;
        } else if (std::regex_match(fault, match, form)) {
            m_kills = match[1] == "kill";
            m_kind = match[2];
            m_number = std::stoi(match[3]);
            m_error = m_kills ? 0 : errors.at(match[4]);
        } else {
            throw std::invalid_argument("no fault: " + fault);
        }
    }

    /// Lets the program run to its end. Returns its status as a shell does.
    int run(char** program)
    {
        m_program = start(program);
        int result = EXIT_FAILURE;
        int status = 0;
        pid_t thread = 0;
        while ((thread = ::waitpid(-1, &status, __WALL)) > 0) {
            if (WIFSTOPPED(status))
                resume(thread, status);
            else if (thread == m_program)
                result = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
        }
        std::cerr << "FaultTracer: " << m_count << " changes\n";
        return result;
    }

private:
    void resume(pid_t thread, int status)
    {
        const auto event = status >> 16;
        try {
            if (event == PTRACE_EVENT_SECCOMP && !m_isKilled)
                judge(thread);
        } catch (const std::system_error& error) {
            // Another thread may just have ended the program.
            if (error.code() != std::errc::no_such_process)
                throw;
        }
        // What is no event is a signal for the thread.
        ::ptrace(PTRACE_CONT, thread, nullptr, event == 0 ? WSTOPSIG(status) : 0);
    }

    void judge(pid_t thread)
    {
        StoppedCall call(thread);
        auto change = call.changeBelow(m_folder);
        if (!change)
            return;
        if (m_refusesExchange && change->starts_with("exchange ")) {
            call.refuse(EINVAL);
            return;
        }
        const auto tasks = "/proc/" + std::to_string(m_program) + "/task/";
        if (!std::filesystem::exists(tasks + std::to_string(thread)))
            change->insert(0, "child-");
        m_list << *change << '\n';
        ++m_count;
        if ((m_kind.empty() || change->starts_with(m_kind + ' ')) && ++m_countOfKind == m_number)
            apply(call, *change);
    }

    void apply(StoppedCall& call, const std::string& change)
    {
        std::cerr << "FaultTracer: " << (m_kills ? "killed before" : "failed") << " change "
                  << m_count << ": " << change << '\n';
        if (m_kills) {
            m_isKilled = true;
            ::kill(m_program, SIGKILL);
        } else if (m_error == cutShort) {
            call.halve();
        } else {
            call.refuse(m_error);
        }
    }

    const std::filesystem::path m_folder;
    std::ofstream m_list;
    bool m_refusesExchange = false;
    bool m_kills = false;
    std::string m_kind;
    int m_number = 0;
    int m_error = 0;

    pid_t m_program = 0;
    bool m_isKilled = false;
    int m_count = 0;
    int m_countOfKind = 0;
};

} // namespace

int main(int argumentCount, char** arguments)
{
    try {
        const std::vector<std::string> words(arguments, arguments + argumentCount);
        const auto end = std::ranges::find(words, "--") - words.begin();
        if (end < 3 || end + 1 >= argumentCount)
            throw std::invalid_argument("no FOLDER, no LIST or no PROGRAM");
        Trace trace(words[1], words[2]);
        for (auto fault = words.begin() + 3; *fault != "--"; ++fault)
            trace.add(*fault);
        return trace.run(arguments + end + 1);
    } catch (const std::exception& error) {
        std::cerr << "FaultTracer: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
