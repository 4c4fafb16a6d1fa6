// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/preview/page_maker.h"

namespace host {

namespace {

const QString pdf = QStringLiteral("application/pdf");
const QString document = QStringLiteral("/dev/stdin");
const QString interpreter = QStringLiteral("gs");

QStringList interpreterArguments()
{
    return {QStringLiteral("-q"),
            QStringLiteral("-dBATCH"),
            QStringLiteral("-dNOPAUSE"),
            QStringLiteral("-dSAFER"),
            QStringLiteral("-sDEVICE=pdfwrite"),
            QStringLiteral("-sOutputFile=/dev/stdout"),
            QStringLiteral("-sstdout=%stderr")};
}

// Scales each page about its center and keeps its size. The size is that of the trim box, else of the crop
// box, as for the filter that lays out the pages. Images are not compressed with loss again. Annotations
// become a part of the page, since programs place them without regard to the scale.
QStringList scalingArguments(int percent)
{
    const QString atStartOfPage = QStringLiteral(
        "<< /BeginPage { pop currentpagedevice /PageSize get aload pop 2 div exch 2 div exch "
        "2 copy translate %1 100 div dup scale neg exch neg exch translate } >> setpagedevice");
    return {QStringLiteral("-dAutoRotatePages=/None"),
            QStringLiteral("-dUseCropBox"),
            QStringLiteral("-dUseTrimBox"),
            QStringLiteral("-dPreserveAnnots=false"),
            QStringLiteral("-dPrinted"),
            QStringLiteral("-dAutoFilterColorImages=false"),
            QStringLiteral("-dColorImageFilter=/FlateEncode"),
            QStringLiteral("-dAutoFilterGrayImages=false"),
            QStringLiteral("-dGrayImageFilter=/FlateEncode"),
            QStringLiteral("-c"),
            atStartOfPage.arg(percent),
            QStringLiteral("-f"),
            document};
}

} // namespace

PageMaker::PageMaker(const PageTools &tools, QObject *parent)
    : QObject(parent), m_tools(tools), m_process(nullptr)
{
    connect(&m_process, &LimitedProcess::ended, this, &PageMaker::ended);
}

LimitedProcess::Limits PageMaker::generousLimits()
{
    LimitedProcess::Limits limits;
    limits.time = std::chrono::minutes(10);
    limits.memory *= 4;
    limits.output *= 8;
    return limits;
}

bool PageMaker::isA(const QString &type) const
{
    return m_document.format == type || m_document.otherFormats.contains(type);
}

void PageMaker::begin(const Document &document, const SharedFile &file, const PageSettings &settings,
                      bool isLaidOut)
{
    m_process.stop();
    m_document = document;
    m_settings = settings;
    m_isLaidOut = isLaidOut;
    const bool isLaidOutAtOnce = !isA(pdf) && !isA(QStringLiteral("application/postscript"));
    const QString madeFrom = document.path + (isLaidOutAtOnce ? settingsForConversion().optionText() +
                                                                    QString::fromLatin1(settings.ppd())
                                                              : QString());
    if (m_pages && madeFrom == m_madeFrom) {
        scalePages();
        return;
    }
    m_pages.reset();
    m_scaled.reset();
    m_madeFrom = madeFrom;
    m_file = file;
    next(document.isCompressed ? Step::Unpack : Step::Convert);
}

void PageMaker::next(Step step)
{
    if (step == Step::Unpack)
        runFilter(step, QStringLiteral("gziptoany"), m_settings);
    else
        convert();
}

void PageMaker::convert()
{
    if (isA(pdf)) {
        m_pages = m_file;
        Q_EMIT documentMade(m_pages);
        scalePages();
    } else if (isA(QStringLiteral("application/postscript"))) {
        run(Step::Convert, interpreter, interpreterArguments() + QStringList(document));
    } else if (isPicture() && !m_document.isDrawingInText) {
        runFilter(Step::Convert, QStringLiteral("imagetopdf"), settingsForConversion());
    } else if (isA(QStringLiteral("text/plain")) && !m_document.isDrawingInText) {
        runFilter(Step::Convert, QStringLiteral("texttopdf"), m_settings);
    } else {
        const QString kind = m_document.formatText.isEmpty() ? m_document.format : m_document.formatText;
        Q_EMIT failed(tr("there is no program here that shows this kind of document (%1)").arg(kind),
                      Fault::Program);
    }
}

// The filter for PDF mirrors an image that is sent as PDF.
PageSettings PageMaker::settingsForConversion() const
{
    PageSettings settings = m_settings;
    if (isPicture() && settings.areImagesSentAsPdf())
        settings.options.removeIf([](const auto &option) { return option.first == QLatin1String("mirror"); });
    return settings;
}

void PageMaker::scalePages()
{
    if (!m_settings.isScaled() || (m_scaled && m_scaledTo == m_settings.percent)) {
        layOut();
        return;
    }
    m_scaled.reset();
    m_scaledTo = m_settings.percent;
    m_file = m_pages;
    run(Step::Scale, interpreter, interpreterArguments() + scalingArguments(m_scaledTo));
}

void PageMaker::layOut()
{
    const SharedFile &pages = m_settings.isScaled() ? m_scaled : m_pages;
    const bool isDone = isPicture() && !m_settings.areImagesSentAsPdf(); // by the filter for images
    if (isDone || !m_isLaidOut || m_tools.path(QStringLiteral("pdftopdf")).isEmpty()) {
        Q_EMIT made(pages, isDone);
        return;
    }
    m_file = pages;
    runFilter(Step::LayOut, QStringLiteral("pdftopdf"), m_settings);
}

void PageMaker::runFilter(Step step, const QString &filter, const PageSettings &settings)
{
    run(step, filter,
        {QStringLiteral("1"), QStringLiteral("user"), QStringLiteral("document"), QStringLiteral("1"),
         settings.optionText(), document});
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
    if (m_step == Step::Scale) {
        m_scaled = output;
        layOut();
        return;
    }
    m_pages = output;
    Q_EMIT documentMade(m_pages);
    scalePages();
}

} // namespace host
