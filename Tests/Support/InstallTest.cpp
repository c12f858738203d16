// SPDX-License-Identifier: MIT
#include "Support/InstallTest.h"

#include <utility>

InstallTest::InstallTest()
    : m_data("XDG_DATA_HOME", home.makeFolder(QStringLiteral("data")).toUtf8())
    , m_temporary("TMPDIR", home.makeFolder(QStringLiteral("temporary")).toUtf8())
    , m_host(server.host())
{
}

LogCallback InstallTest::log()
{
    return [this](const QString& line) {
        {
            const std::lock_guard lock(m_mutex);
            m_lines.append(line);
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
    return QStringLiteral("data/Cavernyx Platformer/") + relative;
}

QStringList InstallTest::leftovers() const
{
    return home.names(QStringLiteral("temporary")) +
           home.names(root({})).filter(QStringLiteral(".new-")) +
           home.names(root(QStringLiteral("Engine"))).filter(QStringLiteral(".new-"));
}
