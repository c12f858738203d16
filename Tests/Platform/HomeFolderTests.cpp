// SPDX-License-Identifier: MIT
#include "Platform/Platform.h"

#include "Support/EnvironmentScope.h"

#include <gtest/gtest.h>

#include <QFile>

#include <pwd.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

TEST(HomeFolder, isWhatTheEnvironmentSaysWithoutATrailingSlash)
{
    const EnvironmentScope home("HOME", "/home/größe/");
    EXPECT_EQ(homeFolder(), u"/home/größe"_s);
}

TEST(HomeFolder, isWhatTheUserDatabaseSaysWhenTheEnvironmentNamesNone)
{
    const auto* const entry = ::getpwuid(::getuid());
    ASSERT_NE(entry, nullptr);
    const auto expected = QFile::decodeName(entry->pw_dir);
    for (const auto& value :
         {std::optional<QByteArray>(), std::optional<QByteArray>(""),
          std::optional<QByteArray>("relative/home"), std::optional<QByteArray>(":/home")}) {
        const EnvironmentScope home("HOME", value);
        EXPECT_EQ(homeFolder(), expected);
    }
}

} // namespace
