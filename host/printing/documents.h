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

// A file to print. File names are encoded as in file_name.h.
struct Document
{
    QString path;
    QString name;                 // for display and the job's title
    QString format;               // MIME type determined from the content, else "application/octet-stream"
    QString formatText;           // localised description of the type; may be empty
    QStringList otherFormats;     // aliases and parent types
    qint64 size = 0;              // bytes
    bool isCompressed = false;    // with gzip; the other fields, except the size, describe the content
    bool isDrawingInText = false; // an image in a text format, such as SVG
};

// Whether the path can be read only once: a pipe, a socket, a terminal.
bool isStream(const QString &path);

// Examines a file before it is printed: whether it exists, is readable and not empty, and its type. The type
// of a stream is unknown before it has been read.
std::optional<Document> openDocument(const QString &path, PrintError *error);

// Whether the read operation should stop. Called on the reading thread.
using StopWanted = std::function<bool()>;

// The documents of one job, in the order in which they are printed. Owns the temporary files with the data
// from pipes; they are removed with this object.
class DocumentList
{
public:
    DocumentList();
    ~DocumentList();
    DocumentList(const DocumentList &) = delete;
    DocumentList &operator=(const DocumentList &) = delete;

    // Opens each path; "-" is `input`, or the standard input if that is null. Data from streams is kept, so a
    // second call finds it again. False with an error that names the first path that fails. Returns false
    // soon after `stop`, which may be null, returns true, even if no more data arrives; the data so far is
    // kept for the next call. Concurrent calls are serialized.
    bool open(const QStringList &paths, QIODevice *input, PrintError *error, const StopWanted &stop = {});
    // The documents of the last successful call. May be called on any thread, also while open() runs on
    // another.
    QList<Document> documents() const;
    // The title of a job with these documents: the name of the first; empty without documents.
    QString title() const;

private:
    struct Spool;
    std::optional<Document> openOne(const QString &path, QIODevice *input, PrintError *error,
                                    const StopWanted &stop);

    std::mutex m_opening;
    mutable std::mutex m_reading; // guards m_documents only
    QList<Document> m_documents;
    std::map<QString, std::unique_ptr<Spool>> m_spools; // by path
};

} // namespace host
