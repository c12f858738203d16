// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <array>
#include <span>

/// The trusted certificates of Debian, Fedora, openSUSE and Arch, in this order.
inline constexpr std::array<const char*, 4> usualCertificateFiles{
    "/etc/ssl/certs/ca-certificates.crt",
    "/etc/pki/tls/certs/ca-bundle.crt",
    "/etc/ssl/ca-bundle.pem",
    "/etc/ssl/cert.pem",
};

/// Returns the first file that exists: `builtIn`, the default of the network library, which may
/// have been built on another distribution, then the usual ones. Returns nothing if none exists;
/// libcurl then uses its folder of certificates.
QByteArray certificateFile(const QByteArray& builtIn,
                           std::span<const char* const> usual = usualCertificateFiles);
