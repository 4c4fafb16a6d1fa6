// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/recording_host.h"

ppd_file_s *RecordingHost::ppdFile()
{
    ++ppdRequests;
    return ppd;
}

void ResolvingRecordingHost::willChangePPDOptionKeyValuePpdChoice(const QString &keyword,
                                                                  const QVariant &choice)
{
    if (onTold)
        onTold(keyword);
    told.emplace_back(keyword, choice);
}

void ResolvingRecordingHost::willBlock(const QString &what)
{
    blockingWork.append(what);
    ++blockingDepth;
}

void ResolvingRecordingHost::didBlock()
{
    --blockingDepth;
}

void ResolvingRecordingHost::panelFailed(const QString &className, const QString &reason)
{
    failedPanels.append(className + QStringLiteral(": ") + reason);
}
