// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/extensions/extensions.h"
#include "host/policy/locks.h"
#include "host/policy/policy.h"
#include "host/printing/print_system.h"

#include <mutex>

namespace host {

// A print system as the administrator's policy leaves it: it offers the queues that the policy names, and
// sends no job that goes against it. The system that it stands on is borrowed and outlives it.
class PolicyPrintSystem : public PrintSystem
{
public:
    // `bundleFolders` are those of Extensions; they say which options a code belongs to.
    PolicyPrintSystem(PrintSystem &system, const QStringList &bundleFolders, const Policy &policy);

    // Fails where there are printers, but none that the policy names.
    std::optional<QList<Destination>> destinations(PrintError *error) override;
    std::optional<Destination> destination(const QString &name, PrintError *error) override;
    std::unique_ptr<PpdDocument> ppd(const Destination &destination, PrintError *error) override;
    // Rejected, with what and by whom, where an option of the job goes against what is locked, or a locked
    // choice lacks its code.
    Submission submit(const JobRequest &request, const SubmissionWatch &watch) override;
    JobStatus jobStatus(const Destination &destination, int jobId) override;
    bool changeJob(const Destination &destination, int jobId, JobAction action, PrintError *error) override;
    void searchNetwork(const std::function<bool(const Destination &)> &found) override; // of those offered
    std::optional<Destination> withState(const Destination &destination) override;
    void setLoginPrompt(LoginPrompt prompt) override;

private:
    std::optional<Destination> anyOffered(std::optional<Destination> standard, PrintError *error);
    PrintError refusal(const JobRequest &request);
    PrintError lockBroken(const JobRequest &request, PpdDocument *ppd, const Locks &locks);

    PrintSystem &m_system;
    const Policy m_policy;
    std::mutex m_mutex;      // guards m_extensions
    Extensions m_extensions; // its own: those of the dialog belong to the dialog's thread
};

} // namespace host
