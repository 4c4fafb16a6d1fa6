// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/job.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QTemporaryFile>

#include <array>

namespace host {

namespace {

struct JobText
{
    Q_DECLARE_TR_FUNCTIONS(JobText)
};

constexpr qint64 spoolBlock = 64 * 1024;

void describeFormat(Document *document)
{
    const QMimeType type = QMimeDatabase().mimeTypeForFile(document->path, QMimeDatabase::MatchContent);
    document->format = type.name();
    document->formatText = type.comment();
    document->otherFormats = type.allAncestors();
    // Programs with names of their own that hold what every printer takes.
    document->otherFormats.removeAll(QStringLiteral("application/octet-stream"));
}

} // namespace

std::optional<Document> openDocument(const QString &path, PrintError *error)
{
    using Kind = PrintError::Kind;
    const QFileInfo info(path);
    if (!info.exists()) {
        *error = {Kind::FileMissing, JobText::tr("There is no file “%1”.").arg(path)};
        return std::nullopt;
    }
    if (info.isDir()) {
        *error = {Kind::FileMissing, JobText::tr("“%1” is a folder, not a document.").arg(path)};
        return std::nullopt;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        const auto kind = info.isReadable() ? Kind::Other : Kind::NoPermission;
        *error = {kind, JobText::tr("The file “%1” cannot be read: %2.").arg(path, file.errorString())};
        return std::nullopt;
    }
    if (file.read(1).isEmpty()) {
        *error = {Kind::EmptyDocument, JobText::tr("The file “%1” is empty.").arg(path)};
        return std::nullopt;
    }
    Document document{path, info.fileName(), {}, {}, {}};
    describeFormat(&document);
    return document;
}

std::unique_ptr<QTemporaryFile> spoolInput(QIODevice *input, PrintError *error)
{
    auto spool = std::make_unique<QTemporaryFile>(QDir::tempPath() + QStringLiteral("/kelmar-print-XXXXXX"));
    if (!spool->open()) {
        *error = {PrintError::Kind::Other,
                  JobText::tr("No temporary file can be made: %1.").arg(spool->errorString())};
        return nullptr;
    }
    while (true) {
        const QByteArray block = input->read(spoolBlock);
        if (block.isEmpty())
            break;
        if (spool->write(block) != block.size()) {
            *error = {PrintError::Kind::Other, JobText::tr("The temporary file “%1” cannot be written: %2.")
                                                   .arg(spool->fileName(), spool->errorString())};
            return nullptr;
        }
    }
    if (!spool->flush() || spool->size() == 0) {
        *error = {PrintError::Kind::EmptyDocument, JobText::tr("Nothing came from the standard input.")};
        return nullptr;
    }
    return spool;
}

QString JobStatus::text() const
{
    switch (state) {
    case State::Pending:
        return printerStopped ? JobText::tr("waiting: the printer has been stopped") : JobText::tr("waiting");
    case State::Held:
        return JobText::tr("on hold");
    case State::Processing:
        return printerStopped ? JobText::tr("waiting: the printer has been stopped")
                              : JobText::tr("printing");
    case State::Stopped:
        return JobText::tr("stopped");
    case State::Cancelled:
        return JobText::tr("canceled");
    case State::Aborted:
        return JobText::tr("aborted by the print system");
    case State::Completed:
        return JobText::tr("done");
    case State::Unknown:
        break;
    }
    return JobText::tr("unknown");
}

QString JobStatus::code() const
{
    static const std::array<const char *, 8> codes = {
        "unknown",  "pending", "pending-held", "processing", "processing-stopped",
        "canceled", "aborted", "completed"};
    return QLatin1String(codes.at(static_cast<size_t>(state)));
}

} // namespace host
