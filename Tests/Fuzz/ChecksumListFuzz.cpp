// SPDX-License-Identifier: MIT
#include "Fuzz/FuzzTarget.h"
#include "Install/ChecksumList.h"

using namespace Qt::StringLiterals;

/// A digest is one field of the list in lower case, and a list that lacks the name has none.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const auto name = u"Godot.zip"_s;
    const auto list = toByteArray(bytes, size);
    const auto digest = ChecksumList::digestFor(list, name);
    if (!digest)
        return 0;
    require(!digest->isEmpty() && *digest == digest->toLower());
    require(!digest->contains(u' ') && !digest->contains(u'\t') && !digest->contains(u'\n'));
    require(list.contains(name.toUtf8()));
    return 0;
}
