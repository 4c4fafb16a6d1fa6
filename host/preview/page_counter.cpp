// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/preview/page_counter.h"

#include "host/preview/preview.h"
#include "host/printing/file_name.h"
#include "host/printing/page_ranges.h"
#include "platform/background.h"

#include <QEventLoop>
#include <QRegularExpression>
#include <QSizeF>

#include <algorithm>
#include <cmath>
#include <optional>

namespace host {

namespace {

const QString counter = QStringLiteral("pdfinfo");
const QString examiner = QStringLiteral("qpdf");
const QString document = QStringLiteral("/dev/stdin");
const QStringList countArguments{QStringLiteral("-f"), QStringLiteral("1"), QStringLiteral("-l"),
                                 QStringLiteral("200"), document};
const QString ranges = QStringLiteral("page-ranges");
const QString pageSet = QStringLiteral("page-set");

bool isA(const Document &document, const QString &type)
{
    return document.format == type || document.otherFormats.contains(type);
}

bool isPdf(const Document &document)
{
    return isA(document, QStringLiteral("application/pdf"));
}

bool isImage(const Document &document)
{
    return document.format.startsWith(QLatin1String("image/"));
}

QString valueOf(const PageSettings &settings, const QString &name)
{
    const auto option = std::find_if(settings.options.begin(), settings.options.end(),
                                     [&](const auto &one) { return one.first == name; });
    return option == settings.options.end() ? QString() : option->second;
}

// The settings without those that select pages, which do not affect the number of pages of a document.
PageSettings withoutChoiceOfPages(PageSettings settings)
{
    settings.isMonochrome = false;
    settings.percent = PageSettings::naturalSize;
    settings.isImageScaledByServer = false;
    settings.options.removeIf(
        [](const auto &option) { return option.first == ranges || option.first == pageSet; });
    return settings;
}

QString unreadable(const QString &name, const QString &problem)
{
    return PageCounter::tr("“%1” cannot be printed: %2.").arg(name, problem);
}

// Whether the output of pdfinfo contains different page sizes. Portrait and landscape pages of the same paper
// have the same size.
bool haveSeveralSizes(const SharedFile &text)
{
    constexpr qsizetype enough = 64 * 1024; // bytes
    constexpr double tolerance = 3;         // points
    static const QRegularExpression size(QStringLiteral("^Page +\\d+ size: +([\\d.]+) x ([\\d.]+) pts"),
                                         QRegularExpression::MultilineOption);
    const FileView view(text);
    std::optional<QSizeF> first;
    auto lines = size.globalMatch(QString::fromUtf8(view.bytes().first(qMin(enough, view.bytes().size()))));
    while (lines.hasNext()) {
        const QRegularExpressionMatch line = lines.next();
        QSizeF page(line.captured(1).toDouble(), line.captured(2).toDouble());
        if (page.width() > page.height())
            page.transpose();
        first = first.value_or(page);
        if (std::abs(page.width() - first->width()) > tolerance ||
            std::abs(page.height() - first->height()) > tolerance)
            return true;
    }
    return false;
}

bool isInSet(int side, const QString &set)
{
    return (set != QLatin1String("even") || side % 2 == 0) && (set != QLatin1String("odd") || side % 2 != 0);
}

} // namespace

PageCounter::PageCounter(const PageTools &tools, QObject *parent)
    : QObject(parent), m_tools(tools), m_maker(tools, nullptr), m_process(nullptr)
{
    // Queued: the maker continues its work after it has emitted the signal, and the slot stops it.
    connect(&m_maker, &PageMaker::documentMade, this, &PageCounter::documentMade, Qt::QueuedConnection);
    connect(
        &m_maker, &PageMaker::made, this, [this](const SharedFile &, bool asPrinted) { made(asPrinted); },
        Qt::QueuedConnection);
    connect(
        &m_maker, &PageMaker::failed, this,
        [this](const QString &, PageMaker::Fault fault) { failed(fault); }, Qt::QueuedConnection);
    connect(&m_process, &LimitedProcess::ended, this, &PageCounter::ended);
}

void PageCounter::count(const QStringList &paths, const PageSettings &settings)
{
    begin(paths, settings, true);
}

void PageCounter::check(const QStringList &paths, const PageSettings &settings)
{
    begin(paths, settings, false);
}

void PageCounter::begin(const QStringList &paths, const PageSettings &settings, bool isEachCounted)
{
    m_wanted = paths;
    m_settings = withoutChoiceOfPages(settings);
    m_areImagesSentAsPdf = settings.areImagesSentAsPdf();
    m_ranges = valueOf(settings, ranges);
    m_pageSet = valueOf(settings, pageSet);
    m_pagesPerSide = qMax(1, valueOf(settings, QStringLiteral("number-up")).toInt());
    m_isBooklet = valueOf(settings, QStringLiteral("booklet")) == QLatin1String("true");
    if (m_isBooklet)
        m_pagesPerSide = 2;
    const bool choosesPages = !m_ranges.isEmpty() || isInSet(1, m_pageSet) != isInSet(2, m_pageSet);
    m_isEachCounted = isEachCounted || choosesPages;
    if (m_step == Step::Idle && !m_tools.path(counter).isEmpty())
        next();
}

bool PageCounter::isKnown(const QString &path) const
{
    const auto known = m_known.find(path);
    return known != m_known.end() && (!known->wasSkipped || !m_isEachCounted) &&
           (!known->usesSettings || known->settings == m_settings);
}

PageVerdict PageCounter::verdict() const
{
    if (m_tools.path(counter).isEmpty())
        return {};
    int most = 0;
    bool isPagePrinted = m_wanted.isEmpty();
    for (const QString &path : m_wanted) {
        if (!isKnown(path))
            return {PageVerdict::Kind::Pending};
        const Known known = m_known.value(path);
        // The filter for PostScript printers would send the pages one by one.
        const QString problem = m_isBooklet && known.isPostScript
                                    ? tr("the print server cannot arrange PostScript documents as a booklet")
                                    : known.problem;
        if (!problem.isNull()) {
            const QString name = readableFileName(path.section(QLatin1Char('/'), -1));
            return {PageVerdict::Kind::Unreadable, path, problem, unreadable(name, problem)};
        }
        const int sides =
            m_isBooklet ? (known.pages + 3) / 4 * 2 : (known.pages + m_pagesPerSide - 1) / m_pagesPerSide;
        most = qMax(most, sides);
        isPagePrinted = isPagePrinted || sides == 0 || (known.isPicture && !m_areImagesSentAsPdf);
        for (int side = 1; side <= sides && !isPagePrinted; ++side)
            isPagePrinted = containsPage(m_ranges, side) && isInSet(side, m_pageSet);
    }
    if (isPagePrinted)
        return {};
    const bool areSides = m_pagesPerSide > 1;
    QString message;
    if (m_wanted.size() > 1)
        message = tr("The settings leave no page of any document to print.");
    else if (most == 1)
        message = areSides ? tr("The settings leave no page to print: there is only one printed side.")
                           : tr("The settings leave no page to print: the document has only one page.");
    else
        message = (areSides ? tr("The settings leave no page to print: there are only %1 printed sides.")
                            : tr("The settings leave no page to print: the document has only %1 pages."))
                      .arg(most);
    return {PageVerdict::Kind::NoPage, {}, {}, message};
}

void PageCounter::next()
{
    const auto path = std::find_if(m_wanted.begin(), m_wanted.end(),
                                   [this](const QString &wanted) { return !isKnown(wanted); });
    if (path == m_wanted.end()) {
        m_step = Step::Idle;
        return;
    }
    m_step = Step::Opening;
    m_path = *path;
    m_result = {.settings = m_settings};
    platform::startOnWorker(
        this,
        [path = m_path]() -> Opened {
            PrintError ignored; // printing reports it
            if (path == QLatin1String("-") || isStream(path))
                return {};
            return {openDocument(path, &ignored), openFile(path)};
        },
        [this](const Opened &result) { opened(result); });
}

void PageCounter::opened(const Opened &opened)
{
    if (!opened.document || !opened.file) {
        finish();
        return;
    }
    const Document &document = *opened.document;
    m_result.isPicture = isImage(document);
    m_isPdf = isPdf(document);
    m_isReadable = false;
    m_result.isPostScript = !m_isPdf && isA(document, QStringLiteral("application/postscript"));
    m_result.usesSettings = !m_isPdf && !m_result.isPostScript;
    m_result.wasSkipped = !m_isEachCounted;
    if (m_result.wasSkipped && !m_isPdf) {
        finish();
        return;
    }
    m_step = Step::Making;
    m_maker.make(document, opened.file, m_result.settings);
}

// A PDF file is also checked with the filter that prints it, which rejects files that other programs can
// still read. If its pages are needed, they are counted meanwhile.
void PageCounter::documentMade(const SharedFile &pdf)
{
    if (m_step != Step::Making)
        return;
    m_pdf = pdf;
    if (!m_isPdf)
        m_maker.stop();
    if (!m_result.wasSkipped)
        run(m_isPdf ? Step::Making : Step::Counting, counter, countArguments);
}

void PageCounter::made(bool asPrinted)
{
    if (m_step != Step::Making)
        return;
    m_isReadable = asPrinted;
    m_step = Step::Counting;
    if (m_result.wasSkipped && !m_isReadable) // counting shows whether it can be read
        run(m_step, counter, countArguments);
    else if (!m_process.isRunning())
        ended(m_count);
}

void PageCounter::failed(PageMaker::Fault fault)
{
    if (m_step != Step::Making)
        return;
    if (m_isPdf && fault == PageMaker::Fault::Document)
        askWhy();
    else
        finish();
}

void PageCounter::askWhy()
{
    m_result.problem = tr("it is damaged, not complete or protected");
    if (m_pdf && !m_tools.path(examiner).isEmpty())
        run(Step::AskingForPassword, examiner, {QStringLiteral("--requires-password"), document});
    else
        finish();
}

void PageCounter::run(Step step, const QString &program, const QStringList &arguments)
{
    m_step = step;
    m_process.start({m_tools.path(program), arguments, m_pdf, {}, {QStringLiteral("LC_ALL=C.UTF-8")}});
}

void PageCounter::ended(const SharedFile &output)
{
    const bool isYes = output != nullptr;
    if (m_step == Step::Making) { // made() or failed() follows
        m_count = output;
    } else if (m_step == Step::Counting) {
        const auto facts = readPageFacts(output);
        m_result.pages = facts ? facts->pages : 0;
        m_result.hasSeveralSizes = facts && haveSeveralSizes(output);
        if (!facts && m_isPdf && !m_isReadable && m_process.problem().isNull())
            askWhy();
        else
            finish();
    } else if (m_step == Step::AskingForPassword && !isYes) {
        run(Step::AskingForRights, examiner, {QStringLiteral("--is-encrypted"), document});
    } else {
        if (m_step == Step::AskingForPassword)
            m_result.problem = tr("it needs a password");
        else
            m_result.problem = isYes ? tr("its author does not allow it to be printed")
                                     : tr("it is damaged or not complete");
        finish();
    }
}

void PageCounter::finish()
{
    m_process.stop();
    m_pdf.reset();
    m_count.reset();
    m_known.insert(m_path, m_result);
    next();
    Q_EMIT counted();
}

namespace {

// Replaces a document of the verdict by a scaled PDF file. If it cannot be scaled, returns false and makes
// the verdict Unreadable; if `stop` has returned true, returns false and makes it Pending.
bool scale(PageMaker *maker, Document *document, const PageSettings &settings, const StopWanted &stop,
           PageVerdict *verdict)
{
    std::optional<QString> problem;
    SharedFile scaled;
    QEventLoop untilDone;
    QObject::connect(maker, &PageMaker::made, &untilDone, [&](const SharedFile &pdf) {
        scaled = pdf;
        untilDone.quit();
    });
    QObject::connect(maker, &PageMaker::failed, &untilDone, [&](const QString &reason) {
        problem = reason;
        untilDone.quit();
    });
    if (const SharedFile file = openFile(document->path))
        maker->scale(*document, file, settings);
    else
        problem = qt_error_string(errno);
    if (!scaled && !problem)
        execUnless(&untilDone, stop);
    PrintError error;
    const auto made = scaled ? openDocument(LimitedProcess::pathFor(scaled), &error) : std::nullopt;
    if (made) {
        const QString name = document->name;
        *document = *made;
        document->name = name;
        verdict->files.append(scaled);
        return true;
    }
    verdict->kind = scaled || problem ? PageVerdict::Kind::Unreadable : PageVerdict::Kind::Pending;
    if (verdict->kind == PageVerdict::Kind::Unreadable)
        verdict->message = PageCounter::tr("“%1” cannot be scaled: %2.")
                               .arg(document->name, problem.value_or(error.message));
    return false;
}

} // namespace

PageVerdict checkPages(const PageTools &tools, const QList<Document> &documents, const PageSettings &settings,
                       const StopWanted &stop)
{
    PageCounter counter(tools);
    QStringList paths;
    for (const Document &document : documents)
        paths.append(document.path);
    QEventLoop untilKnown;
    QObject::connect(&counter, &PageCounter::counted, &untilKnown, [&] {
        if (counter.verdict().kind != PageVerdict::Kind::Pending)
            untilKnown.quit();
    });
    counter.check(paths, settings);
    if (counter.verdict().kind == PageVerdict::Kind::Pending)
        execUnless(&untilKnown, stop);
    PageVerdict verdict = counter.verdict();
    verdict.documents = documents;
    for (const Document &document : documents) { // a file from a pipe has no name
        if (verdict.kind == PageVerdict::Kind::Unreadable && document.path == verdict.path)
            verdict.message = unreadable(document.name, verdict.problem);
    }
    PageMaker maker(tools, nullptr);
    maker.setLimits(PageMaker::generousLimits());
    for (Document &document : verdict.documents) {
        const bool isMade = isImage(document) && !document.isDrawingInText ? settings.areImagesSentAsPdf()
                                                                           : settings.isScaled();
        if (verdict.kind != PageVerdict::Kind::Printable ||
            (isMade && !scale(&maker, &document, settings, stop, &verdict)))
            break;
    }
    return verdict;
}

} // namespace host
