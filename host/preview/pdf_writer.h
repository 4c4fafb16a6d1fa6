// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/preview/page_maker.h"
#include "host/printing/print_error.h"

#include <QList>
#include <QObject>

namespace host {

// Converts documents, as they would be printed, to one PDF file in memory. Does not block. Used for one file.
class PdfWriter : public QObject
{
    Q_OBJECT
public:
    explicit PdfWriter(const PageTools &tools, QObject *parent = nullptr);

    // Starts the conversion. There must be at least one document; documents are opened by their paths.
    void write(const QList<Document> &documents, const PageSettings &settings);

Q_SIGNALS:
    // The file is null if there is an error.
    void ended(const host::SharedFile &pdf, const host::PrintError &error);

private:
    void makeNext();
    void made(const SharedFile &pdf, bool asPrinted);
    // Continues with the next document; `problem` is set if the last one had no page.
    void proceed(const QString &problem);
    void join();
    void fail(const QString &reason);

    PageTools m_tools;
    PageMaker m_maker;
    LimitedProcess m_joiner;
    QList<Document> m_documents; // remaining documents; the first is being converted
    PageSettings m_settings;
    QList<SharedFile> m_parts;
};

// Atomically creates a file with this content or replaces it; refuses a link, and a path that is not a
// regular file. Blocks. The name is encoded as in file_name.h; an error contains it.
PrintError replaceFile(const QString &path, const SharedFile &content);

} // namespace host
