// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/preview/page_maker.h"

#include <QHash>
#include <QObject>
#include <QStringList>

namespace host {

// Whether any page of the documents would be printed. A value.
struct PageVerdict
{
    enum class Kind {
        Pending,    // the documents are still being examined
        Printable,  // pages would be printed, as far as known
        Unreadable, // a document is broken, truncated, protected or cannot be scaled: no page is printed
        NoPage      // the settings select no page of any document
    };
    Kind kind = Kind::Printable;
    QString path = {};    // of the unreadable document
    QString problem = {}; // the problem with that document: the end of a sentence
    QString message = {}; // a sentence for the user; null unless the kind is Unreadable or NoPage
    // From checkPages(): what to send. The paths of scaled documents are valid only while `files` exists.
    QList<Document> documents = {};
    QList<SharedFile> files = {}; // the scaled documents
};

// Counts the pages of documents before settings are applied to them, and determines whether any would be
// printed. Confined programs do the work, one document at a time; nothing blocks. Results are cached for the
// lifetime of the counter.
class PageCounter : public QObject
{
    Q_OBJECT
public:
    explicit PageCounter(const PageTools &tools, QObject *parent = nullptr);

    // Starts to count documents that are not known yet, in place of those of an earlier call. Names are
    // encoded as in file_name.h. The settings matter only if the number of pages depends on them, as with
    // text.
    void count(const QStringList &paths, const PageSettings &settings);
    // 0 if it is not known yet, cannot be determined, or was not needed for the verdict.
    int pagesOf(const QString &path) const { return isKnown(path) ? m_known.value(path).pages : 0; }

    // Whether its pages have different sizes, as far as the first 200 pages are concerned.
    bool hasSeveralSizes(const QString &path) const
    {
        return isKnown(path) && m_known.value(path).hasSeveralSizes;
    }

    // Like count(), but examines only what verdict() needs: PDF files are always read, but documents are
    // counted only if the settings select pages.
    void check(const QStringList &paths, const PageSettings &settings);
    // The verdict on the documents and settings of the last call of check() or count(). Never refuses a
    // document that cannot be examined because a program is missing or takes too long.
    PageVerdict verdict() const;

Q_SIGNALS:
    // New results are available.
    void counted();

private:
    struct Known
    {
        int pages = 0;
        QString problem = {}; // why it cannot be printed, the end of a sentence; null if it can
        bool hasSeveralSizes = false;
        bool isPostScript = false;
        bool isPicture = false;  // its only page is printed whatever pages are selected
        bool wasSkipped = false; // because only the verdict was requested
        bool usesSettings = false;
        PageSettings settings = {};
    };
    struct Opened
    {
        std::optional<Document> document; // empty if it cannot be counted
        SharedFile file;
    };
    enum class Step { Idle, Opening, Making, Counting, AskingForPassword, AskingForRights };
    void begin(const QStringList &paths, const PageSettings &settings, bool isEachCounted);
    bool isKnown(const QString &path) const;
    void next();
    void opened(const Opened &opened);
    void documentMade(const SharedFile &pdf);
    void made(bool asPrinted);
    void failed(PageMaker::Fault fault);
    void askWhy();
    void run(Step step, const QString &program, const QStringList &arguments);
    void ended(const SharedFile &output);
    void finish();

    PageTools m_tools;
    PageMaker m_maker;
    LimitedProcess m_process;
    PageSettings m_settings;     // without those that select pages
    QString m_ranges, m_pageSet; // the selected pages
    int m_pagesPerSide = 1;
    bool m_isBooklet = false;          // both sides of all sheets are printed
    bool m_areImagesSentAsPdf = false; // the filter for PDF selects their pages too
    bool m_isEachCounted = true;
    QStringList m_wanted;
    QHash<QString, Known> m_known; // by path; includes documents that cannot be counted
    Step m_step = Step::Idle;
    QString m_path;            // the document being counted
    SharedFile m_pdf, m_count; // its contents; its counted pages while the filter still reads it
    bool m_isPdf = false;
    bool m_isReadable = false; // the filter that prints it has read it
    Known m_result;            // its result so far
};

// Determines whether any page of the documents would be printed, and scales them if the settings ask for it.
// Runs an event loop until the result is known, on any thread. The result is Pending if `stop` (may be null)
// has returned true.
PageVerdict checkPages(const PageTools &tools, const QList<Document> &documents, const PageSettings &settings,
                       const StopWanted &stop = {});

} // namespace host
