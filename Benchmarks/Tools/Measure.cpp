// SPDX-License-Identifier: MIT
//
// measure WORK ARGUMENT…: does one piece of the launcher's work with the launcher's own code and
// prints what it took.
#include "DiskWork.h"
#include "Install/Http/WebHost.h"
#include "TransferWork.h"

#include <QCoreApplication>
#include <QStringList>
#include <QUrl>

#include <cstdio>
#include <exception>

using namespace Qt::StringLiterals;

namespace {

bool work(const QStringList& words)
{
    const auto name = words.value(1);
    const auto first = words.value(2);
    const auto second = words.value(3);
    if (name == u"sha512")
        DiskWork::digest(first);
    else if (name == u"unzip")
        DiskWork::unpack(first, second);
    else if (name == u"size")
        DiskWork::size(first);
    else if (name == u"missing")
        DiskWork::missing(first);
    else if (name == u"download")
        TransferWork::download(QUrl(first), second);
    else if (name == u"flood")
        TransferWork::flood(first, words.mid(3));
    else
        return false;
    return true;
}

} // namespace

/// No work here builds an address of its own.
QString webHost()
{
    return u"https://localhost"_s;
}

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    try {
        if (work(QCoreApplication::arguments()))
            return 0;
        std::fputs("usage: measure sha512 FILE | unzip ARCHIVE FOLDER | size FOLDER |\n"
                   "  missing FOLDER | download URL FOLDER | flood PROGRAM ARGUMENT…\n",
                   stderr);
        return 2;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "measure: %s\n", error.what());
        return 1;
    }
}
