// SPDX-License-Identifier: MIT
#include "Views/LogDisclosure.h"

#include "AppModel.h"
#include "Views/DisclosureButton.h"
#include "Views/LogView.h"
#include "Views/Stack.h"

#include <QLayout>

#include <utility>

LogDisclosure::LogDisclosure(AppModel& model)
    : m_model(model)
    , m_title(new DisclosureButton(tr("Show log")))
{
    stackVertically(*this, 0, 0, {leading(m_title)});
    connect(m_title, &QPushButton::toggled, &m_model, &AppModel::setShowLog);
    connect(&m_model, &AppModel::changed, this, &LogDisclosure::refresh);
    refresh();
}

void LogDisclosure::refresh()
{
    const auto shown = m_model.showLog();
    m_title->setChecked(shown);
    if (shown && !m_log) {
        m_log = new LogView(m_model);
        layout()->addWidget(m_log);
        m_log->followInTabOrder(*m_title);
        Q_EMIT disclosed(m_log);
    } else if (!shown && m_log) {
        delete std::exchange(m_log, nullptr);
    }
}
