// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/preview/page_tools.h"
#include "host/printing/documents.h"
#include "host/printing/page_settings.h"

#include <QObject>

namespace host {

// Converts a document to PDF with the filters of the print system, each in its own process. Caches the
// document's own pages for other settings. Asynchronous.
class PageMaker : public QObject
{
    Q_OBJECT
public:
    // The cause of a failure.
    enum class Fault {
        Document,  // a program reports that the document cannot be read
        Selection, // the settings select no page of the document
        Program    // a program is missing, exceeded its limits, failed, or does not exist for this format
    };

    PageMaker(const PageTools &tools, QObject *parent);

    void setLimits(const LimitedProcess::Limits &limits) { m_process.setLimits(limits); }
    // Limits for large documents that are not made for display: ten minutes, and more memory and output.
    static LimitedProcess::Limits generousLimits();
    // Starts a conversion in place of the current one; the file contains the document, from its beginning.
    void make(const Document &document, const SharedFile &file, const PageSettings &settings)
    {
        begin(document, file, settings, true);
    }
    // The same, but emits made() with the scaled pages before they are laid out, as a document for the print
    // system.
    void scale(const Document &document, const SharedFile &file, const PageSettings &settings)
    {
        begin(document, file, settings, false);
    }
    void stop() { m_process.stop(); }
    bool isRunning() const { return m_process.isRunning(); }

Q_SIGNALS:
    // The document's own pages as PDF, before settings are applied. Emitted before made(), once per document
    // unless the settings affect these pages, as with text.
    void documentMade(const host::SharedFile &pdf);
    // The pages as they are printed. Without the filter for that, the document's own pages.
    void made(const host::SharedFile &pdf, bool asPrinted);
    // Why there are no pages: the end of a sentence, such as "gs is not installed".
    void failed(const QString &reason, host::PageMaker::Fault fault);

private:
    enum class Step { Unpack, Convert, Scale, LayOut };
    void begin(const Document &document, const SharedFile &file, const PageSettings &settings,
               bool isLaidOut);
    void next(Step step);
    void run(Step step, const QString &program, const QStringList &arguments);
    void runFilter(Step step, const QString &filter, const PageSettings &settings);
    void ended(const SharedFile &output);
    void convert();
    void scalePages();
    void layOut();
    PageSettings settingsForConversion() const;
    bool isPicture() const { return m_document.format.startsWith(QLatin1String("image/")); }
    bool isA(const QString &type) const;

    PageTools m_tools;
    LimitedProcess m_process;
    Document m_document;
    PageSettings m_settings;
    SharedFile m_file;  // result of the last step
    SharedFile m_pages; // the document's own
    SharedFile m_scaled;
    int m_scaledTo = 0; // percent
    bool m_isLaidOut = true;
    Step m_step = Step::Unpack;
    QString m_program;  // of the current step
    QString m_madeFrom; // path of m_pages and, if they matter, the settings
};

} // namespace host
