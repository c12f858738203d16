// SPDX-License-Identifier: MIT
#include "Views/FailureReport.h"

#include "Controls/Boxes.h"
#include "Controls/Buttons.h"
#include "Controls/LongTextEdit.h"
#include "Controls/Stack.h"
#include "Controls/SystemColors.h"
#include "Model/AppModel.h"

FailureReport::FailureReport(AppModel& model)
    : m_model(model)
{
    connect(&m_model, &AppModel::changed, this, &FailureReport::refresh);
    refresh();
}

void FailureReport::build()
{
    //: What a screen reader calls the box with the text of a failure.
    m_box = new TextBox(tr("Failure report"), 170, [](const QPalette& palette) {
        return SystemColors::withOpacity(SystemColors::red(palette), 0.08);
    });
    //: The button that copies the text of a failure.
    auto* const copy = new BorderedButton(tr("Copy"), [this] { m_model.copyFailure(); });
    stackVertically(*this, {.spacing = 6}, {m_box, {copy, Qt::AlignLeading}});
    // By default, widgets created later come last in the tab order.
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
