// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// The administrator's policy.

#include "host/policy/policy.h"
#include "host/printing/destination.h"
#include "tests/fuzz/fuzz_support.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QString error;
    const auto policy = host::Policy::parse(bytesOf(data, size), QStringLiteral("policy.json"), &error);
    requireThat(policy || error.contains(QLatin1String("policy.json")));
    if (!policy)
        return 0;
    policy->attribution();
    for (const char *queue : {"office", "office-2", ""}) {
        const QString name = QString::fromLatin1(queue);
        policy->offers(name);
        const auto rule = policy->ruleFor(name);
        rule.hidesPanel(QStringLiteral("com.kelmar.pde.color-settings-2"));
        rule.locksPanel(QStringLiteral("com.kelmar.pde.color-settings-2"));
        rule.lockedChoices(nullptr);
        host::Destination destination;
        destination.queue = name;
        rule.applyTo(&destination, nullptr);
    }
    return 0;
}
