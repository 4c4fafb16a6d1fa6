// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/early_printer.h"

#include "host/printing/print_system.h"
#include "platform/background.h"

namespace host {

EarlyPrinter::EarlyPrinter(const QString &name)
{
    struct Promises
    {
        std::promise<Answer> answer;
        std::promise<std::unique_ptr<PpdDocument>> ppd;
    };
    auto promises = std::make_shared<Promises>();
    m_answer = promises->answer.get_future();
    m_ppd = promises->ppd.get_future();
    platform::Background::start(
        [promises, name] {
            CupsPrintSystem system;
            PrintError ignored;
            Answer answer{name.isEmpty() ? RememberedPrinter().name() : name, {}};
            answer.destination = system.destination(answer.name, &ignored);
            if (answer.destination && !answer.destination->optionsProblem.isNull())
                answer.destination.reset(); // to be reported later in the user's language
            const auto destination = answer.destination;
            promises->answer.set_value(std::move(answer));
            auto ppd = destination ? system.ppd(*destination, &ignored) : nullptr;
            if (ppd)
                ppd->readConstraints();
            promises->ppd.set_value(std::move(ppd));
        },
        nullptr, {});
}

std::optional<Destination> EarlyPrinter::takeDestination(const QString &name)
{
    const std::lock_guard lock(m_mutex);
    if (!m_answer.valid())
        return std::nullopt;
    const Answer answer = m_answer.get();
    if (answer.name != name || !answer.destination) {
        m_ppd = {};
        return std::nullopt;
    }
    m_queue = answer.destination->queue;
    return answer.destination;
}

std::unique_ptr<PpdDocument> EarlyPrinter::takePpd(const QString &queue)
{
    const std::lock_guard lock(m_mutex);
    return m_ppd.valid() && queue == m_queue ? m_ppd.get() : nullptr;
}

} // namespace host
