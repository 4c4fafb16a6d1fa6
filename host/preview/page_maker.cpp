// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/preview/page_maker.h"

namespace host {

namespace {

const QString pdf = QStringLiteral("application/pdf");
const QString document = QStringLiteral("/dev/stdin");

} // namespace

PageMaker::PageMaker(const PageTools &tools, QObject *parent)
    : QObject(parent), m_tools(tools), m_process(nullptr)
{
    connect(&m_process, &LimitedProcess::ended, this, &PageMaker::ended);
}

bool PageMaker::isA(const QString &type) const
{
    return m_document.format == type || m_document.otherFormats.contains(type);
}

void PageMaker::make(const Document &document, const SharedFile &file, const PageSettings &settings)
{
    m_process.stop();
    m_document = document;
    m_settings = settings;
    const bool isLaidOutAtOnce = !isA(pdf) && !isA(QStringLiteral("application/postscript"));
    const QString madeFrom =
        document.path +
        (isLaidOutAtOnce ? settings.optionText() + QString::fromLatin1(settings.ppd()) : QString());
    if (m_pages && madeFrom == m_madeFrom) {
        layOut();
        return;
    }
    m_pages.reset();
    m_madeFrom = madeFrom;
    m_file = file;
    next(document.isCompressed ? Step::Unpack : Step::Convert);
}

void PageMaker::next(Step step)
{
    if (step == Step::Unpack)
        runFilter(step, QStringLiteral("gziptoany"));
    else if (step == Step::Convert)
        convert();
    else
        layOut();
}

void PageMaker::convert()
{
    if (isA(pdf)) {
        m_pages = m_file;
        Q_EMIT documentMade(m_pages);
        layOut();
    } else if (isA(QStringLiteral("application/postscript"))) {
        run(Step::Convert, QStringLiteral("gs"),
            {QStringLiteral("-q"), QStringLiteral("-dBATCH"), QStringLiteral("-dNOPAUSE"),
             QStringLiteral("-dSAFER"), QStringLiteral("-sDEVICE=pdfwrite"),
             QStringLiteral("-sOutputFile=/dev/stdout"), QStringLiteral("-sstdout=%stderr"), document});
    } else if (m_document.format.startsWith(QLatin1String("image/")) && !m_document.isDrawingInText) {
        runFilter(Step::Convert, QStringLiteral("imagetopdf"));
    } else if (isA(QStringLiteral("text/plain")) && !m_document.isDrawingInText) {
        runFilter(Step::Convert, QStringLiteral("texttopdf"));
    } else {
        const QString kind = m_document.formatText.isEmpty() ? m_document.format : m_document.formatText;
        Q_EMIT failed(tr("there is no program here that shows this kind of document (%1)").arg(kind),
                      Fault::Program);
    }
}

void PageMaker::layOut()
{
    // Done by the filter for images.
    const bool isDone = m_document.format.startsWith(QLatin1String("image/"));
    if (isDone || m_tools.path(QStringLiteral("pdftopdf")).isEmpty()) {
        Q_EMIT made(m_pages, isDone);
        return;
    }
    m_file = m_pages;
    runFilter(Step::LayOut, QStringLiteral("pdftopdf"));
}

void PageMaker::runFilter(Step step, const QString &filter)
{
    run(step, filter,
        {QStringLiteral("1"), QStringLiteral("user"), QStringLiteral("document"), QStringLiteral("1"),
         m_settings.optionText(), document});
}

void PageMaker::run(Step step, const QString &program, const QStringList &arguments)
{
    m_step = step;
    m_program = program;
    const QString path = m_tools.path(program);
    if (path.isEmpty()) {
        Q_EMIT failed(tr("%1 is not installed").arg(program), Fault::Program);
        return;
    }
    const SharedFile ppd = inMemory(m_settings.ppd());
    if (!ppd) {
        Q_EMIT failed(tr("there is not enough memory"), Fault::Program);
        return;
    }
    m_process.start({path,
                     arguments,
                     m_file,
                     {ppd},
                     {QStringLiteral("PPD=") + LimitedProcess::pathFor(ppd), QStringLiteral("CHARSET=utf-8"),
                      QStringLiteral("FINAL_CONTENT_TYPE=application/pdf")}});
}

void PageMaker::ended(const SharedFile &output)
{
    const bool isEmpty = output && FileView(output).bytes().isEmpty();
    if (isEmpty && m_step == Step::LayOut) {
        Q_EMIT failed(tr("the settings leave no page of the document"), Fault::Selection);
        return;
    }
    if (!output || isEmpty) {
        const QString problem = m_process.problem();
        m_pages.reset();
        if (problem.isEmpty())
            Q_EMIT failed(tr("%1 cannot read the document").arg(m_program), Fault::Document);
        else
            Q_EMIT failed(tr("%1 failed: %2").arg(m_program, problem), Fault::Program);
        return;
    }
    if (m_step == Step::LayOut) {
        Q_EMIT made(output, true);
        return;
    }
    m_file = output;
    if (m_step == Step::Unpack) {
        next(Step::Convert);
        return;
    }
    m_pages = output;
    Q_EMIT documentMade(m_pages);
    layOut();
}

} // namespace host
