// SPDX-License-Identifier: MIT
//
// A Qt Widgets window with as many texts, in as many fonts, as the launcher's has at the start, and
// nothing else. It shows how much of the start-up time the texts take.
#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>
#include <QWidget>

#include <utility>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QWidget window;
    auto* const column = new QVBoxLayout(&window);
    for (const auto& [pixels, weight] :
         {std::pair(30, QFont::Bold), std::pair(22, QFont::Bold), std::pair(17, QFont::Bold),
          std::pair(17, QFont::Normal), std::pair(16, QFont::Normal), std::pair(14, QFont::Normal),
          std::pair(14, QFont::Bold), std::pair(13, QFont::Normal)}) {
        QFont font;
        font.setPixelSize(pixels);
        font.setWeight(weight);
        for (const auto* const text : {"Press Play to download the game and the engine.",
                                       "Jump: Space, W or the up arrow"}) {
            auto* const label = new QLabel(QString::fromLatin1(text));
            label->setFont(font);
            column->addWidget(label);
        }
    }
    window.resize(640, 720);
    window.show();
    return QApplication::exec();
}
