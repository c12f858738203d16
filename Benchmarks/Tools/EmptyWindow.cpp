// SPDX-License-Identifier: MIT
//
// The least a Qt Widgets program can be, to measure the launcher's start against.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QWidget window;
    window.resize(640, 720);
    window.show();
    return QApplication::exec();
}
