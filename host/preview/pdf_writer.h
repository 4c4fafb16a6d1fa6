// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/preview/page_maker.h"
#include "host/printing/print_error.h"

#include <QList>
#include <QObject>

namespace host {

// Writes documents, as they would be printed, to one PDF file, completely or not at all. Does not block. Used
// for one file.
class PdfWriter : public QObject
{
    Q_OBJECT
public:
    explicit PdfWriter(const PageTools &tools, QObject *parent = nullptr);

    // Starts writing. There must be at least one document; documents are opened by their paths. An existing
    // file is replaced; a link, or a path that is not a regular file, is refused. Names are encoded as in
    // file_name.h.
    void write(const QList<Document> &documents, const PageSettings &settings, const QString &path);

Q_SIGNALS:
    // The error is empty if the file was written.
    void ended(const host::PrintError &error);

private:
    void makeNext();
    void made(const SharedFile &pdf, bool asPrinted);
    // Continues with the next document; `problem` is set if the last one had no page.
    void proceed(const QString &problem);
    void join();
    void store(const SharedFile &pdf);
    void fail(const QString &reason);

    PageTools m_tools;
    PageMaker m_maker;
    LimitedProcess m_joiner;
    QList<Document> m_documents; // remaining documents; the first is being converted
    PageSettings m_settings;
    QString m_path;
    QList<SharedFile> m_parts;
};

// Atomically replaces the contents of the file with `content`. Blocks. An error contains the file name.
PrintError replaceFile(const QString &path, const SharedFile &content);

} // namespace host
