// SPDX-License-Identifier: MIT
#include "StoppedCall.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <system_error>

#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>

namespace {

/// How a system call is told which file to change.
enum class By {
    nothing,
    path,       ///< the argument at the index is the path
    pathAt,     ///< the argument at the index is a folder's descriptor, the next one the path
    descriptor, ///< the argument at the index is the file's descriptor
};

constexpr long fchmodat2 = 452; // Newer than the headers of some systems.

bool isBelow(const std::filesystem::path& folder, const std::filesystem::path& path)
{
    return std::ranges::mismatch(folder, path).in1 == folder.end();
}

} // namespace

struct StoppedCall::Operand
{
    By by = By::nothing;
    std::size_t index = 0;
};

struct StoppedCall::Change
{
    std::string kind;
    std::vector<long> calls;
    Operand file;
    Operand secondFile = {};
};

const std::vector<StoppedCall::Change> StoppedCall::changes{
    {"open", {SYS_open, SYS_creat}, {By::path, 0}},
    {"open", {SYS_openat, SYS_openat2}, {By::pathAt, 0}},
    {"write", {SYS_write, SYS_pwrite64, SYS_sendfile}, {By::descriptor, 0}},
    {"write", {SYS_writev, SYS_pwritev, SYS_pwritev2}, {By::descriptor, 0}},
    {"write", {SYS_copy_file_range}, {By::descriptor, 2}},
    {"truncate", {SYS_truncate}, {By::path, 0}},
    {"truncate", {SYS_ftruncate}, {By::descriptor, 0}},
    {"allocate", {SYS_fallocate}, {By::descriptor, 0}},
    {"mkdir", {SYS_mkdir}, {By::path, 0}},
    {"mkdir", {SYS_mkdirat}, {By::pathAt, 0}},
    {"rmdir", {SYS_rmdir}, {By::path, 0}},
    {"unlink", {SYS_unlink}, {By::path, 0}},
    {"unlink", {SYS_unlinkat}, {By::pathAt, 0}},
    {"rename", {SYS_rename}, {By::path, 0}, {By::path, 1}},
    {"rename", {SYS_renameat, SYS_renameat2}, {By::pathAt, 0}, {By::pathAt, 2}},
    {"link", {SYS_link}, {By::path, 0}, {By::path, 1}},
    {"link", {SYS_linkat}, {By::pathAt, 0}, {By::pathAt, 2}},
    {"symlink", {SYS_symlink}, {By::path, 1}},
    {"symlink", {SYS_symlinkat}, {By::pathAt, 1}},
    {"chmod", {SYS_chmod}, {By::path, 0}},
    {"chmod", {SYS_fchmod}, {By::descriptor, 0}},
    {"chmod", {SYS_fchmodat, fchmodat2}, {By::pathAt, 0}},
    {"utimes", {SYS_utimensat}, {By::pathAt, 0}},
    {"sync", {SYS_syncfs, SYS_fsync, SYS_fdatasync, SYS_sync_file_range}, {By::descriptor, 0}},
};

StoppedCall::StoppedCall(pid_t thread)
    : m_thread(thread)
{
    if (::ptrace(PTRACE_GETREGS, m_thread, nullptr, &m_registers) != 0)
        throw std::system_error(errno, std::generic_category(), "ptrace");
    m_arguments = {m_registers.rdi, m_registers.rsi, m_registers.rdx, m_registers.r10,
                   m_registers.r8};
}

std::vector<long> StoppedCall::changing()
{
    std::vector<long> numbers;
    for (const auto& change : changes)
        numbers.insert(numbers.end(), change.calls.begin(), change.calls.end());
    return numbers;
}

std::optional<std::string> StoppedCall::changeBelow(const std::filesystem::path& folder) const
{
    const auto number = static_cast<long>(m_registers.orig_rax);
    const auto change = std::ranges::find_if(changes, [number](const Change& candidate) {
        return std::ranges::find(candidate.calls, number) != candidate.calls.end();
    });
    if (change == changes.end() || (change->kind == "open" && !opensToChange()))
        return std::nullopt;
    const auto first = path(change->file);
    const auto second = path(change->secondFile);
    if (!isBelow(folder, first) && !isBelow(folder, second))
        return std::nullopt;
    auto kind = change->kind;
    if (number == SYS_unlinkat && (m_arguments[2] & AT_REMOVEDIR) != 0)
        kind = "rmdir";
    if (number == SYS_renameat2 && (m_arguments[4] & RENAME_EXCHANGE) != 0)
        kind = "exchange";
    auto description = kind + ' ' + first.lexically_relative(folder).string();
    if (!second.empty())
        description += " -> " + second.lexically_relative(folder).string();
    return description;
}

bool StoppedCall::opensToChange() const
{
    std::uint64_t flags = O_CREAT;
    if (m_registers.orig_rax == SYS_open)
        flags = m_arguments[1];
    else if (m_registers.orig_rax == SYS_openat)
        flags = m_arguments[2];
    else if (m_registers.orig_rax == SYS_openat2) // the first field of a structure
        flags = static_cast<std::uint64_t>(
            ::ptrace(PTRACE_PEEKDATA, m_thread, m_arguments[2], nullptr));
    return (flags & O_PATH) == 0 &&
           ((flags & O_ACCMODE) != O_RDONLY || (flags & (O_CREAT | O_TRUNC)) != 0);
}

/// The absolute path of the file, links not resolved. Of a descriptor of something else a name such
/// as "pipe:[7]".
std::filesystem::path StoppedCall::path(const Operand& operand) const
{
    if (operand.by == By::nothing)
        return {};
    const auto number = static_cast<int>(m_arguments[operand.index]);
    const auto isCurrent = operand.by == By::path || number == AT_FDCWD;
    const auto base = linkTarget(isCurrent ? "cwd" : "fd/" + std::to_string(number));
    if (operand.by == By::descriptor)
        return base;
    const auto address = m_arguments[operand.by == By::path ? operand.index : operand.index + 1];
    const auto name = address == 0 ? std::string() : textAt(address);
    return name.empty() ? base : (base / name).lexically_normal();
}

std::string StoppedCall::textAt(unsigned long long address) const
{
    std::ifstream memory("/proc/" + std::to_string(m_thread) + "/mem");
    memory.seekg(static_cast<std::streamoff>(address));
    std::string text;
    std::getline(memory, text, '\0');
    return text;
}

std::filesystem::path StoppedCall::linkTarget(const std::string& name) const
{
    std::error_code error;
    return std::filesystem::read_symlink("/proc/" + std::to_string(m_thread) + '/' + name, error);
}

void StoppedCall::refuse(int error)
{
    m_registers.orig_rax = static_cast<unsigned long long>(-1); // no call
    m_registers.rax = static_cast<unsigned long long>(-error);
    setRegisters();
}

void StoppedCall::halve()
{
    if (m_registers.orig_rax != SYS_write && m_registers.orig_rax != SYS_pwrite64)
        throw std::runtime_error("only write() and pwrite() can be cut short");
    m_registers.rdx = std::max(m_registers.rdx / 2, 1ULL);
    setRegisters();
}

void StoppedCall::setRegisters()
{
    if (::ptrace(PTRACE_SETREGS, m_thread, nullptr, &m_registers) != 0)
        throw std::system_error(errno, std::generic_category(), "ptrace");
}
