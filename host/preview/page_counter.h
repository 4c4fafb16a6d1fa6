// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/preview/page_maker.h"

#include <QHash>
#include <QObject>
#include <QStringList>

namespace host {

// How many pages documents have, before anything that settings do to them. They are counted when somebody
// asks, one after the other, by programs beside this one; nothing waits.
class PageCounter : public QObject
{
    Q_OBJECT
public:
    explicit PageCounter(const PageTools &tools, QObject *parent = nullptr);

    // Begins to count those of these documents that are not known yet; names as file_name.h has them. The
    // settings count where they have a part in how many pages there are, as with text.
    void count(const QStringList &paths, const PageSettings &settings);
    // 0 while that is not known, and where it cannot be.
    int pagesOf(const QString &path) const { return isKnown(path) ? m_known.value(path).pages : 0; }

Q_SIGNALS:
    // More is known than before.
    void counted();

private:
    struct Known
    {
        int pages = 0;
        bool dependsOnSettings = false;
        PageSettings settings = {};
    };
    struct Opened
    {
        std::optional<Document> document; // nil when it cannot be counted
        SharedFile file;
    };
    enum class Step { Idle, Opening, Making, Counting };
    bool isKnown(const QString &path) const;
    void next();
    void opened(const Opened &opened);
    void made(const SharedFile &pdf);
    void finish(int pages);

    PageTools m_tools;
    PageMaker m_maker;
    LimitedProcess m_counter;
    PageSettings m_settings;
    QStringList m_wanted;
    QHash<QString, Known> m_known; // by path; those that cannot be counted, too
    Step m_step = Step::Idle;
    QString m_path; // of what is being counted
    Known m_result; // of it
};

} // namespace host
