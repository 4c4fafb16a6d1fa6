// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/preview/page_tools.h"
#include "host/printing/documents.h"
#include "host/printing/page_settings.h"

#include <QObject>

namespace host {

// What a document is made into: PDF, by the filters that the print system itself has for it, each a process
// of its own. Keeps the document's own pages for the next settings. Asynchronous.
class PageMaker : public QObject
{
    Q_OBJECT
public:
    // What there are no pages for.
    enum class Fault {
        Document,  // a program says that it cannot be read
        Selection, // the settings leave no page of it
        Program    // it is missing, was ended by its limits or by an error of its own, or there is none
    };

    PageMaker(const PageTools &tools, QObject *parent);

    void setLimits(const LimitedProcess::Limits &limits) { m_process.setLimits(limits); }
    // Ends what is under way and begins this; the file is the document's, from its beginning.
    void make(const Document &document, const SharedFile &file, const PageSettings &settings);
    void stop() { m_process.stop(); }
    bool isRunning() const { return m_process.isRunning(); }

Q_SIGNALS:
    // The document's own pages as PDF, before anything that the settings do to them. Comes before made(),
    // and once a document unless the settings have a part in it, as with text.
    void documentMade(const host::SharedFile &pdf);
    // The pages as they are printed. Without the filter for that, the document's own.
    void made(const host::SharedFile &pdf, bool asPrinted);
    // Why there are none: the end of a sentence, such as "gs is not installed".
    void failed(const QString &reason, host::PageMaker::Fault fault);

private:
    enum class Step { Unpack, Convert, LayOut };
    void next(Step step);
    void run(Step step, const QString &program, const QStringList &arguments);
    void runFilter(Step step, const QString &filter);
    void ended(const SharedFile &output);
    void convert();
    void layOut();
    bool isA(const QString &type) const;

    PageTools m_tools;
    LimitedProcess m_process;
    Document m_document;
    PageSettings m_settings;
    SharedFile m_file;  // of the document, as it is after the last step
    SharedFile m_pages; // the document's own
    Step m_step = Step::Unpack;
    QString m_program;  // of the step
    QString m_madeFrom; // path and, where they have a part in it, settings that m_pages was made for
};

} // namespace host
