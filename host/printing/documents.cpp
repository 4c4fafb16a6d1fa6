// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/documents.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QTemporaryFile>

namespace host {

namespace {

struct DocumentText
{
    Q_DECLARE_TR_FUNCTIONS(DocumentText)
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
        *error = {Kind::FileMissing, DocumentText::tr("There is no file “%1”.").arg(path)};
        return std::nullopt;
    }
    if (info.isDir()) {
        *error = {Kind::FileMissing, DocumentText::tr("“%1” is a folder, not a document.").arg(path)};
        return std::nullopt;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        const auto kind = info.isReadable() ? Kind::Other : Kind::NoPermission;
        *error = {kind, DocumentText::tr("The file “%1” cannot be read: %2.").arg(path, file.errorString())};
        return std::nullopt;
    }
    if (file.read(1).isEmpty()) {
        *error = {Kind::EmptyDocument, DocumentText::tr("The file “%1” is empty.").arg(path)};
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
                  DocumentText::tr("No temporary file can be made: %1.").arg(spool->errorString())};
        return nullptr;
    }
    while (true) {
        const QByteArray block = input->read(spoolBlock);
        if (block.isEmpty())
            break;
        if (spool->write(block) != block.size()) {
            *error = {PrintError::Kind::Other,
                      DocumentText::tr("The temporary file “%1” cannot be written: %2.")
                          .arg(spool->fileName(), spool->errorString())};
            return nullptr;
        }
    }
    if (!spool->flush() || spool->size() == 0) {
        *error = {PrintError::Kind::EmptyDocument, DocumentText::tr("Nothing came from the standard input.")};
        return nullptr;
    }
    return spool;
}

DocumentList::DocumentList() = default;
DocumentList::~DocumentList() = default;
DocumentList::DocumentList(DocumentList &&) noexcept = default;
DocumentList &DocumentList::operator=(DocumentList &&) noexcept = default;

bool DocumentList::open(const QStringList &paths, QIODevice *input, PrintError *error)
{
    m_documents.clear();
    for (const QString &path : paths) {
        auto document = path == QLatin1String("-") ? openInput(input, error) : openDocument(path, error);
        if (!document)
            return false;
        m_documents.append(*document);
    }
    return true;
}

std::optional<Document> DocumentList::openInput(QIODevice *input, PrintError *error)
{
    QFile standardInput;
    if (!input && standardInput.open(stdin, QIODevice::ReadOnly))
        input = &standardInput;
    if (!m_spool && input)
        m_spool = spoolInput(input, error);
    auto document = m_spool ? openDocument(m_spool->fileName(), error) : std::nullopt;
    if (document)
        document->name = DocumentText::tr("Standard input");
    return document;
}

QString DocumentList::title() const
{
    return m_documents.isEmpty() ? QString() : m_documents.first().name;
}

} // namespace host
