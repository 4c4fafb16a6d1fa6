// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/preview/preview.h"

#include "platform/background.h"

#include <QRegularExpression>
#include <QTransform>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstring>
#include <utility>

namespace host {

namespace {

constexpr int thumbnailsAtOnce = 12;
constexpr int pageCacheSize = 64 * 1024;            // kilobytes
constexpr int thumbnailCacheSize = 24 * 1024;       // kilobytes
constexpr int mostPixels = Preview::mostPixels + 1; // of an image's side, rounded up
static_assert(mostPixels * mostPixels / 256 < pageCacheSize, "one page, with 4 bytes a pixel, must fit");
constexpr int mostPages = 1'000'000;

const QString renderer = QStringLiteral("pdftoppm");
const QString counter = QStringLiteral("pdfinfo");
const QString document = QStringLiteral("/dev/stdin");

// The next number in an image header, after white space; -1 if there is none.
int takeNumber(QByteArrayView *bytes)
{
    qsizetype at = 0;
    while (at < bytes->size() && std::isspace(static_cast<unsigned char>(bytes->at(at))))
        ++at;
    const qsizetype begin = at;
    while (at < bytes->size() && at - begin < 6 && std::isdigit(static_cast<unsigned char>(bytes->at(at))))
        ++at;
    const int number = at > begin ? bytes->sliced(begin, at - begin).toInt() : -1;
    *bytes = bytes->sliced(at);
    return number;
}

// One image in the binary PGM ("P5") or PPM ("P6") format; null if it is not valid.
QImage takePicture(QByteArrayView *bytes)
{
    const bool isGrey = bytes->startsWith("P5");
    if (!isGrey && !bytes->startsWith("P6"))
        return {};
    *bytes = bytes->sliced(2);
    const int width = takeNumber(bytes), height = takeNumber(bytes), most = takeNumber(bytes);
    const bool isUsual =
        width > 0 && height > 0 && width <= mostPixels && height <= mostPixels && most == 255;
    const qsizetype line = qsizetype(width) * (isGrey ? 1 : 3);
    if (!isUsual || bytes->size() < 1 + line * height)
        return {};
    const auto *first = reinterpret_cast<const uchar *>(bytes->data() + 1);
    const QImage picture(first, width, height, line,
                         isGrey ? QImage::Format_Grayscale8 : QImage::Format_RGB888);
    *bytes = bytes->sliced(1 + line * height);
    return picture.convertToFormat(QImage::Format_RGB32);
}

} // namespace

std::optional<PageFacts> readPageFacts(const SharedFile &text)
{
    constexpr qsizetype enough = 64 * 1024;
    const FileView view(text);
    const QString said = QString::fromUtf8(view.bytes().first(qMin(enough, view.bytes().size())));
    static const QRegularExpression count(QStringLiteral("^Pages:\\s+(\\d{1,7})$"),
                                          QRegularExpression::MultilineOption);
    static const QRegularExpression size(QStringLiteral("^Page size:\\s+([\\d.]+) x ([\\d.]+) pts"),
                                         QRegularExpression::MultilineOption);
    static const QRegularExpression turned(QStringLiteral("^Page rot:\\s+(90|180|270)$"),
                                           QRegularExpression::MultilineOption);
    const QRegularExpressionMatch sides = size.match(said);
    PageFacts facts{count.match(said).captured(1).toInt(),
                    {sides.captured(1).toDouble(), sides.captured(2).toDouble()}};
    facts.rotation = turned.match(said).captured(1).toInt();
    if (facts.rotation % 180 != 0)
        facts.size.transpose();
    if (facts.pages < 1 || facts.pages > mostPages)
        return std::nullopt;
    return facts;
}

QList<QImage> readPictures(const SharedFile &file)
{
    const FileView view(file);
    QByteArrayView bytes = view.bytes();
    QList<QImage> pictures;
    for (QImage picture = takePicture(&bytes); !picture.isNull(); picture = takePicture(&bytes))
        pictures.append(picture);
    return pictures;
}

Preview::Preview(const PageTools &tools, QObject *parent)
    : QObject(parent), m_tools(tools), m_maker(tools, nullptr), m_counter(nullptr), m_pageRenderer(nullptr),
      m_thumbnailRenderer(nullptr), m_pages(pageCacheSize), m_thumbnails(thumbnailCacheSize)
{
    connect(&m_maker, &PageMaker::made, this, &Preview::made);
    connect(&m_maker, &PageMaker::failed, this, &Preview::fail);
    connect(&m_counter, &LimitedProcess::ended, this, [this](const SharedFile &output) { counted(output); });
    connect(&m_pageRenderer, &LimitedProcess::ended, this, &Preview::keepPage);
    connect(&m_thumbnailRenderer, &LimitedProcess::ended, this, &Preview::keepThumbnails);
}

Preview::~Preview() = default;

void Preview::setLimits(const LimitedProcess::Limits &limits)
{
    m_maker.setLimits(limits);
    for (LimitedProcess *process : {&m_counter, &m_pageRenderer, &m_thumbnailRenderer})
        process->setLimits(limits);
}

void Preview::setDocument(const QString &path)
{
    if (path == m_path)
        return;
    stopAll();
    m_path = path;
    m_opened.reset();
    m_problem = QString();
    forgetPages();
    Q_EMIT changed();
    platform::startOnWorker(
        this,
        [path]() -> Opened {
            PrintError error;
            if (isStream(path))
                return {{}, nullptr, tr("the document is read when it is printed")};
            const auto document = openDocument(path, &error);
            if (!document)
                return {{}, nullptr, error.message};
            const SharedFile file = openFile(path);
            return {*document, file, file ? QString() : QString::fromLocal8Bit(std::strerror(errno))};
        },
        [this, number = ++m_opening](const Opened &result) {
            if (number == m_opening)
                opened(result);
        });
}

void Preview::opened(Opened opened)
{
    if (!opened.problem.isNull()) {
        fail(opened.problem);
        return;
    }
    m_opened = std::move(opened);
    makePages();
}

void Preview::setSettings(const PageSettings &settings)
{
    if (settings == m_settings)
        return;
    m_settings = settings;
    m_isStale = true;
    makePages();
}

void Preview::setWatched(bool watched)
{
    m_isWatched = watched;
    if (watched) {
        makePages();
        renderNext();
        return;
    }
    m_isStale = m_isStale || m_maker.isRunning() || m_counter.isRunning();
    stopAll();
}

void Preview::stopAll()
{
    m_maker.stop();
    for (LimitedProcess *process : {&m_counter, &m_pageRenderer, &m_thumbnailRenderer})
        process->stop();
    m_pageUnderWay = m_thumbnailUnderWay = -1;
}

void Preview::makePages()
{
    if (!m_isWatched || !m_isStale || !m_opened)
        return;
    m_isStale = false;
    if (m_tools.path(renderer).isEmpty() || m_tools.path(counter).isEmpty()) {
        fail(tr("%1 is not installed").arg(m_tools.path(renderer).isEmpty() ? renderer : counter));
        return;
    }
    m_problem = QString();
    m_maker.make(m_opened->document, m_opened->file, m_settings);
}

void Preview::made(const SharedFile &pdf, bool asPrinted)
{
    const int thumbnail = m_wantedThumbnail;
    forgetPages();
    m_isStale = false;
    m_pdf = pdf;
    m_isAsPrinted = asPrinted;
    m_wantedPage = m_lookedAt;
    m_wantedThumbnail = thumbnail;
    m_counter.start({m_tools.path(counter), {document}, pdf, {}, {QStringLiteral("LC_ALL=C.UTF-8")}});
    renderNext();
}

void Preview::fail(const QString &reason)
{
    forgetPages();
    m_isStale = false;
    m_problem = reason;
    Q_EMIT changed();
}

void Preview::forgetPages()
{
    m_isStale = true;
    m_pdf.reset();
    m_facts.reset();
    m_pages.clear();
    m_thumbnails.clear();
    for (LimitedProcess *process : {&m_counter, &m_pageRenderer, &m_thumbnailRenderer})
        process->stop();
    m_wantedPage = m_wantedThumbnail = m_pageUnderWay = m_thumbnailUnderWay = -1;
}

void Preview::counted(const SharedFile &output)
{
    m_facts = readPageFacts(output);
    if (!m_facts) {
        fail(tr("the pages cannot be counted"));
        return;
    }
    Q_EMIT changed();
    for (const int index : m_pages.keys()) // rendered, but not announced before the orientation was known
        if (m_facts)
            Q_EMIT pageMade(index);
    renderNext();
}

QImage Preview::upright(const QImage *picture) const
{
    // A rotation by 180° was requested by the user and is shown. A rotation by 90° only follows the direction
    // in which the printer feeds the paper.
    const int rotation = m_facts && m_isAsPrinted ? m_facts->rotation : 0;
    return rotation % 180 == 0 ? *picture : picture->transformed(QTransform().rotate(-rotation));
}

bool Preview::setPagePixels(int pixels)
{
    const int wanted = std::clamp(pixels, pagePixels, mostPixels);
    return wanted != std::exchange(m_pagePixels, wanted);
}

QImage Preview::page(int index)
{
    m_lookedAt = index;
    const QImage known = m_pages.contains(index) ? *m_pages.object(index) : QImage();
    const bool isSmall = !known.isNull() && qMax(known.width(), known.height()) < m_pagePixels;
    if (!m_pages.contains(index) || isSmall) {
        m_wantedPage = index;
        renderNext();
    }
    return known.isNull() || !m_facts ? QImage() : upright(&known);
}

QImage Preview::thumbnail(int index)
{
    if (const QImage *known = m_thumbnails.object(index))
        return upright(known);
    if (m_wantedThumbnail < 0) // views request missing pages again
        m_wantedThumbnail = index;
    renderNext();
    return {};
}

void Preview::render(LimitedProcess *process, int first, int last, int pixels)
{
    QStringList arguments = {QStringLiteral("-f"),      QString::number(first + 1),  QStringLiteral("-l"),
                             QString::number(last + 1), QStringLiteral("-scale-to"), QString::number(pixels)};
    if (m_settings.isMonochrome)
        arguments.append(QStringLiteral("-gray"));
    process->start({m_tools.path(renderer), arguments + QStringList(document), m_pdf});
}

void Preview::renderNext()
{
    if (!m_isWatched || !m_pdf)
        return;
    // the current run is for a page that is no longer needed
    if (m_wantedPage >= 0 && (m_pageUnderWay != m_wantedPage || m_pixelsUnderWay != m_pagePixels)) {
        m_pageUnderWay = m_wantedPage;
        m_pixelsUnderWay = m_pagePixels;
        render(&m_pageRenderer, m_pageUnderWay, m_pageUnderWay, m_pixelsUnderWay);
    }
    if (m_facts && m_wantedThumbnail >= m_facts->pages) // there were more pages when it was requested
        m_wantedThumbnail = -1;
    // Not before the large page, which has priority.
    if (m_wantedThumbnail < 0 || m_thumbnailUnderWay >= 0 || !m_facts || m_pageUnderWay >= 0)
        return;
    const int last = qMin(m_wantedThumbnail + thumbnailsAtOnce, m_facts->pages) - 1;
    m_thumbnailUnderWay = m_wantedThumbnail;
    if (last >= m_thumbnailUnderWay)
        render(&m_thumbnailRenderer, m_thumbnailUnderWay, last, thumbnailPixels);
}

void Preview::keepPage(const SharedFile &output)
{
    const int index = std::exchange(m_pageUnderWay, -1);
    m_wantedPage = -1;
    const QList<QImage> pictures = readPictures(output);
    // A page that cannot be rendered is not tried again.
    const QImage picture = pictures.isEmpty() ? QImage() : pictures.first();
    if (const QImage *smaller = m_pages.object(index); picture.isNull() && smaller && !smaller->isNull()) {
        m_pagePixels = qMax(smaller->width(), smaller->height()); // as large as it can be rendered
        renderNext();
        return;
    }
    m_pages.insert(index, new QImage(picture), 1 + picture.sizeInBytes() / 1024);
    if (picture.isNull() && index == 0) {
        const QString problem = m_pageRenderer.problem();
        fail(problem.isEmpty() ? tr("%1 cannot read the document").arg(renderer)
                               : tr("%1 failed: %2").arg(renderer, problem));
        return;
    }
    if (m_facts) // otherwise counted() announces it
        Q_EMIT pageMade(index);
    renderNext();
}

void Preview::keepThumbnails(const SharedFile &output)
{
    const int first = std::exchange(m_thumbnailUnderWay, -1);
    QList<QImage> pictures = readPictures(output);
    const int known = m_facts ? m_facts->pages : first + 1;
    const int last = qMin(first + thumbnailsAtOnce, known) - 1;
    for (int index = first; index <= last; ++index) {
        const QImage picture = pictures.value(index - first);
        m_thumbnails.insert(index, new QImage(picture), 1 + picture.sizeInBytes() / 1024);
    }
    m_wantedThumbnail = -1;
    Q_EMIT thumbnailsMade(first, last);
    renderNext();
}

} // namespace host
