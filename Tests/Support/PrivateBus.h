// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QString>
#include <QStringList>
#include <QVariantList>

#include <functional>
#include <optional>

/// Makes an empty bus of the tests' own the session's and the system's, on the first call in a
/// program, which has to come before Qt connects to any other. It lasts until the program ends.
void usePrivateBus();

/// A program on the private bus that owns one name, until it is destroyed.
class BusService final : public QDBusVirtualObject
{
public:
    using Answer = std::function<std::optional<QDBusMessage>(const QDBusMessage& call)>;

    /// Answers each call with what `answer` returns, if anything.
    BusService(const QString& name, Answer answer);
    ~BusService() override;

    /// An answer with these values, and one with an error.
    static Answer returns(const QVariantList& values);
    static Answer refuses();

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

    /// How often `method` was called so far.
    [[nodiscard]] qsizetype callsOf(const QString& method) const;
    /// Answers the earliest call after all, which had no answer.
    void answerNow(const QVariantList& values);
    void emitSignal(const QString& path, const QString& interface, const QString& name,
                    const QVariantList& arguments);

    /// Waits until the session's connection has received all that this program has sent so far.
    void waitForDelivery() const;

    QList<QDBusMessage> calls;

private:
    const QString m_connectionName;
    QDBusConnection m_connection;
    const Answer m_answer;
};

/// The one program of a desktop that shows progress on a task bar.
class TaskBarListener final : public QObject
{
    Q_OBJECT

public:
    TaskBarListener();
    ~TaskBarListener() override;

    struct Update
    {
        QString application;
        double progress = 0;
        bool isVisible = false;
    };
    QList<Update> updates;

private Q_SLOTS:
    void receive(const QString& application, const QVariantMap& properties);
};
