// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/page_ranges.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <limits>
#include <vector>

namespace host {

namespace {

constexpr int lastPage = std::numeric_limits<int>::max();

struct Range
{
    int first = 1;
    int last = lastPage;

    bool contains(int page) const { return first <= page && page <= last; }
};

struct PageRangesText
{
    Q_DECLARE_TR_FUNCTIONS(PageRangesText)
};

std::optional<int> pageNumber(const QString &text, int whenEmpty)
{
    if (text.isEmpty())
        return whenEmpty;
    bool ok = false;
    const int number = text.toInt(&ok);
    if (!ok || number < 1 || text.startsWith(QLatin1Char('+')))
        return std::nullopt;
    return number;
}

std::optional<Range> parseRange(const QString &text)
{
    const qsizetype dash = text.indexOf(QLatin1Char('-'));
    if (dash < 0) {
        const auto page = text.isEmpty() ? std::nullopt : pageNumber(text, 1);
        return page ? std::optional(Range{*page, *page}) : std::nullopt;
    }
    if (text.size() == 1)
        return std::nullopt;
    const auto first = pageNumber(text.left(dash).trimmed(), 1);
    const auto last = pageNumber(text.mid(dash + 1).trimmed(), lastPage);
    if (!first || !last || *first > *last)
        return std::nullopt;
    return Range{*first, *last};
}

QString rangeText(const Range &range)
{
    if (range.first == range.last)
        return QString::number(range.first);
    const QString last = range.last == lastPage ? QString() : QString::number(range.last);
    return QString::number(range.first) + QLatin1Char('-') + last;
}

std::vector<Range> merged(std::vector<Range> ranges)
{
    std::sort(ranges.begin(), ranges.end(), [](const Range &a, const Range &b) { return a.first < b.first; });
    std::vector<Range> result;
    for (const Range &range : ranges) {
        const bool touches =
            !result.empty() && (result.back().last == lastPage || range.first <= result.back().last + 1);
        if (touches)
            result.back().last = std::max(result.back().last, range.last);
        else
            result.push_back(range);
    }
    return result;
}

QString textOf(const std::vector<Range> &ranges)
{
    QStringList texts;
    for (const Range &range : ranges)
        texts.append(rangeText(range));
    return texts.join(QLatin1Char(','));
}

// The ranges in a normalized text.
std::vector<Range> rangesOf(const QString &text)
{
    if (text.isEmpty())
        return {Range()};
    std::vector<Range> ranges;
    for (const QString &part : text.split(QLatin1Char(',')))
        ranges.push_back(parseRange(part).value_or(Range()));
    return ranges;
}

} // namespace

std::optional<QString> normalizedPageRanges(const QString &text, QString *error)
{
    if (text.trimmed().isEmpty())
        return QString();
    QString plain = text;
    plain.replace(QChar(0x2013), QLatin1Char('-')); // an en dash, which word processors insert
    std::vector<Range> ranges;
    for (const QString &part : plain.split(QLatin1Char(','))) {
        const auto range = parseRange(part.trimmed());
        if (!range) {
            if (error)
                *error =
                    PageRangesText::tr("“%1” is not a page or a range of pages; write for example 1-3, 8.")
                        .arg(part.trimmed());
            return std::nullopt;
        }
        ranges.push_back(*range);
    }
    return textOf(merged(std::move(ranges)));
}

bool containsPage(const QString &ranges, int page)
{
    const std::vector<Range> all = rangesOf(ranges);
    return std::any_of(all.begin(), all.end(), [page](const Range &range) { return range.contains(page); });
}

int countPages(const QString &ranges, int last, const QString &pageSet)
{
    int count = 0;
    for (const Range &range : rangesOf(ranges)) {
        const int end = std::min(range.last, last);
        if (range.first > end)
            continue;
        const int all = end - range.first + 1;
        const int odd = end / 2 + end % 2 - range.first / 2;
        count += pageSet == QLatin1String("odd") ? odd : pageSet == QLatin1String("even") ? all - odd : all;
    }
    return count;
}

int lastBeginning(const QString &ranges)
{
    return ranges.isEmpty() ? 0 : rangesOf(ranges).back().first;
}

std::optional<QString> withPageToggled(const QString &ranges, int page, int count)
{
    std::vector<Range> toggled;
    bool isRemoved = false;
    for (const Range &range : rangesOf(ranges)) {
        if (!range.contains(page)) {
            toggled.push_back(range);
            continue;
        }
        isRemoved = true;
        if (range.first < page)
            toggled.push_back({range.first, page - 1});
        if (range.last > page)
            toggled.push_back({page + 1, range.last});
    }
    if (!isRemoved)
        toggled.push_back({page, page});
    toggled = merged(std::move(toggled));
    std::erase_if(toggled, [count](const Range &range) { return range.first > count; });
    if (toggled.empty())
        return std::nullopt;
    const QString text = textOf(toggled);
    return countPages(text, count) == count ? QString() : text;
}

} // namespace host
