// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/policy/policy_print_system.h"

#include "host/extensions/protection.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace host {

namespace {

struct PolicySystemText
{
    Q_DECLARE_TR_FUNCTIONS(PolicySystemText)
};

bool isSent(const JobOption &option)
{
    return option.kind != JobOption::Kind::Shown;
}

// Whether a job contains all digits of a code, and not only the digits that mean no code.
bool isGiven(const Protection::Secret &secret, const JobRequest &request, const PpdDocument &ppd)
{
    bool isMoreThanDefault = false;
    for (const QString &part : secret.options) {
        const auto sent =
            std::find_if(request.options.begin(), request.options.end(), [&](const auto &option) {
                return isSent(option) && option.name.compare(part, Qt::CaseInsensitive) == 0;
            });
        if (sent == request.options.end())
            return false;
        isMoreThanDefault |= sent->value != ppd.defaultChoice(part);
    }
    return isMoreThanDefault;
}

// Whether an option is a default of the server, which the administrator has set there.
bool isOfServer(const JobOption &option, const Destination &destination)
{
    return option.kind == JobOption::Kind::Preference && destination.serverOptions.contains(option.name) &&
           destination.options.value(option.name) == option.value;
}

PrintError notOffered(const Policy &policy, const QString &queue)
{
    return {
        PrintError::Kind::NoSuchPrinter,
        PolicySystemText::tr("The printer “%1” is not offered here. %2").arg(queue, policy.attribution())};
}

PrintError noneOffered(const Policy &policy)
{
    return {PrintError::Kind::NoPrinters,
            PolicySystemText::tr("The rules in %1 offer none of the printers that have been set up. %2")
                .arg(policy.fileName(), policy.attribution())};
}

} // namespace

PolicyPrintSystem::PolicyPrintSystem(PrintSystem &system, const QStringList &bundleFolders,
                                     const Policy &policy)
    : m_system(system), m_policy(policy), m_extensions(bundleFolders)
{
}

std::optional<QList<Destination>> PolicyPrintSystem::destinations(PrintError *error)
{
    auto all = m_system.destinations(error);
    if (!all || all->isEmpty())
        return all;
    all->removeIf([this](const Destination &destination) { return !m_policy.offers(destination.queue); });
    if (!all->isEmpty())
        return all;
    *error = noneOffered(m_policy);
    return std::nullopt;
}

std::optional<Destination> PolicyPrintSystem::destination(const QString &name, PrintError *error)
{
    auto found = m_system.destination(name, error);
    if (found && m_policy.offers(found->queue))
        return found;
    if (name.isEmpty())
        return anyOffered(std::move(found), error);
    if (found)
        *error = notOffered(m_policy, found->queue);
    return std::nullopt;
}

// If the default printer was not named explicitly, another one is used instead. Without any, this remains an
// error, but without the advice to choose a printer by name.
std::optional<Destination> PolicyPrintSystem::anyOffered(std::optional<Destination> standard,
                                                         PrintError *error)
{
    if (!standard && error->kind != PrintError::Kind::NoSuchPrinter)
        return std::nullopt;
    PrintError problem;
    const auto offered = destinations(&problem);
    if (offered && !offered->isEmpty() && standard)
        return m_system.destination(offered->first().name(), error);
    if (!offered)
        *error = problem;
    else if (standard)
        *error = notOffered(m_policy, standard->queue);
    return std::nullopt;
}

std::unique_ptr<PpdDocument> PolicyPrintSystem::ppd(const Destination &destination, PrintError *error)
{
    return m_system.ppd(destination, error);
}

// Checks the job as it will be printed: each option by itself, since filters may read any of them, and all
// together.
PrintError PolicyPrintSystem::lockBroken(const JobRequest &request, PpdDocument *ppd, const Locks &locks)
{
    QMap<QString, QString> sent;
    for (const JobOption &option : request.options) {
        if (!isSent(option) || isOfServer(option, request.destination))
            continue;
        if (PrintError broken = locks.refusal(ppd, option.name, option.value))
            return broken;
        sent.insert(option.name, option.value);
    }
    ppd->markOptions(sent);
    if (PrintError broken = locks.refusal(*ppd))
        return broken;
    QStringList problems; // the user was informed when the dialog opened
    const std::lock_guard guard(m_mutex);
    const Protection protection = m_extensions.protectionFor(ppd->modelName(), &problems);
    for (const Protection::Secret &secret : protection.secrets) {
        const OptionChoice wanted = ppd->described(secret.option, secret.choice);
        if (locks.choice(secret.option) == secret.choice && !isGiven(secret, request, *ppd))
            return locks.refused(PolicySystemText::tr("“%1” has to be “%2”, with a code.")
                                     .arg(wanted.optionText, wanted.choiceText));
    }
    return {};
}

PrintError PolicyPrintSystem::refusal(const JobRequest &request)
{
    const QString queue = request.destination.queue;
    if (!m_policy.offers(queue))
        return notOffered(m_policy, queue);
    if (m_policy.ruleFor(queue).locked.isEmpty())
        return {};
    PrintError error;
    const auto ppd = m_system.ppd(request.destination, &error);
    return ppd ? lockBroken(request, ppd.get(), Locks(m_policy, queue, ppd.get())) : error;
}

Submission PolicyPrintSystem::submit(const JobRequest &request, const SubmissionWatch &watch)
{
    Submission rejected;
    rejected.error = refusal(request);
    return rejected.error ? rejected : m_system.submit(request, watch);
}

JobStatus PolicyPrintSystem::jobStatus(const Destination &destination, int jobId)
{
    return m_system.jobStatus(destination, jobId);
}

bool PolicyPrintSystem::changeJob(const Destination &destination, int jobId, JobAction action,
                                  PrintError *error)
{
    return m_system.changeJob(destination, jobId, action, error);
}

void PolicyPrintSystem::searchNetwork(const std::function<bool(const Destination &)> &found)
{
    m_system.searchNetwork([&](const Destination &destination) {
        return !m_policy.offers(destination.queue) || found(destination);
    });
}

std::optional<Destination> PolicyPrintSystem::withState(const Destination &destination)
{
    return m_system.withState(destination);
}

std::optional<DeviceReport> PolicyPrintSystem::reportOf(const Destination &destination)
{
    return m_system.reportOf(destination);
}

void PolicyPrintSystem::setLoginPrompt(LoginPrompt prompt)
{
    m_system.setLoginPrompt(std::move(prompt));
}

} // namespace host
