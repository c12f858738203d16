// SPDX-License-Identifier: MIT
#include "Install/ChecksumDownload.h"

#include "AppError.h"
#include "Install/HttpReceiver.h"
#include "Install/HttpTransfer.h"

#include <QCoreApplication>
#include <QPromise>

#include <utility>

namespace {

constexpr qint64 largestList = qint64{1024} * 1024;

class ListReceiver final : public HttpReceiver
{
public:
    explicit ListReceiver(QPromise<QByteArray> result)
        : m_result(std::move(result))
    {
    }

    void begin(int status, qint64 length) override
    {
        if (status != 200) {
            throw AppError(
                QCoreApplication::translate("ChecksumDownload",
                                            "Could not read the engine checksum list (HTTP %1).")
                    .arg(status));
        }
        refuseMoreThanLargest(length);
    }

    void take(QByteArrayView piece) override
    {
        refuseMoreThanLargest(m_list.size() + piece.size());
        m_list.append(piece);
    }

    void complete() override
    {
        m_result.addResult(m_list);
        m_result.finish();
    }

    void fail(const std::exception_ptr& error) noexcept override
    {
        m_result.setException(error);
        m_result.finish();
    }

private:
    static void refuseMoreThanLargest(qint64 size)
    {
        if (size > largestList) {
            throw AppError(QCoreApplication::translate(
                "ChecksumDownload",
                "The engine checksum list is larger than 1 MiB, so it was not read."));
        }
    }

    QPromise<QByteArray> m_result;
    QByteArray m_list;
};

} // namespace

ChecksumDownload::ChecksumDownload(const QUrl& url, std::chrono::milliseconds stallLimit)
{
    QPromise<QByteArray> result;
    result.start();
    m_list = result.future();
    m_transfer =
        HttpTransfer::start(url, std::make_unique<ListReceiver>(std::move(result)), stallLimit);
}

ChecksumDownload::~ChecksumDownload() = default;

void ChecksumDownload::cancel()
{
    m_transfer->cancel();
}
