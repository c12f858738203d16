// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QWidget;

/// What is wrong with the layout of `root` and everything visible in it, in one sentence each:
/// texts that are cut, elided or broken inside a word of a control, widgets that reach beyond their
/// parent and widgets that overlap.
///
/// The needed sizes are measured here, not asked of the widgets.
QStringList layoutFaults(const QWidget& root);
