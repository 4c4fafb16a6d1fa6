// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/leading_integer.h"

#include <QChar>

#include <algorithm>
#include <limits>

namespace platform {

std::optional<DecimalDigit> decimalDigitAt(QStringView text, qsizetype at)
{
    if (at >= text.size())
        return std::nullopt;
    const bool isPair = text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
    const char32_t character =
        isPair ? QChar::surrogateToUcs4(text[at], text[at + 1]) : char32_t(text[at].unicode());
    if (!QChar::isDigit(character))
        return std::nullopt;
    return DecimalDigit{QChar::digitValue(character), isPair ? 2 : 1};
}

std::optional<LeadingInteger> leadingInteger(QStringView text)
{
    qsizetype at = 0;
    while (at < text.size() && text[at].isSpace())
        ++at;
    const bool negative = at < text.size() && text[at] == u'-';
    if (at < text.size() && (text[at] == u'-' || text[at] == u'+'))
        ++at;

    const qint64 limit = qint64(std::numeric_limits<qint32>::max()) + (negative ? 1 : 0);
    const qsizetype firstDigit = at;
    qint64 magnitude = 0;
    while (const auto digit = decimalDigitAt(text, at)) {
        magnitude = std::min(magnitude * 10 + digit->value, limit);
        at += digit->length;
    }
    if (at == firstDigit)
        return std::nullopt;
    return LeadingInteger{qint32(negative ? -magnitude : magnitude), at};
}

} // namespace platform
