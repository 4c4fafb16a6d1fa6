// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/preview/pdf_writer.h"

#include <QObject>

class QWidget;

namespace host {

class DialogSession;
class DocumentChoice;
class MessageQueue;
class PanelWait;

// Asks for the name of a PDF file and writes the documents to it as they would be printed; reports the
// progress and the result. Saves one file at a time. Owned by its window, as are the documents, the wait and
// the messages.
class PdfSaver : public QObject
{
    Q_OBJECT
public:
    PdfSaver(const DocumentChoice *documents, PanelWait *wait, MessageQueue *messages, QWidget *window);
    ~PdfSaver() override;

    // Asks for a file name and writes the included documents with the settings of the session, which are
    // copied. `title` is the suggested name; if it is empty, the name of the first file is used.
    void save(const DialogSession &session, const QString &title);
    // Whether a file is being written.
    bool isBusy() const { return m_isBusy; }

Q_SIGNALS:
    void busyChanged();

private:
    void write(const QStringList &paths, const PageSettings &settings, const QString &path);
    void end(const PrintError &error, const QString &path);

    const DocumentChoice *m_documents;
    PanelWait *m_wait;
    MessageQueue *m_messages;
    QWidget *m_window;
    bool m_isBusy = false;
    std::unique_ptr<PdfWriter> m_writer; // null unless a file is being written
};

} // namespace host
