// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>
#include <sys/user.h>

/// A system call that a thread is about to make while its tracer holds it. Linux on x86-64.
class StoppedCall final
{
public:
    /// Throws std::system_error when the thread is gone.
    explicit StoppedCall(pid_t thread);

    /// The numbers of the system calls that may change files, except their owners and extended
    /// attributes. A file that is mapped to memory is changed without a call.
    static std::vector<long> changing();

    /// Describes the change that the call makes below `folder`, which is absolute and without
    /// links, by a kind and paths relative to it, as in "rename a -> b". Nothing when it makes
    /// none. To open a file is a change when it creates or truncates the file or lets write to it.
    [[nodiscard]] std::optional<std::string> changeBelow(const std::filesystem::path& folder) const;

    /// Has the call fail with `error` instead of being made.
    void refuse(int error);
    /// Has write() or pwrite() write half of the bytes, but at least one. Throws std::runtime_error
    /// for any other call.
    void halve();

private:
    struct Operand;
    struct Change;
    static const std::vector<Change> changes;

    [[nodiscard]] bool opensToChange() const;
    [[nodiscard]] std::filesystem::path path(const Operand& operand) const;
    [[nodiscard]] std::string textAt(unsigned long long address) const;
    [[nodiscard]] std::filesystem::path linkTarget(const std::string& name) const;
    void setRegisters();

    pid_t m_thread;
    user_regs_struct m_registers = {};
    std::array<unsigned long long, 5> m_arguments = {};
};
