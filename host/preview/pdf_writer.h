// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/preview/page_maker.h"
#include "host/printing/print_error.h"

#include <QList>
#include <QObject>

namespace host {

// Writes documents, as they would be printed, into one PDF file: all of it, or nothing is changed. Never
// waits. Lives for one file.
class PdfWriter : public QObject
{
    Q_OBJECT
public:
    explicit PdfWriter(const PageTools &tools, QObject *parent = nullptr);

    // The documents, at least one, are opened by their paths. A file that is there is replaced; a link, or
    // what is no file, is refused. Names are as file_name.h has them.
    void write(const QList<Document> &documents, const PageSettings &settings, const QString &path);

Q_SIGNALS:
    // With no error when the file has been written.
    void ended(const host::PrintError &error);

private:
    void makeNext();
    void made(const SharedFile &pdf, bool asPrinted);
    // Goes on to the next document; with a problem when the last one gave no page.
    void proceed(const QString &problem);
    void join();
    void store(const SharedFile &pdf);
    void fail(const QString &reason);

    PageTools m_tools;
    PageMaker m_maker;
    LimitedProcess m_joiner;
    QList<Document> m_documents; // still to be made; the first is under way
    PageSettings m_settings;
    QString m_path;
    QList<SharedFile> m_parts;
};

// Puts all of `content` in the place of the file, which appears whole or not at all. Blocks. An error names
// the file.
PrintError replaceFile(const QString &path, const SharedFile &content);

} // namespace host
