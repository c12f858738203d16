// SPDX-License-Identifier: MIT
#include "Views/SettingsView.h"

#include "Controls/Buttons.h"
#include "Controls/SegmentedPicker.h"
#include "Controls/TextLabel.h"
#include "Model/AppModel.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QPointer>
#include <QSignalBlocker>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto spacing = 14;

QString title(ResolutionChoice choice, Qt::LayoutDirection direction)
{
    if (choice == ResolutionChoice::gameDefault)
        //: Among resolutions: the one that the game comes with.
        return SettingsView::tr("Game default");
    const auto size = rawValue(choice).replace(u'x', u" \u00d7 "_s);
    // Keeps the width before the height in right-to-left text.
    return direction == Qt::RightToLeft ? u'\u200e' + size : size;
}

} // namespace

SettingsView::SettingsView(AppModel& model, QWidget* parent)
    : Sheet(tr("Settings"), parent)
    , m_model(model)
{
    m_update =
        new BorderedButton(tr("Update the game"), [this] { closeAfter(&AppModel::updateGame); });
    m_reinstall = new BorderedButton(tr("Reinstall"), [this] { closeAfter(&AppModel::reinstall); });
    //: Opens the folder in which the game keeps its saves.
    m_showSaves = new BorderedButton(tr("Show saves"), [this] {
        m_model.showSaves();
        refresh(); // The folder may be gone.
    });
    m_remove = new DestructiveButton(QString(), [this] { m_model.removeEverything(); });
    auto* const reveal =
        //: Opens the file browser at the installed files. The Finder is that of one system only;
        //: a translation speaks of the file manager.
        new BorderedButton(tr("Reveal in Finder"), [this] { m_model.revealInFinder(); });

    setContent(
        spacing,
        {
            new TextLabel(TextStyle::title2, tr("Settings")),
            displayPickers(),
            new TextLabel(TextStyle::caption, tr("Applies the next time you press Play."),
                          TextTone::secondary),
            new Divider,
            horizontalStack({}, {m_update, m_reinstall, spacer}),
            new TextLabel(
                TextStyle::caption,
                tr("Updating downloads the game again. Save files are kept; they live in Godot's "
                   "own folder."),
                TextTone::secondary),
            horizontalStack({}, {reveal, m_showSaves, spacer}),
            m_noSaves = new TextLabel(TextStyle::caption,
                                      tr("No saves yet (Godot's user folder does not exist)."),
                                      TextTone::secondary),
            {m_remove, Qt::AlignLeading},
        });

    connect(&m_model, &AppModel::changed, this, &SettingsView::refresh);
    refresh();
    m_model.updateSize();
}

QWidget* SettingsView::displayPickers()
{
    //: Whether the game runs in a window or on the whole screen.
    m_windowMode = new SegmentedPicker(tr("Window"), {tr("Windowed"), tr("Fullscreen")});
    connect(m_windowMode, &SegmentedPicker::currentChanged, this,
            [this](int index) { m_model.setFullscreen(index == 1); });

    m_resolution = new QComboBox;
    m_resolution->setAccessibleName(tr("Resolution"));
    m_resolution->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_resolution->setFocusPolicy(Qt::StrongFocus); // By default the wheel moves the focus there.
    forwardReturnKey(*m_resolution);
    for (const auto choice : allResolutionChoices)
        m_resolution->addItem(title(choice, layoutDirection()));
    connect(m_resolution, &QComboBox::currentIndexChanged, this, [this](int index) {
        m_model.setResolution(allResolutionChoices.at(static_cast<size_t>(index)));
    });

    auto* const pickers =
        verticalStack({.spacing = spacing}, {pickerRow(tr("Window"), m_windowMode),
                                             pickerRow(tr("Resolution"), m_resolution)});
    arrangePickers();
    return pickers;
}

QWidget* SettingsView::pickerRow(const QString& text, QWidget* control)
{
    auto* const label = new QLabel(text);
    label->setBuddy(control);
    auto* const row = horizontalStack({}, {});
    auto* const box = static_cast<QBoxLayout*>(row->layout());
    box->addWidget(label);
    box->addWidget(control);
    m_pickerRows.append({box, label, control});
    return row;
}

void SettingsView::arrangePickers()
{
    auto labels = 0;
    auto controls = 0;
    for (const auto& row : m_pickerRows) {
        labels = std::max(labels, row.label->sizeHint().width());
        controls = std::max(controls, row.control->sizeHint().width());
    }
    const auto fits = labels + defaultSpacing + controls <= contentWidth;
    for (const auto& row : m_pickerRows) {
        row.box->setDirection(fits ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
        row.label->setMinimumWidth(fits ? labels : 0);
    }
}

bool SettingsView::event(QEvent* event)
{
    const auto handled = Sheet::event(event);
    if (event->type() == QEvent::ApplicationFontChange)
        arrangePickers();
    return handled;
}

void SettingsView::closeAfter(void (AppModel::*action)())
{
    // The action may ask a question, and the sheet may be closed meanwhile.
    const QPointer<SettingsView> sheet(this);
    (m_model.*action)();
    if (sheet)
        accept();
}

void SettingsView::refresh()
{
    const auto busy = m_model.isBusy();
    const auto hasSaves = m_model.savesFolder().has_value();
    const auto& size = m_model.installedSize();
    const auto choice = std::ranges::find(allResolutionChoices, m_model.resolution());

    // Showing a setting must not change it.
    const QSignalBlocker windowModeBlocker(m_windowMode);
    const QSignalBlocker resolutionBlocker(m_resolution);
    m_windowMode->setCurrent(m_model.fullscreen() ? 1 : 0);
    m_resolution->setCurrentIndex(static_cast<int>(choice - allResolutionChoices.begin()));
    // Screen readers do not find the choice by themselves. This setter notifies them even if the
    // value is unchanged.
    if (m_resolution->accessibleDescription() != m_resolution->currentText())
        m_resolution->setAccessibleDescription(m_resolution->currentText());
    m_update->setEnabled(!busy);
    m_reinstall->setEnabled(!busy);
    m_showSaves->setEnabled(hasSaves);
    m_noSaves->setVisible(!hasSaves);
    //: %1 is an amount, such as "70.1 MB".
    m_remove->setText(size.isEmpty() ? tr("Remove everything")
                                     : tr("Remove everything (frees %1)").arg(size));
    m_remove->setEnabled(!busy);
}
