// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/batch/terminal_text.h"

namespace host {

namespace {

bool isObeyed(QChar c)
{
    switch (c.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    case QChar::Other_Format: // includes marks and overrides of the writing direction
        return c.unicode() != 0x00ad && c.unicode() != 0x200c && c.unicode() != 0x200d;
    default:
        return false;
    }
}

QString hexadecimal(QChar c, int digits)
{
    return QStringLiteral("%1").arg(uint{c.unicode()}, digits, 16, QLatin1Char('0'));
}

} // namespace

QByteArray terminalLine(const QString &line)
{
    QString shown;
    for (const QChar c : line) {
        if (c == QLatin1Char('\n'))
            shown += QStringLiteral("\\n");
        else if (isObeyed(c))
            shown += c.unicode() < 0x100 ? QStringLiteral("\\x") + hexadecimal(c, 2)
                                         : QStringLiteral("\\u") + hexadecimal(c, 4);
        else
            shown += c;
    }
    return shown.toUtf8() + '\n';
}

QByteArray terminalJson(const QByteArray &json)
{
    QString shown;
    for (const QChar c : QString::fromUtf8(json))
        shown +=
            c != QLatin1Char('\n') && isObeyed(c) ? QStringLiteral("\\u") + hexadecimal(c, 4) : QString(c);
    return shown.toUtf8();
}

} // namespace host
