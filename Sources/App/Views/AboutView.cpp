// SPDX-License-Identifier: MIT
#include "Views/AboutView.h"

#include "Controls/LinkLabel.h"
#include "Controls/TextLabel.h"

#include "Project/GameFacts.h"

#include <QUrl>

using namespace Qt::StringLiterals;

AboutView::AboutView(QWidget* parent)
    : Sheet(tr("About"), parent)
{
    setContent(
        10,
        {
            new TextLabel(TextStyle::title2, tr("About")),
            new TextLabel(TextStyle::body, GameFacts::translated(GameFacts::credits)),
            new TextLabel(TextStyle::callout, GameFacts::translated(GameFacts::basis)),
            {new LinkLabel(TextStyle::body,
                           QUrl(u"https://github.com/%1"_s.arg(GameFacts::repository))),
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
