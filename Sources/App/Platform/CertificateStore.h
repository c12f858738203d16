// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <array>
#include <span>

/// Where Debian, Fedora, openSUSE and Arch, in this order, keep the certificates that they trust.
inline constexpr std::array<const char*, 4> usualCertificateFiles{
    "/etc/ssl/certs/ca-certificates.crt",
    "/etc/pki/tls/certs/ca-bundle.crt",
    "/etc/ssl/ca-bundle.pem",
    "/etc/ssl/cert.pem",
};

/// Returns the first file that exists: `builtIn`, which the network library was compiled for, then
/// the usual ones. A program that runs elsewhere than it was built finds the certificates by these.
/// Empty if there is none: what is trusted can then only lie in a folder by hashes.
QByteArray certificateFile(const QByteArray& builtIn,
                           std::span<const char* const> usual = usualCertificateFiles);
