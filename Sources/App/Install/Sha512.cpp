// SPDX-License-Identifier: MIT
#include "Install/Sha512.h"

#include "System/Errors.h"
#include "System/InputFile.h"

#include <QScopeGuard>

#include <openssl/crypto.h>
#include <openssl/evp.h>

#include <array>
#include <memory>

namespace {

class Hash final
{
public:
    Hash() { check(m_context && EVP_DigestInit_ex(m_context.get(), EVP_sha512(), nullptr) == 1); }

    void add(const char* bytes, std::size_t size)
    {
        check(EVP_DigestUpdate(m_context.get(), bytes, size) == 1);
    }

    QByteArray digest()
    {
        std::array<unsigned char, EVP_MAX_MD_SIZE> bytes = {};
        unsigned int size = 0;
        check(EVP_DigestFinal_ex(m_context.get(), bytes.data(), &size) == 1);
        return {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(size)};
    }

private:
    static void check(bool succeeded)
    {
        if (!succeeded)
            throw PlatformError(PlatformError::tr("Could not compute a SHA-512 checksum."));
    }

    struct Free
    {
        void operator()(EVP_MD_CTX* context) const { EVP_MD_CTX_free(context); }
    };
    std::unique_ptr<EVP_MD_CTX, Free> m_context{EVP_MD_CTX_new()};
};

} // namespace

QString sha512(const InputFile& file, const std::stop_token& stop)
{
    // Fits into the processor's cache. With pieces of megabytes, hashing takes a fifth longer.
    constexpr std::size_t pieceSize = 65'536;
    // OpenSSL frees its thread-local data when the thread ends, which for a pool thread may be
    // after the end of main().
    const auto releaseThread = qScopeGuard(&OPENSSL_thread_stop);
    Hash hash;
    const auto buffer = std::make_unique_for_overwrite<char[]>(pieceSize);
    for (qint64 offset = 0;;) {
        throwIfCancelled(stop);
        const auto size = file.readAt(offset, buffer.get(), pieceSize);
        if (size == 0)
            break;
        hash.add(buffer.get(), size);
        offset += static_cast<qint64>(size);
    }
    return QString::fromLatin1(hash.digest().toHex());
}
