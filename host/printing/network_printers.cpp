// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/network_printers.h"

#include "host/printing/cups_handles.h"
#include "host/printing/server_connection.h"

#include <array>
#include <utility>

namespace host {

namespace {

constexpr int searchTime = 8'000; // milliseconds

struct Search
{
    const std::function<bool(const Destination &)> &found;
    std::function<void(const Destination &)> keep;
};

QString optionOf(const cups_dest_t *record, const char *name)
{
    return QString::fromUtf8(cupsGetOption(name, record->num_options, record->options));
}

int take(void *context, unsigned flags, cups_dest_t *record)
{
    auto *search = static_cast<Search *>(context);
    if (flags & CUPS_DEST_FLAGS_REMOVED)
        return 1;
    Destination printer;
    printer.queue = QString::fromUtf8(record->name);
    printer.info = optionOf(record, "printer-info");
    printer.location = optionOf(record, "printer-location");
    printer.makeAndModel = optionOf(record, "printer-make-and-model");
    printer.deviceUri = optionOf(record, "device-uri");
    printer.isOnNetwork = true;
    search->keep(printer);
    return search->found(printer) ? 1 : 0;
}

} // namespace

void NetworkPrinters::search(const std::function<bool(const Destination &)> &found)
{
    Search search{found, [this](const Destination &printer) {
                      const std::lock_guard lock(m_mutex);
                      m_found.insert(printer.queue, printer);
                  }};
    ServerConnection::disablePrompts();
    cupsEnumDests(CUPS_DEST_FLAGS_NONE, searchTime, nullptr, CUPS_PRINTER_DISCOVERED, CUPS_PRINTER_DISCOVERED,
                  take, &search);
}

std::optional<Destination> NetworkPrinters::printer(const QString &queue) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_found.constFind(queue);
    return found == m_found.cend() ? std::nullopt : std::optional(*found);
}

bool NetworkPrinters::hasFound(const QString &queue) const
{
    return printer(queue).has_value();
}

bool NetworkPrinters::makeQueue(const QString &queue)
{
    const auto known = printer(queue);
    if (!known)
        return false;
    cups_dest_t *list = nullptr;
    const int count = cupsAddDest(queue.toUtf8().constData(), nullptr, 0, &list);
    const CupsDestinationPointer record(list);
    if (count != 1)
        return false;
    for (const auto &[name, value] :
         {std::pair("device-uri", known->deviceUri), {"printer-info", known->info}})
        record->num_options =
            cupsAddOption(name, value.toUtf8().constData(), record->num_options, &record->options);
    ServerConnection::disablePrompts();
    std::array<char, HTTP_MAX_URI> resource{};
    return HttpPointer(cupsConnectDest(record.get(), CUPS_DEST_FLAGS_NONE, ServerPatience().connectTime,
                                       nullptr, resource.data(), resource.size(), nullptr, nullptr)) !=
           nullptr;
}

} // namespace host
