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

// What was found out about a PDF file.
struct PageFacts
{
    int pages = 0;
    QSizeF size;      // of the first page as it is shown, in points
    int rotation = 0; // of the first page: degrees clockwise, from how it was laid out
};
// From what pdfinfo says of it; null when that makes no sense.
std::optional<PageFacts> readPageFacts(const SharedFile &text);
// The pictures that pdftoppm has written one behind the other, up to the first that makes no sense.
QList<QImage> readPictures(const SharedFile &file);

// Pictures of the pages of one document as they would be printed. All of it is made by programs apart from
// this one, with limits; nothing waits. Pages are counted from 0 as they come out of the printer: sides of
// paper. Pictures are kept as long as there is room for them.
class Preview : public QObject
{
    Q_OBJECT
public:
    explicit Preview(const PageTools &tools, QObject *parent = nullptr);
    ~Preview() override;

    void setLimits(const LimitedProcess::Limits &limits);
    // Begins anew with a document; the name is that of a file (file_name.h), read on a worker thread.
    void setDocument(const QString &path);
    void setSettings(const PageSettings &settings);
    // While the preview is hidden nothing runs, and nothing is forgotten.
    void setWatched(bool watched);

    // Null until known.
    const std::optional<PageFacts> &facts() const { return m_facts; }
    // False where the filter that lays pages out is missing: what is shown are the document's own.
    bool isAsPrinted() const { return m_isAsPrinted; }
    // Why there is nothing to see; null when there is, or will be.
    const QString &problem() const { return m_problem; }

    // A page as it was laid out, of about this height or width in pixels, whichever is more; null when it is
    // still to be made, which begins now: pageMade() follows. The last one asked for of each size is made
    // first.
    QImage page(int index);
    QImage thumbnail(int index);
    static constexpr int pagePixels = 900;
    static constexpr int thumbnailPixels = 120;

Q_SIGNALS:
    // Facts or the problem are others.
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
    int m_opening = 0; // counts the documents, to know the latest
    std::optional<Opened> m_opened;
    PageSettings m_settings;
    SharedFile m_pdf; // as printed
    bool m_isWatched = false;
    bool m_isStale = true; // the pages are to be made anew
    bool m_isAsPrinted = true;
    std::optional<PageFacts> m_facts;
    QString m_problem;
    QCache<int, QImage> m_pages, m_thumbnails; // cost in kilobytes
    int m_lookedAt = -1;                       // the page that was asked for last
    int m_wantedPage = -1, m_wantedThumbnail = -1;
    int m_pageUnderWay = -1, m_thumbnailUnderWay = -1; // the first
};

} // namespace host
