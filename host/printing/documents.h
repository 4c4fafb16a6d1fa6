// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/print_error.h"

#include <QFile>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>

class QIODevice;

namespace host {

// A file to print. Names of files are as file_name.h has them.
struct Document
{
    QString path;
    QString name;                 // for people and the job's title
    QString format;               // MIME type as far as the content tells, else "application/octet-stream"
    QString formatText;           // the type in words; may be empty
    QStringList otherFormats;     // other names of the type, and more general ones that it is a kind of
    qint64 size = 0;              // bytes
    bool isCompressed = false;    // with gzip; the other fields are about what is in it, except the size
    bool isDrawingInText = false; // a picture that is written as text, such as SVG
};

// Whether what is there can be read once only: a pipe, a socket, a terminal.
bool isStream(const QString &path);

// Looks at a file before it is printed: whether it is there, may be read, holds anything, and what it is.
// A stream's type is not known before it has been read.
std::optional<Document> openDocument(const QString &path, PrintError *error);

// Whether what is being read is no longer wanted. Called on the thread that reads.
using StopWanted = std::function<bool()>;

// The documents of one job, in the order they are printed. Owns the temporary files that hold what came from
// pipes; they go with it.
class DocumentList
{
public:
    DocumentList();
    ~DocumentList();
    DocumentList(const DocumentList &) = delete;
    DocumentList &operator=(const DocumentList &) = delete;

    // Opens each path; "-" is `input`, or the standard input where that is null. What can be read once only
    // is kept, so a second call does not find it empty. False with an error that names the first that fails.
    // Returns false soon after `stop` (may be null) has come true, whether or not more comes from a pipe;
    // what has come is kept for the next call. Calls on several threads follow one another.
    bool open(const QStringList &paths, QIODevice *input, PrintError *error, const StopWanted &stop = {});
    // Those of the last call that succeeded; may be called on any thread, also while open() runs on another.
    QList<Document> documents() const;
    // What a job of these documents is called: the first one's name; empty without documents.
    QString title() const;

private:
    struct Spool;
    std::optional<Document> openOne(const QString &path, QIODevice *input, PrintError *error,
                                    const StopWanted &stop);

    std::mutex m_opening;
    mutable std::mutex m_reading; // for m_documents alone
    QList<Document> m_documents;
    std::map<QString, std::unique_ptr<Spool>> m_spools; // by path
};

} // namespace host
