// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/print_error.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

class QIODevice;
class QTemporaryFile;

namespace host {

// A file to print.
struct Document
{
    QString path;
    QString name;             // for people and the job's title
    QString format;           // MIME type as far as the content tells, else "application/octet-stream"
    QString formatText;       // the type in words; may be empty
    QStringList otherFormats; // more general types that this one is a kind of, nearest first
};

// Looks at a file before it is printed: whether it is there, may be read, holds anything, and what it is.
std::optional<Document> openDocument(const QString &path, PrintError *error);

// Copies what `input` gives until its end into a file that lives as long as the result, for printing what
// another program writes. Null with an error when nothing can be read or written.
std::unique_ptr<QTemporaryFile> spoolInput(QIODevice *input, PrintError *error);

// The documents of one job, in the order they are printed. Owns the temporary files that hold what came from
// another program; they go with it.
class DocumentList
{
public:
    DocumentList();
    ~DocumentList();
    DocumentList(DocumentList &&) noexcept;
    DocumentList &operator=(DocumentList &&) noexcept;

    // Opens each path; "-" is `input`, or the standard input where that is null. An input is read once and
    // kept, so a second call does not find it empty. False with an error that names the first that fails.
    bool open(const QStringList &paths, QIODevice *input, PrintError *error);
    const QList<Document> &documents() const { return m_documents; }
    // What a job of these documents is called: the first one's name; empty without documents.
    QString title() const;

private:
    std::optional<Document> openInput(QIODevice *input, PrintError *error);

    QList<Document> m_documents;
    std::unique_ptr<QTemporaryFile> m_spool;
};

} // namespace host
