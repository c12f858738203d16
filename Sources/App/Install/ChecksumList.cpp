// SPDX-License-Identifier: MIT
#include "Install/ChecksumList.h"

#include "Install/InstallTools.h"
#include "System/Errors.h"
#include "System/Text.h"

#include <QStringView>

namespace {

constexpr qint64 mebibyte = 1'048'576;
/// Real lists have some 100 entries.
constexpr qint64 maxListSize = mebibyte;

QStringView withoutAsterisks(QStringView name)
{
    while (name.startsWith(u'*'))
        name = name.sliced(1);
    while (name.endsWith(u'*'))
        name.chop(1);
    return name;
}

void refuseIfTooLarge(qint64 size)
{
    if (size > maxListSize) {
        throw AppError(
            AppError::tr("The engine checksum list is larger than %1 MiB, so it was not read.")
                .arg(maxListSize / mebibyte));
    }
}

} // namespace

QByteArray ChecksumList::download(const QUrl& url, std::chrono::milliseconds stallTimeout,
                                  const std::stop_token& stop)
{
    QByteArray list;
    const HttpReceiver receiver{
        .begin =
            [](int status, qint64 length) {
                if (status != 200) {
                    throw AppError(
                        AppError::tr("Could not read the engine checksum list (HTTP %1).")
                            .arg(status));
                }
                refuseIfTooLarge(length);
            },
        .take =
            [&list](QByteArrayView piece) {
                refuseIfTooLarge(list.size() + piece.size());
                list.append(piece);
            }};
    installTools().httpGet(url, receiver, stallTimeout, stop);
    return list;
}

std::optional<QString> ChecksumList::digestFor(const QByteArray& list, const QString& fileName)
{
    const auto text = Text::decodedUtf8(list).replace(u'\t', u' ');
    std::optional<QString> digest;
    for (const auto line : QStringView(text).split(u'\n')) {
        const auto fields = line.split(u' ', Qt::SkipEmptyParts);
        if (fields.size() >= 2 && withoutAsterisks(fields.last()) == fileName)
            digest = fields.first().toString().toLower();
    }
    return digest;
}
