// SPDX-License-Identifier: MIT
#include "Views/SettingsView.h"

#include "AppModel.h"
#include "Views/BorderedButton.h"
#include "Views/DestructiveButton.h"
#include "Views/Divider.h"
#include "Views/ReturnKey.h"
#include "Views/SegmentedPicker.h"
#include "Views/Stack.h"
#include "Views/TextLabel.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

#include <algorithm>

namespace {

constexpr auto spacing = 14;
constexpr auto padding = 20;

QString label(ResolutionChoice choice)
{
    if (choice == ResolutionChoice::gameDefault)
        return SettingsView::tr("Game default");
    return rawValue(choice).replace(u'x', QStringLiteral(" \u00d7 "));
}

/// Controls under each other, each with its label before it. They take the rest of their rows.
QWidget* labelledRows(std::initializer_list<std::pair<QString, QWidget*>> rows)
{
    auto* const block = new QWidget;
    auto* const grid = new QGridLayout(block);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(defaultSpacing);
    grid->setVerticalSpacing(spacing);
    auto row = 0;
    for (const auto& [text, control] : rows) {
        auto* const title = new QLabel(text);
        title->setBuddy(control);
        control->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        grid->addWidget(title, row, 0);
        grid->addWidget(control, row, 1);
        ++row;
    }
    return block;
}

} // namespace

SettingsView::SettingsView(AppModel& model, QWidget* parent)
    : Sheet(tr("Settings"), parent)
    , m_model(model)
{
    stackVertically(
        *this, spacing, padding,
        {
            new TextLabel(TextStyle::title2, QFont::Bold, tr("Settings")),
            labelledRows({{tr("Window"), windowPicker()}, {tr("Resolution"), resolutionPicker()}}),
            new TextLabel(TextStyle::caption, tr("Applies the next time you press Play."),
                          TextTone::secondary),
            new Divider,
            gameButtons(),
            new TextLabel(
                TextStyle::caption,
                tr("Updating downloads the game again. Save files are kept; they live in Godot's "
                   "own folder."),
                TextTone::secondary),
            folderButtons(),
            m_noSaves = new TextLabel(TextStyle::caption,
                                      tr("No saves yet (Godot's user folder does not exist)."),
                                      TextTone::secondary),
            leading(removeButton()),
            doneRow(),
        });

    connect(&m_model, &AppModel::changed, this, &SettingsView::refresh);
    refresh();
    m_model.updateSize();
}

QWidget* SettingsView::windowPicker()
{
    m_window = new SegmentedPicker(tr("Window"), {tr("Windowed"), tr("Fullscreen")});
    connect(m_window, &SegmentedPicker::currentChanged, this,
            [this](int index) { m_model.setFullscreen(index == 1); });
    return m_window;
}

QWidget* SettingsView::resolutionPicker()
{
    m_resolution = new QComboBox;
    m_resolution->setAccessibleName(tr("Resolution"));
    leaveReturnToWindow(*m_resolution);
    for (const auto choice : allResolutionChoices)
        m_resolution->addItem(label(choice));
    connect(m_resolution, &QComboBox::currentIndexChanged, this, [this](int index) {
        m_model.setResolution(allResolutionChoices.at(static_cast<size_t>(index)));
    });
    return m_resolution;
}

QWidget* SettingsView::gameButtons()
{
    m_update = new BorderedButton(tr("Update the game"));
    m_reinstall = new BorderedButton(tr("Reinstall"));
    connect(m_update, &QPushButton::clicked, this, [this] {
        m_model.updateGame();
        accept();
    });
    connect(m_reinstall, &QPushButton::clicked, this, [this] {
        m_model.reinstall();
        accept();
    });
    return horizontalStack(defaultSpacing, {m_update, m_reinstall, spacer()});
}

QWidget* SettingsView::folderButtons()
{
    auto* const reveal = new BorderedButton(tr("Reveal in Finder"));
    m_showSaves = new BorderedButton(tr("Show saves"));
    connect(reveal, &QPushButton::clicked, &m_model, &AppModel::revealInFinder);
    connect(m_showSaves, &QPushButton::clicked, &m_model, &AppModel::showSaves);
    return horizontalStack(defaultSpacing, {reveal, m_showSaves, spacer()});
}

QWidget* SettingsView::removeButton()
{
    m_remove = new DestructiveButton(QString());
    connect(m_remove, &QPushButton::clicked, &m_model, &AppModel::removeEverything);
    return m_remove;
}

void SettingsView::refresh()
{
    const auto busy = m_model.phase().isBusy();
    const auto hasSaves = m_model.savesFolder().has_value();
    const auto& size = m_model.installedSize();
    const auto* const choice =
        std::find(allResolutionChoices.begin(), allResolutionChoices.end(), m_model.resolution());

    m_window->setCurrent(m_model.fullscreen() ? 1 : 0);
    m_resolution->setCurrentIndex(static_cast<int>(choice - allResolutionChoices.begin()));
    m_update->setEnabled(!busy);
    m_reinstall->setEnabled(!busy);
    m_showSaves->setEnabled(hasSaves);
    m_noSaves->setVisible(!hasSaves);
    m_remove->setText(size.isEmpty() ? tr("Remove everything")
                                     : tr("Remove everything (frees %1)").arg(size));
    m_remove->setEnabled(!busy);
}
