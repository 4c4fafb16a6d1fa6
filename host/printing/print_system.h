// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/destination.h"
#include "host/printing/job.h"
#include "host/printing/ppd_document.h"

#include <QList>

#include <functional>
#include <memory>
#include <optional>

namespace host {

// What the host asks of the print system. One object a program; every call is a request to the server and
// blocks until it has answered. Errors are in plain words.
class PrintSystem
{
public:
    virtual ~PrintSystem();

    // Every queue and preset. Nil with an error when the server cannot be asked; empty when there is none.
    virtual std::optional<QList<Destination>> destinations(PrintError *error) = 0;
    // One of them by name ("queue" or "queue/instance"); the user's default for an empty name.
    virtual std::optional<Destination> destination(const QString &name, PrintError *error) = 0;
    // Null without an error for a queue that has no PPD.
    virtual std::unique_ptr<PpdDocument> ppd(const Destination &destination, PrintError *error) = 0;
    virtual std::optional<SubmittedJob> submit(const JobRequest &request, PrintError *error) = 0;
    virtual JobStatus jobStatus(const Destination &destination, int jobId) = 0;
    // Who is asked for a password where the server wants one; nil means no. Without it such requests are
    // refused.
    using PasswordPrompt = std::function<std::optional<QString>(const QString &prompt)>;
    virtual void setPasswordPrompt(PasswordPrompt prompt) = 0;
};

// The print system that libcups knows: the server of CUPS_SERVER or client.conf.
class CupsPrintSystem : public PrintSystem
{
public:
    CupsPrintSystem();
    ~CupsPrintSystem() override;

    std::optional<QList<Destination>> destinations(PrintError *error) override;
    std::optional<Destination> destination(const QString &name, PrintError *error) override;
    std::unique_ptr<PpdDocument> ppd(const Destination &destination, PrintError *error) override;
    std::optional<SubmittedJob> submit(const JobRequest &request, PrintError *error) override;
    JobStatus jobStatus(const Destination &destination, int jobId) override;
    void setPasswordPrompt(PasswordPrompt prompt) override;

private:
    PasswordPrompt m_prompt;
};

} // namespace host
