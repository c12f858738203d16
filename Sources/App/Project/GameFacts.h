// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QStringView>

#include <array>

/// Everything specific to the game of this launcher. ARCHITECTURE.md says what else a launcher for
/// another Godot 3 game changes.
///
/// CMake and the scripts of the tests read the launcher's names and the engine's version from this
/// file, so each of them must be on one line.
namespace GameFacts {

// The launcher.

/// The name in the window, and of the installation folder.
inline constexpr QStringView launcherName = u"Cavernyx Platformer";
/// The file name of the program.
inline constexpr QStringView programName = u"cavernyx-platformer";
/// The id of the desktop file, in reverse-DNS form.
inline constexpr QStringView applicationId = u"io.github.brindlework_demos.cavernyxplatformer";
/// The developer's name in software centres.
inline constexpr QStringView developers = u"The Cavernyx Platformer developers";
/// The homepage in software centres.
inline constexpr QStringView homepage = u"https://github.com/brindlework-demos/CavernyxPlatformer";
/// The comment in application menus.
inline constexpr QStringView purpose = u"Play a 2D grappling-hook adventure";

// Where the game and its engine come from.

/// The game's repository on GitHub, and the branch whose archive is installed.
inline constexpr QStringView repository = u"brindlework-demos/tetherwalk";
inline constexpr QStringView branch = u"master";
/// The engine's release in the repository godotengine/godot.
inline constexpr QStringView engineVersion = u"3.5.3-stable";
/// The approximate size of the engine's download.
inline constexpr int engineMegabytes = 70;
/// GitHub's domains. No other host is contacted.
inline constexpr std::array<QStringView, 2> allowedDomains{u"github.com", u"githubusercontent.com"};

// Defaults for facts that the game's repository does not name, or before it is downloaded.

inline constexpr QStringView summary = u"A short platform/adventure demo project to teach how to "
                                       "create similar 2D games, inspired by cavernyxes.";
inline constexpr QStringView license = u"MIT License";
inline constexpr QStringView author = u"Quennet (Brindlework)";

// Texts of the window, to be shown by translated().

//: Below the game's name. "2D": seen from the side, with no depth.
inline constexpr auto tagline = QT_TRANSLATE_NOOP("GameFacts", "A 2D grappling-hook adventure");

/// One row of the game's controls.
struct Control
{
    const char* action;
    const char* input;
};
inline constexpr std::array controls{
    //: What a player of the game does; the keys and buttons for it follow.
    Control{QT_TRANSLATE_NOOP("GameFacts", "Move"),
            //: A and D are keys of the keyboard, the stick is one of a game controller.
            QT_TRANSLATE_NOOP("GameFacts", "A / D, or the left stick")},
    //: What a player of the game does.
    Control{QT_TRANSLATE_NOOP("GameFacts", "Jump"),
            //: Space and W are keys of the keyboard, A is a button of a game controller.
            QT_TRANSLATE_NOOP("GameFacts", "Space or W, or the A button")},
    //: A hook on a rope, with which the player swings and pulls.
    Control{QT_TRANSLATE_NOOP("GameFacts", "Grappling hook"),
            //: The shoulder buttons of a game controller are those behind its front.
            QT_TRANSLATE_NOOP("GameFacts", "Left mouse button, or a shoulder button")},
    //: What a player of the game does.
    Control{QT_TRANSLATE_NOOP("GameFacts", "Aim"),
            QT_TRANSLATE_NOOP("GameFacts", "Hold F, or use the right stick")},
    //: What a player of the game does: begin again.
    Control{QT_TRANSLATE_NOOP("GameFacts", "Restart"), QT_TRANSLATE_NOOP("GameFacts", "Alt + R")},
};
inline constexpr auto controlsSource =
    QT_TRANSLATE_NOOP("GameFacts", "The README has no controls list (see README); these come from "
                                   "the game's input settings.");

inline constexpr auto credits = QT_TRANSLATE_NOOP(
    "GameFacts", "The game \"Snaglet!\" is made by Quennet and the Brindlework team, 2019, and is "
                 "released under the MIT License. The game belongs to its author; this app is only "
                 "a launcher that downloads it.");
inline constexpr auto basis =
    QT_TRANSLATE_NOOP("GameFacts", "Based on brindlework-demos/tetherwalk, MIT License.");

inline QString translated(const char* text)
{
    return QCoreApplication::translate("GameFacts", text);
}

} // namespace GameFacts
