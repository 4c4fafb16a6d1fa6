// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/foreign_text.h"

#include <QFontMetrics>
#include <QLabel>
#include <QStringList>

namespace host {

namespace {

constexpr qsizetype mostLines = 12;
constexpr qsizetype mostCharacters = 2000;
constexpr qsizetype longestWord = 24; // characters that fit into the narrowest place

QString cut(const QString &text, qsizetype most)
{
    return text.size() <= most ? text : text.left(most - 1) + QChar(0x2026);
}

// Control characters and direction overrides would affect surrounding texts.
bool isUnwanted(QChar c)
{
    return c.category() == QChar::Other_Control || (c.unicode() >= 0x202a && c.unicode() <= 0x202e) ||
           (c.unicode() >= 0x2066 && c.unicode() <= 0x2069);
}

QString withBreaks(const QString &line)
{
    QString result;
    qsizetype length = 0;
    for (const QChar c : line) {
        length = c.isSpace() ? 0 : length + 1;
        if (length > longestWord && !c.isLowSurrogate()) {
            result += QChar(0x200b); // allows a line break
            length = 1;
        }
        result += isUnwanted(c) ? QChar(QLatin1Char(' ')) : c;
    }
    return result;
}

} // namespace

QString oneLine(const QString &text, qsizetype most)
{
    QString line = cut(text, 4 * most); // simplified() is slow for a megabyte
    for (QChar &c : line) {
        if (isUnwanted(c))
            c = QLatin1Char(' ');
    }
    return cut(line.simplified(), most);
}

QString wrappable(const QString &text)
{
    QStringList lines = cut(text, mostCharacters).split(QLatin1Char('\n'));
    if (lines.size() > mostLines)
        lines = lines.first(mostLines) + QStringList(QString(QChar(0x2026)));
    for (QString &line : lines)
        line = withBreaks(line);
    return lines.join(QLatin1Char('\n'));
}

QString tooltipOf(const QString &text)
{
    if (text.isEmpty())
        return {};
    return QStringLiteral("<qt>%1</qt>")
        .arg(wrappable(text).toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>")));
}

QString elided(const QString &text, QLabel *label, int width)
{
    const QString line = oneLine(text);
    const QString shown = QFontMetrics(label->font()).elidedText(line, Qt::ElideRight, width);
    label->setToolTip(shown == text ? QString() : tooltipOf(text));
    return shown;
}

} // namespace host
