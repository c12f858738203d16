// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWidget>

/// Keeps a double click, or a key that is pressed twice or held, from pressing two controls.
///
/// The presses of such a series belong to the control that got the first one. They are dropped if
/// they would reach another control, or if theirs has been disabled or hidden meanwhile. Presses by
/// assistive technology are not concerned.
class RepeatedPressFilter final : public QObject
{
    Q_OBJECT

public:
    /// Watches all windows of the program. Belongs to `parent`.
    explicit RepeatedPressFilter(QObject& parent);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    struct Press
    {
        /// 0 for the left mouse button.
        int key = Qt::Key_unknown;
        bool isAutoRepeat = false;
        quint64 time = 0;
        QPoint position;
        QPointer<QWidget> receiver;
        /// What the press acts on: the receiver, or the default button.
        QPointer<QWidget> control;
    };

    /// Whether `press` is the last one again, which comes for each parent of its receiver until one
    /// accepts it.
    [[nodiscard]] bool isPropagated(const Press& press) const;

    /// Whether `press` comes in one series with the last one.
    [[nodiscard]] bool continuesSeries(const Press& press) const;
    /// Takes note of `press`. Returns whether it is to be dropped.
    bool drops(Press press);

    Press m_last;
};
