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
        std::promise<QString> name;
        std::promise<std::optional<Destination>> destination;
        std::promise<std::unique_ptr<PpdDocument>> ppd;
    };
    auto promises = std::make_shared<Promises>();
    m_name = promises->name.get_future();
    m_destination = promises->destination.get_future();
    m_ppd = promises->ppd.get_future();
    if (!name.isEmpty())
        promises->name.set_value(name);
    platform::Background::start(
        [promises, name] {
            CupsPrintSystem system;
            PrintError ignored;
            const QString wanted = name.isEmpty() ? RememberedPrinter().name() : name;
            if (name.isEmpty())
                promises->name.set_value(wanted);
            auto destination = system.destination(wanted, &ignored);
            if (destination && !destination->optionsProblem.isNull())
                destination.reset(); // to be reported later in the user's language
            promises->destination.set_value(destination);
            auto ppd = destination ? system.ppd(*destination, &ignored) : nullptr;
            if (ppd)
                ppd->readConstraints();
            promises->ppd.set_value(std::move(ppd));
        },
        nullptr, {});
}

std::optional<Destination> EarlyPrinter::takeDestination(const QString &name)
{
    std::future<std::optional<Destination>> awaited;
    {
        const std::lock_guard lock(m_mutex);
        const bool isNameKnown = m_name.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
        if (isNameKnown && m_name.get() == name)
            awaited = std::move(m_destination);
        m_destination = {};
    }
    const auto destination = awaited.valid() ? awaited.get() : std::nullopt;
    if (destination) {
        const std::lock_guard lock(m_mutex);
        m_queue = destination->queue;
    }
    return destination;
}

std::unique_ptr<PpdDocument> EarlyPrinter::takePpd(const QString &queue)
{
    std::future<std::unique_ptr<PpdDocument>> awaited;
    {
        const std::lock_guard lock(m_mutex);
        if (queue == m_queue)
            awaited = std::move(m_ppd);
    }
    return awaited.valid() ? awaited.get() : nullptr;
}

} // namespace host
