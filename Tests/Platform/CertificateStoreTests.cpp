// SPDX-License-Identifier: MIT
#include "Platform/CertificateStore.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class CertificateStoreTest : public testing::Test
{
protected:
    QByteArray file(const QString& name)
    {
        return QFile::encodeName(folder.write(name, "certificates"));
    }

    TestFolder folder;
    const QByteArray missing = QFile::encodeName(folder.path(u"missing.pem"_s));
};

} // namespace

TEST_F(CertificateStoreTest, takesWhatTheNetworkLibraryWasBuiltFor)
{
    const auto builtIn = file(u"built-in.pem"_s);
    const auto other = file(u"other.pem"_s);

    EXPECT_EQ(certificateFile(builtIn, std::array{other.constData()}), builtIn);
}

TEST_F(CertificateStoreTest, takesTheFirstUsualFileThatExistsElsewhere)
{
    const auto first = file(u"first.pem"_s);
    const auto second = file(u"second.pem"_s);

    EXPECT_EQ(certificateFile(
                  missing, std::array{missing.constData(), first.constData(), second.constData()}),
              first);
}

TEST_F(CertificateStoreTest, isEmptyWhereThereIsNoFile)
{
    EXPECT_EQ(certificateFile(missing, std::array{missing.constData()}), QByteArray());
    EXPECT_EQ(certificateFile(QByteArray(), std::array{missing.constData()}), QByteArray());
}
