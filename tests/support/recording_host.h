// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/print_dialog.h"

#include <QStringList>

#include <functional>
#include <utility>
#include <vector>

// An older dialog host: job settings, a session, a PPD, and the number of requests for them.
class RecordingHost : public platform::PrintDialogHost
{
public:
    explicit RecordingHost(ppd_file_s *ppd = nullptr) : ppd(ppd) {}

    PMPrintSettings printSettings() override { return &settings; }
    PMPrintSession printSession() override { return &session; }
    ppd_file_s *ppdFile() override;

    platform::PrintSettings settings;
    platform::PrintSession session;
    ppd_file_s *ppd;
    int ppdRequests = 0;
};

// A host that takes part in constraint resolution and can show that it waits; records its notifications in
// order.
class ResolvingRecordingHost : public RecordingHost,
                               public platform::ConstraintResolvingHost,
                               public platform::BlockingWorkHost,
                               public platform::PanelProblemHost
{
public:
    using RecordingHost::RecordingHost;

    void willChangePPDOptionKeyValuePpdChoice(const QString &keyword, const QVariant &choice) override;
    void willBlock(const QString &what) override;
    void didBlock() override;
    void panelFailed(const QString &className, const QString &reason) override;

    std::vector<std::pair<QString, QVariant>> told;
    // If set, called before each addition to `told`.
    std::function<void(const QString &keyword)> onTold;
    QStringList blockingWork;
    QStringList failedPanels; // "class: reason"
    int blockingDepth = 0;
};
