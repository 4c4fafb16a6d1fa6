// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/preview/pdf_writer.h"

#include <QObject>
#include <QPointer>

class QWidget;

namespace host {

// Asks for the name of a PDF file and writes documents to it as they would be printed. Owned by its window;
// saves one file at a time.
class PdfSaver : public QObject
{
    Q_OBJECT
public:
    explicit PdfSaver(QWidget *window);

    // Asks for a file name and writes the documents at these paths. `title` is the suggested name; if it is
    // empty, the name of the first file is used.
    void save(const std::shared_ptr<DocumentList> &documents, const QStringList &paths, const QString &title,
              const PageSettings &settings);
    bool isBusy() const { return m_isBusy; }

Q_SIGNALS:
    void began();
    // Saving takes noticeably long.
    void delayed();
    // The error is empty if the file was written.
    void ended(const host::PrintError &error, const QString &path);

private:
    void write(const QStringList &paths, const PageSettings &settings, const QString &path);
    void end(const PrintError &error, const QString &path);

    QWidget *m_window;
    bool m_isBusy = false;
    std::shared_ptr<DocumentList> m_documents;
    std::unique_ptr<PdfWriter> m_writer;
};

} // namespace host
