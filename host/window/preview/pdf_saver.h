// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/preview/pdf_writer.h"

#include <QObject>
#include <QPointer>

class QWidget;

namespace host {

// Asks for the name of a PDF file and writes documents into it as they would be printed. Lives as long as its
// window; does one file at a time.
class PdfSaver : public QObject
{
    Q_OBJECT
public:
    explicit PdfSaver(QWidget *window);

    // Asks for a name and opens the paths in the list. `title` is suggested as the name; where it is empty,
    // the first file's name is.
    void save(const std::shared_ptr<DocumentList> &documents, const QStringList &paths, const QString &title,
              const PageSettings &settings);
    bool isBusy() const { return m_isBusy; }

Q_SIGNALS:
    void began();
    // It takes longer than a user notices.
    void delayed();
    // With no error when the file has been written.
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
