// SPDX-License-Identifier: MIT
#pragma once

#include <fstream>
#include <stdexcept>
#include <string>

#include <csignal>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

/// A started program, which is ended with this object.
class Program final
{
public:
    explicit Program(char** command)
    {
        if (::posix_spawnp(&m_pid, command[0], nullptr, nullptr, command, environ) != 0)
            throw std::runtime_error(std::string("Could not start ") + command[0] + ".");
    }
    ~Program()
    {
        ::kill(m_pid, SIGTERM);
        ::waitpid(m_pid, nullptr, 0);
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// The memory that it has in use now, shared libraries included.
    [[nodiscard]] long residentKib() const
    {
        std::ifstream status("/proc/" + std::to_string(m_pid) + "/status");
        for (std::string line; std::getline(status, line);) {
            if (line.starts_with("VmRSS:"))
                return std::stol(line.substr(line.find_first_of("0123456789")));
        }
        throw std::runtime_error("The program has ended.");
    }

private:
    pid_t m_pid = 0;
};
