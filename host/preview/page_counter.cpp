// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/preview/page_counter.h"

#include "host/preview/preview.h"
#include "platform/background.h"

#include <algorithm>

namespace host {

namespace {

const QString counter = QStringLiteral("pdfinfo");

// Which pages are printed does not change how many there are.
// What no count depends on.
PageSettings withoutRanges(PageSettings settings)
{
    settings.isMonochrome = false;
    settings.options.removeIf(
        [](const auto &option) { return option.first == QLatin1String("page-ranges"); });
    return settings;
}

bool isA(const Document &document, const QString &type)
{
    return document.format == type || document.otherFormats.contains(type);
}

} // namespace

PageCounter::PageCounter(const PageTools &tools, QObject *parent)
    : QObject(parent), m_tools(tools), m_maker(tools, nullptr), m_counter(nullptr)
{
    // Queued, so that the maker can be stopped: it goes on with the pages as they are printed.
    connect(&m_maker, &PageMaker::documentMade, this, &PageCounter::made, Qt::QueuedConnection);
    connect(&m_maker, &PageMaker::failed, this, [this] {
        if (m_step == Step::Making)
            finish(0);
    });
    connect(&m_counter, &LimitedProcess::ended, this, [this](const SharedFile &output) {
        const auto facts = readPageFacts(output);
        finish(facts ? facts->pages : 0);
    });
}

void PageCounter::count(const QStringList &paths, const PageSettings &settings)
{
    m_wanted = paths;
    m_settings = withoutRanges(settings);
    if (m_step == Step::Idle && !m_tools.path(counter).isEmpty())
        next();
}

bool PageCounter::isKnown(const QString &path) const
{
    const auto known = m_known.find(path);
    return known != m_known.end() && (!known->dependsOnSettings || known->settings == m_settings);
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
    m_result = {0, false, m_settings};
    platform::startBeside(
        this,
        [path = m_path]() -> Opened {
            PrintError ignored; // who prints is told
            if (path == QLatin1String("-") || isStream(path))
                return {};
            return {openDocument(path, &ignored), openFile(path)};
        },
        [this](const Opened &result) { opened(result); });
}

void PageCounter::opened(const Opened &opened)
{
    if (!opened.document || !opened.file) {
        finish(0);
        return;
    }
    m_result.dependsOnSettings = !isA(*opened.document, QStringLiteral("application/pdf")) &&
                                 !isA(*opened.document, QStringLiteral("application/postscript"));
    m_step = Step::Making;
    m_maker.make(*opened.document, opened.file, m_result.settings);
}

void PageCounter::made(const SharedFile &pdf)
{
    if (m_step != Step::Making)
        return;
    m_maker.stop();
    m_step = Step::Counting;
    m_counter.start(
        {m_tools.path(counter), {QStringLiteral("/dev/stdin")}, pdf, {}, {QStringLiteral("LC_ALL=C.UTF-8")}});
}

void PageCounter::finish(int pages)
{
    m_result.pages = pages;
    m_known.insert(m_path, m_result);
    next();
    Q_EMIT counted();
}

} // namespace host
