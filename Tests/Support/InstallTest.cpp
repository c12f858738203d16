// SPDX-License-Identifier: MIT
#include "Support/InstallTest.h"

#include "Install/StaleFolders.h"

#include <QRegularExpression>

#include <utility>

using namespace Qt::StringLiterals;

InstallTest::InstallTest()
    : m_data("XDG_DATA_HOME", home.makeFolder(u"data"_s).toUtf8())
    , m_temporary("TMPDIR", home.makeFolder(u"temporary"_s).toUtf8())
    , m_host(server.host())
    , m_lock(home.path(u"lock.lock"_s))
{
    m_lock.tryAcquire();
}

LogCallback InstallTest::log()
{
    return [this](const QString& line) {
        {
            const std::lock_guard lock(m_mutex);
            m_lines += line.split(u'\n');
        }
        if (m_atLine && line.contains(m_lineText))
            m_atLine();
    };
}

QStringList InstallTest::lines()
{
    const std::lock_guard lock(m_mutex);
    return m_lines;
}

void InstallTest::atLine(const QString& text, std::function<void()> action)
{
    m_lineText = text;
    m_atLine = std::move(action);
}

void InstallTest::stopAtLine(const QString& text)
{
    atLine(text, [this] { stop.request_stop(); });
}

QString InstallTest::root(const QString& relative)
{
    return u"data/Cavernyx Platformer/"_s + relative;
}

QStringList InstallTest::leftovers() const
{
    return home.names(u"temporary"_s) +
           home.names(root({})).filter(QRegularExpression(u"\\.(new|old)-"_s)) +
           home.names(root(u"Engine"_s)).filter(QRegularExpression(u"\\.(new|old)-"_s));
}

void InstallTest::clearLeftovers()
{
    StaleFolders::remove(StaleFolders::putBackAndList(m_lock));
}
