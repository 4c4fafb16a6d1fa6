// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/leading_integer.h"

#include <QChar>

#include <algorithm>
#include <limits>

namespace platform {

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
    for (; at < text.size() && text[at].isDigit(); ++at)
        magnitude = std::min(magnitude * 10 + text[at].digitValue(), limit);
    if (at == firstDigit)
        return std::nullopt;
    return LeadingInteger{qint32(negative ? -magnitude : magnitude), at};
}

} // namespace platform
