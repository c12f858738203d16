// SPDX-License-Identifier: MIT
#include "Views/AboutView.h"

#include "Controls/LinkLabel.h"
#include "Controls/TextLabel.h"

#include <QUrl>

using namespace Qt::StringLiterals;

AboutView::AboutView(QWidget* parent)
    : Sheet(tr("About"), parent)
{
    setContent(
        10,
        {
            new TextLabel(TextStyle::title2, tr("About")),
            new TextLabel(
                TextStyle::body,
                tr("The game \"Snaglet!\" is made by Quennet and the Brindlework team, 2019, and "
                   "is released under the MIT License. The game belongs to its author; this app "
                   "is only a launcher that downloads it.")),
            new TextLabel(TextStyle::callout,
                          tr("Based on brindlework-demos/tetherwalk, MIT License.")),
            {new LinkLabel(TextStyle::body,
                           QUrl(u"https://github.com/brindlework-demos/tetherwalk"_s)),
             Qt::AlignLeading},
            new TextLabel(
                TextStyle::body,
                tr("The Godot engine is free software under the MIT License (godotengine.org). It "
                   "is downloaded from the official godotengine/godot releases and checked "
                   "against the published SHA-512 checksum.")),
            new TextLabel(
                TextStyle::callout,
                tr("Nothing is sent anywhere except the two downloads (the game from GitHub and "
                   "the engine from GitHub releases)."),
                TextTone::secondary),
        });
}
