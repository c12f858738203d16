// SPDX-License-Identifier: MIT
#include "Views/FailureReport.h"

#include "AppModel.h"
#include "Views/BorderedButton.h"
#include "Views/LongTextEdit.h"
#include "Views/Stack.h"
#include "Views/SystemColors.h"
#include "Views/TextBox.h"

namespace {

constexpr auto spacing = 6;
constexpr auto boxHeight = 170;

QColor boxTint(const QPalette& palette)
{
    return SystemColors::withOpacity(SystemColors::red(palette), 0.08);
}

} // namespace

FailureReport::FailureReport(AppModel& model)
    : m_model(model)
{
    connect(&m_model, &AppModel::changed, this, &FailureReport::refresh);
    refresh();
}

void FailureReport::build()
{
    m_box = new TextBox(tr("Failure report"), boxHeight, boxTint);
    auto* const copy = new BorderedButton(tr("Copy"));
    connect(copy, &QPushButton::clicked, &m_model, &AppModel::copyFailure);
    stackVertically(*this, spacing, 0, {m_box, leading(copy)});
    // What is made later would otherwise come last when the keyboard goes through the window.
    setTabOrder(previousInFocusChain(), &m_box->edit());
    setTabOrder(&m_box->edit(), copy);
}

void FailureReport::refresh()
{
    const auto& report = m_model.failureText();
    const auto shown = m_model.phase() == Phase::Kind::needs && report;
    if (shown && !m_box)
        build();
    if (shown)
        m_box->setText(*report);
    setVisible(shown);
}
