// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/extensions/extensions.h"
#include "host/policy/locks.h"
#include "host/policy/policy.h"
#include "host/printing/print_system.h"

#include <mutex>

namespace host {

// Applies the administrator's policy to a print system: hides queues that are not offered, and refuses jobs
// that violate the policy. The underlying system is borrowed and outlives this object.
class PolicyPrintSystem : public PrintSystem
{
public:
    // `bundleFolders` are those of Extensions; the bundles declare the options with codes.
    PolicyPrintSystem(PrintSystem &system, const QStringList &bundleFolders, const Policy &policy);

    // Fails if there are printers, but the policy offers none of them.
    std::optional<QList<Destination>> destinations(PrintError *error) override;
    std::optional<Destination> destination(const QString &name, PrintError *error) override;
    std::unique_ptr<PpdDocument> ppd(const Destination &destination, PrintError *error) override;
    // Rejected with a message that names the option and the administrator if an option of the job violates a
    // lock, or a locked choice lacks its code.
    Submission submit(const JobRequest &request, const SubmissionWatch &watch) override;
    JobStatus jobStatus(const Destination &destination, int jobId) override;
    bool changeJob(const Destination &destination, int jobId, JobAction action, PrintError *error) override;
    // reports only offered printers
    void searchNetwork(const std::function<bool(const Destination &)> &found) override;
    std::optional<Destination> withState(const Destination &destination) override;
    std::optional<DeviceReport> reportOf(const Destination &destination) override;
    void setLoginPrompt(LoginPrompt prompt) override;

private:
    std::optional<Destination> anyOffered(std::optional<Destination> standard, PrintError *error);
    PrintError refusal(const JobRequest &request);
    PrintError lockBroken(const JobRequest &request, PpdDocument *ppd, const Locks &locks);

    PrintSystem &m_system;
    const Policy m_policy;
    std::mutex m_mutex;      // guards m_extensions
    Extensions m_extensions; // separate, since those of the dialog belong to the dialog's thread
};

} // namespace host
