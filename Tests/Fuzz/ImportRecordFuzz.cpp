// SPDX-License-Identifier: MIT
#include "Fuzz/FuzzTarget.h"
#include "Project/ImportChecker.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

/// The record of one asset: the asset counts once or not at all. It does not once the record names
/// a file that exists, and it does if the record is not text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static const QTemporaryDir folder;
    const auto record = toByteArray(bytes, size);
    writeFile(folder.filePath(u"a.png"_s), {});
    writeFile(folder.filePath(u"there"_s), {});
    const auto missingCount = [](const QByteArray& contents) {
        writeFile(folder.filePath(u"a.png.import"_s), contents);
        return ImportChecker::missingCount(folder.path());
    };
    const auto count = missingCount(record);
    const auto isText = record.isValidUtf8();
    const auto namesAny = record.contains("res://");
    require(count == 0 || count == 1);
    require(isText ? count == 0 || namesAny : count == 1);
    require(missingCount(record + "\npath=\"res://there\"") == (isText ? 0 : 1));
    require(namesAny || missingCount(record + "\npath=\"res://none\"") == 1);
    return 0;
}
