// SPDX-License-Identifier: MIT
#include "HttpsServer.h"

#include <gtest/gtest.h>

#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslSocket>

#include <memory>

#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509v3.h>

using namespace Qt::StringLiterals;

namespace {

template<auto function>
struct Free
{
    template<typename Object>
    void operator()(Object* object) const
    {
        function(object);
    }
};
using Key = std::unique_ptr<EVP_PKEY, Free<&EVP_PKEY_free>>;
using Certificate = std::unique_ptr<X509, Free<&X509_free>>;
using Memory = std::unique_ptr<BIO, Free<&BIO_free>>;

QByteArray bytesOf(const Memory& memory)
{
    char* bytes = nullptr;
    const auto size = BIO_get_mem_data(memory.get(), &bytes);
    return {bytes, static_cast<qsizetype>(size)};
}

void addExtension(X509* certificate, int kind, const char* value)
{
    const std::unique_ptr<X509_EXTENSION, Free<&X509_EXTENSION_free>> extension(
        X509V3_EXT_conf_nid(nullptr, nullptr, kind, value));
    EXPECT_EQ(X509_add_ext(certificate, extension.get(), -1), 1);
}

/// A certificate for the loopback address that is, as its own issuer, an authority too.
Certificate certificateFor(EVP_PKEY* key)
{
    constexpr long day = 24 * 60 * 60;
    Certificate certificate(X509_new());
    X509_set_version(certificate.get(), X509_VERSION_3);
    ASN1_INTEGER_set(X509_get_serialNumber(certificate.get()), 1);
    X509_gmtime_adj(X509_getm_notBefore(certificate.get()), -day);
    X509_gmtime_adj(X509_getm_notAfter(certificate.get()), day);
    X509_set_pubkey(certificate.get(), key);
    auto* const name = X509_get_subject_name(certificate.get());
    X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC,
                               reinterpret_cast<const unsigned char*>("test"), -1, -1, 0);
    X509_set_issuer_name(certificate.get(), name);
    addExtension(certificate.get(), NID_basic_constraints, "critical,CA:TRUE");
    addExtension(certificate.get(), NID_subject_alt_name, "IP:127.0.0.1");
    EXPECT_NE(X509_sign(certificate.get(), key, EVP_sha256()), 0);
    return certificate;
}

QSslConfiguration newIdentity()
{
    const Key key(EVP_EC_gen("P-256"));
    const auto certificate = certificateFor(key.get());
    const Memory keyText(BIO_new(BIO_s_mem()));
    const Memory certificateText(BIO_new(BIO_s_mem()));
    PEM_write_bio_PrivateKey(keyText.get(), key.get(), nullptr, nullptr, 0, nullptr, nullptr);
    PEM_write_bio_X509(certificateText.get(), certificate.get());
    QSslConfiguration identity;
    identity.setLocalCertificate(QSslCertificate(bytesOf(certificateText)));
    identity.setPrivateKey(QSslKey(bytesOf(keyText), QSsl::Ec));
    identity.setPeerVerifyMode(QSslSocket::VerifyNone);
    return identity;
}

} // namespace

HttpsServer::HttpsServer(const QByteArray& answer)
    : m_answer(answer)
{
    m_server.setSslConfiguration(newIdentity());
    QObject::connect(&m_server, &QTcpServer::pendingConnectionAvailable, &m_server,
                     [this] { serve(); });
    EXPECT_TRUE(m_server.listen(QHostAddress::LocalHost));
}

QUrl HttpsServer::url(const QString& path) const
{
    return QUrl(u"https://127.0.0.1:%1%2"_s.arg(m_server.serverPort()).arg(path));
}

void HttpsServer::serve()
{
    auto* const client = qobject_cast<QSslSocket*>(m_server.nextPendingConnection());
    const auto answer = [this, client] {
        if (!client->peek(64 * 1024).contains("\r\n\r\n"))
            return;
        client->write(m_answer);
        client->disconnectFromHost();
    };
    QObject::connect(client, &QIODevice::readyRead, client, answer);
    answer();
}
