// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/preview/page_maker.h"

#include <QHash>
#include <QObject>
#include <QStringList>

namespace host {

// Whether anything is printed of documents. A value.
struct PageVerdict
{
    enum class Kind {
        Pending,    // the documents are still being looked at
        Printable,  // something is printed, as far as that can be told here
        Unreadable, // a document is broken, cut off or protected: nothing of it would be printed
        NoPage      // the settings leave no page of any document
    };
    Kind kind = Kind::Printable;
    QString path = {};    // of the unreadable document
    QString problem = {}; // of it: the end of a sentence
    QString message = {}; // a sentence for the user; null unless the kind is Unreadable or NoPage
};

// Counts the pages of documents, before anything that settings do to them, and says whether any is printed.
// The work is done by confined programs, one document after another; nothing blocks. What has been found out
// about a document is kept as long as the counter lives.
class PageCounter : public QObject
{
    Q_OBJECT
public:
    explicit PageCounter(const PageTools &tools, QObject *parent = nullptr);

    // Begins to count the documents that are not known yet, instead of those of an earlier call; names as
    // file_name.h has them. The settings count where the number of pages depends on them, as with text.
    void count(const QStringList &paths, const PageSettings &settings);
    // 0 while that is not known, and where it cannot be.
    int pagesOf(const QString &path) const { return isKnown(path) ? m_known.value(path).pages : 0; }

    // The same, but looks only at what verdict() needs: PDF always, other documents where the settings choose
    // pages.
    void check(const QStringList &paths, const PageSettings &settings);
    // About the documents and settings of the last call of check() or count(). Never refuses a document that
    // cannot be judged here, because a program is missing or takes too long.
    PageVerdict verdict() const;

Q_SIGNALS:
    // More is known than before.
    void counted();

private:
    struct Known
    {
        int pages = 0;
        QString problem = {};    // why it cannot be printed, the end of a sentence; null when it can
        bool isPicture = false;  // whose one page is printed whatever pages are chosen
        bool wasSkipped = false; // since only the verdict was asked for
        bool usesSettings = false;
        PageSettings settings = {};
    };
    struct Opened
    {
        std::optional<Document> document; // empty when it cannot be counted
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
    PageSettings m_settings;     // without those that choose pages
    QString m_ranges, m_pageSet; // which pages are chosen
    int m_pagesPerSide = 1;
    bool m_isEachCounted = true;
    QStringList m_wanted;
    QHash<QString, Known> m_known; // by path; those that cannot be counted, too
    Step m_step = Step::Idle;
    QString m_path;   // of what is being counted
    SharedFile m_pdf; // of it
    bool m_isPdf = false;
    bool m_isReadable = false; // the filter that prints it has read it
    Known m_result;            // of it
};

// Whether anything is printed of documents, for a caller that may wait: an event loop runs until it is known.
PageVerdict checkPages(const PageTools &tools, const QList<Document> &documents,
                       const PageSettings &settings);

} // namespace host
