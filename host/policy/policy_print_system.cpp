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

// What a job prints with: what is sent, else what the printer does by itself.
QString choiceOf(const JobRequest &request, const PpdDocument &ppd, const QString &keyword)
{
    const auto sent = std::find_if(request.options.begin(), request.options.end(),
                                   [&](const JobOption &option) { return option.name == keyword; });
    return sent == request.options.end() ? ppd.defaultChoice(keyword) : sent->value;
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

// Where nobody has asked for the default printer, another one does as well. Without one it stays an error,
// but to choose by name helps nobody where there is nothing to be chosen.
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

// Options and choices that the printer does not have cannot be wanted.
QString PolicyPrintSystem::lockBroken(const JobRequest &request, const PpdDocument &ppd,
                                      const Policy::Rule &rule)
{
    QStringList problems; // whoever opened the dialog has been told
    const std::lock_guard guard(m_mutex);
    const Protection protection = m_extensions.protectionFor(ppd.modelName(), &problems);
    const auto isGiven = [&](const Protection::Secret &secret) {
        return std::any_of(secret.options.begin(), secret.options.end(), [&](const QString &part) {
            return choiceOf(request, ppd, part) != ppd.defaultChoice(part);
        });
    };
    for (const QString &keyword : rule.locked.keys()) {
        const QString choice = rule.lockedChoice(&ppd, keyword);
        if (choice.isNull())
            continue;
        const OptionChoice wanted = ppd.described(keyword, choice);
        if (choiceOf(request, ppd, keyword) != choice)
            return PolicySystemText::tr("“%1” has to be “%2”.").arg(wanted.optionText, wanted.choiceText);
        for (const Protection::Secret &secret : protection.secrets) {
            if (secret.option == keyword && secret.choice == choice && !isGiven(secret))
                return PolicySystemText::tr("“%1” has to be “%2”, with a code.")
                    .arg(wanted.optionText, wanted.choiceText);
        }
    }
    return {};
}

PrintError PolicyPrintSystem::refusal(const JobRequest &request)
{
    if (!m_policy.offers(request.destination.queue))
        return notOffered(m_policy, request.destination.queue);
    const Policy::Rule rule = m_policy.ruleFor(request.destination.queue);
    PrintError error;
    const auto ppd = rule.locked.isEmpty() ? nullptr : m_system.ppd(request.destination, &error);
    const QString broken = ppd ? lockBroken(request, *ppd, rule) : QString();
    if (!broken.isNull())
        return {PrintError::Kind::NotAuthorised, broken + QLatin1Char(' ') + m_policy.attribution()};
    return error;
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

void PolicyPrintSystem::setLoginPrompt(LoginPrompt prompt)
{
    m_system.setLoginPrompt(std::move(prompt));
}

} // namespace host
