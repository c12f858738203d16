// SPDX-License-Identifier: MIT
#include "Fuzz/FuzzTarget.h"
#include "Install/ChecksumList.h"

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

const auto name = u"Godot.zip"_s;

} // namespace

QList<QByteArray> fuzzSeeds()
{
    return {"aa  Godot.zip\n", "aa *Godot.zip\nBB\t\t**Godot.zip*\n", "aa  Godot.zip\r\n",
            "\xef\xbb\xbf"
            "aa  Godot.zip\n\xff\xfe x\n"};
}

/// A digest is one field of the list in lower case, and a list that lacks the name has none.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const QByteArray list(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size));
    const auto digest = ChecksumList::digestFor(list, name);
    if (!digest)
        return 0;
    const auto holdsBlank =
        digest->contains(u' ') || digest->contains(u'\t') || digest->contains(u'\n');
    if (digest->isEmpty() || holdsBlank || *digest != digest->toLower() ||
        !list.contains(name.toUtf8()))
        std::abort();
    return 0;
}
