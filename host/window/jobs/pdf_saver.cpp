// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/jobs/pdf_saver.h"

#include "host/session/document_choice.h"
#include "host/session/printed_pages.h"
#include "host/window/messages/message_queue.h"
#include "host/window/waiting/panel_wait.h"
#include "platform/background.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTimer>

namespace host {

namespace {

constexpr std::chrono::milliseconds noticeable(300);

// Converts a job's title to a file name, which must not refer to another folder or be hidden, and is limited
// in length.
QString fileNameFor(QString title)
{
    constexpr int longest = 80; // characters; file systems allow 255 bytes
    for (QChar &sign : title) {
        if (sign == QLatin1Char('/') || sign.category() == QChar::Other_Control)
            sign = QLatin1Char('-');
    }
    title = title.simplified().left(longest);
    while (title.startsWith(QLatin1Char('.')))
        title.remove(0, 1);
    return (title.isEmpty() ? PdfSaver::tr("Document") : title) + QStringLiteral(".pdf");
}

QString suggestedTitle(const QString &title, const QStringList &paths)
{
    return title.isEmpty() && paths.value(0) != QLatin1String("-")
               ? QFileInfo(paths.value(0)).completeBaseName()
               : title;
}

} // namespace

PdfSaver::PdfSaver(const DocumentChoice *documents, PanelWait *wait, MessageQueue *messages, QWidget *window)
    : QObject(window), m_documents(documents), m_wait(wait), m_messages(messages), m_window(window)
{
}

PdfSaver::~PdfSaver() = default;

void PdfSaver::save(const DialogSession &session, const QString &title)
{
    if (m_isBusy)
        return;
    const QStringList paths = m_documents->included();
    auto *dialog = new QFileDialog(m_window, tr("Save as PDF"),
                                   QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                                   tr("PDF files (*.pdf)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave); // asks before a file is replaced
    dialog->setDefaultSuffix(QStringLiteral("pdf"));
    dialog->selectFile(fileNameFor(suggestedTitle(title, paths)));
    connect(dialog, &QFileDialog::fileSelected, this,
            [this, paths, settings = pageSettings(session)](const QString &path) {
                write(paths, settings, path);
            });
    dialog->open();
}

void PdfSaver::write(const QStringList &paths, const PageSettings &settings, const QString &path)
{
    if (m_isBusy)
        return;
    m_isBusy = true;
    Q_EMIT busyChanged();
    QTimer::singleShot(noticeable, this, [this] {
        if (m_isBusy)
            m_wait->setActivity(tr("Save as PDF"));
    });
    platform::startOnWorker(
        this,
        [documents = m_documents->opened(), paths] {
            PrintError error;
            (void)documents->open(paths, nullptr, &error);
            return error;
        },
        [this, settings, path](const PrintError &error) {
            if (error) {
                end(error, path);
                return;
            }
            m_writer = std::make_unique<PdfWriter>(PageTools::installed());
            connect(m_writer.get(), &PdfWriter::ended, this,
                    [this, path](const SharedFile &pdf, const PrintError &problem) {
                        platform::startOnWorker(
                            this, [path, pdf, problem] { return pdf ? replaceFile(path, pdf) : problem; },
                            [this, path](const PrintError &outcome) { end(outcome, path); });
                    });
            m_writer->write(m_documents->opened()->documents(), settings);
        });
}

void PdfSaver::end(const PrintError &error, const QString &path)
{
    m_isBusy = false;
    m_writer.reset();
    m_wait->setActivity({});
    m_messages->tell(
        MessageQueue::Subject::File,
        error ? Message{StatusGlyph::Kind::Error, error.message, {}, {}}
              : Message{StatusGlyph::Kind::Success, tr("The PDF file has been written"), {path}, {}});
    Q_EMIT busyChanged();
}

} // namespace host
