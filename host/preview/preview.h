// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/preview/page_maker.h"

#include <QCache>
#include <QImage>
#include <QList>
#include <QObject>
#include <QSizeF>
#include <QString>

#include <optional>

namespace host {

// Properties of a PDF file.
struct PageFacts
{
    int pages = 0;
    QSizeF size;      // of the first page as displayed, in points
    int rotation = 0; // of the first page: degrees clockwise, relative to its layout
};
// Parses the output of pdfinfo; null if it is not valid.
std::optional<PageFacts> readPageFacts(const SharedFile &text);
// Parses the concatenated images that pdftoppm has written, up to the first invalid one.
QList<QImage> readPictures(const SharedFile &file);

// Images of the pages of one document as they would be printed. Confined programs render them; nothing
// blocks. A page is one printed side. Pages are counted from 0 in the order in which they are printed. Images
// are cached up to a size limit.
class Preview : public QObject
{
    Q_OBJECT
public:
    explicit Preview(const PageTools &tools, QObject *parent = nullptr);
    ~Preview() override;

    void setLimits(const LimitedProcess::Limits &limits);
    // Shows another document in place of the current one. The path is encoded as in file_name.h; the file is
    // opened on a worker thread.
    void setDocument(const QString &path);
    void setSettings(const PageSettings &settings);
    // Sets whether the preview is visible. While it is hidden no program runs; the cache is kept.
    void setWatched(bool watched);

    // Null until known.
    const std::optional<PageFacts> &facts() const { return m_facts; }
    // False if the filter for page layout is missing, so that the document's own pages are shown.
    bool isAsPrinted() const { return m_isAsPrinted; }
    // Why nothing can be shown; null if pages are shown, or will be.
    const QString &problem() const { return m_problem; }

    // The height or width of pages in pixels, whichever is larger: pagePixels to mostPixels. Pages that were
    // rendered smaller are rendered again when they are requested. False if nothing has changed.
    bool setPagePixels(int pixels);

    // The image of a page in its layout orientation, in about the size set by setPagePixels(). If it is not
    // in the cache, starts to render it, and returns a smaller image, or null if there is none; pageMade()
    // follows. The last request for a page, and for a thumbnail, is processed first.
    QImage page(int index);
    QImage thumbnail(int index);
    static constexpr int pagePixels = 900;
    static constexpr int mostPixels = 3600;
    static constexpr int thumbnailPixels = 120;

Q_SIGNALS:
    // The facts or the problem have changed.
    void changed();
    void pageMade(int index);
    void thumbnailsMade(int first, int last);

private:
    struct Opened
    {
        Document document;
        SharedFile file;
        QString problem;
    };
    void opened(Opened opened);
    void makePages();
    void made(const SharedFile &pdf, bool asPrinted);
    void fail(const QString &reason);
    void render(LimitedProcess *process, int first, int last, int pixels);
    void renderNext();
    void counted(const SharedFile &output);
    QImage upright(const QImage *picture) const;
    void keepPage(const SharedFile &output);
    void keepThumbnails(const SharedFile &output);
    void forgetPages();
    void stopAll();

    PageTools m_tools;
    PageMaker m_maker;
    LimitedProcess m_counter;
    LimitedProcess m_pageRenderer;
    LimitedProcess m_thumbnailRenderer;
    QString m_path;
    int m_opening = 0; // number of the latest document
    std::optional<Opened> m_opened;
    PageSettings m_settings;
    SharedFile m_pdf; // as printed
    bool m_isWatched = false;
    bool m_isStale = true; // the pages have to be made again
    bool m_isAsPrinted = true;
    std::optional<PageFacts> m_facts;
    QString m_problem;
    int m_pagePixels = pagePixels;
    int m_pixelsUnderWay = 0;
    QCache<int, QImage> m_pages, m_thumbnails; // cost in kilobytes
    int m_lookedAt = -1;                       // the page that was requested last
    int m_wantedPage = -1, m_wantedThumbnail = -1;
    int m_pageUnderWay = -1, m_thumbnailUnderWay = -1; // the first of the run
};

} // namespace host
