// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/backend/user_bus.h"

#include <cstring>
#include <memory>
#include <sys/stat.h>
#include <systemd/sd-bus.h>

namespace backend {

namespace {

struct BusDeleter
{
    void operator()(sd_bus *bus) const { sd_bus_flush_close_unref(bus); }
};
using BusPointer = std::unique_ptr<sd_bus, BusDeleter>;

struct MessageDeleter
{
    void operator()(sd_bus_message *message) const { sd_bus_message_unref(message); }
};
using MessagePointer = std::unique_ptr<sd_bus_message, MessageDeleter>;

constexpr const char *service = "org.kelmar.Print1";
constexpr const char *object = "/org/kelmar/Print1";

// The session's own socket, and no link to another.
bool hasSession(uid_t uid, const std::string &folder, const std::string &socket)
{
    struct stat facts = {};
    return ::lstat(folder.c_str(), &facts) == 0 && S_ISDIR(facts.st_mode) && facts.st_uid == uid &&
           ::lstat(socket.c_str(), &facts) == 0 && S_ISSOCK(facts.st_mode) && facts.st_uid == uid;
}

BusPointer connect(const std::string &socket)
{
    sd_bus *made = nullptr;
    if (sd_bus_new(&made) < 0)
        return nullptr;
    BusPointer bus(made);
    const std::string address = "unix:path=" + socket;
    const bool started = sd_bus_set_address(made, address.c_str()) >= 0 &&
                         sd_bus_set_bus_client(made, 1) >= 0 && sd_bus_start(made) >= 0;
    return started ? std::move(bus) : nullptr;
}

MessagePointer openDocument(sd_bus *bus, const Handover &handover)
{
    sd_bus_message *made = nullptr;
    if (sd_bus_message_new_method_call(bus, &made, service, object, service, "OpenDocument") < 0)
        return nullptr;
    MessagePointer message(made);
    const bool filled =
        sd_bus_message_append(made, "h", handover.document) >= 0 &&
        sd_bus_message_append_array(made, 'y', handover.title.data(), handover.title.size()) >= 0 &&
        sd_bus_message_append(made, "u", handover.copies) >= 0 &&
        sd_bus_message_append_array(made, 'y', handover.options.data(), handover.options.size()) >= 0;
    return filled ? std::move(message) : nullptr;
}

} // namespace

bool handOver(uid_t uid, const Handover &handover, std::chrono::seconds patience, std::string *error)
{
    const std::string folder = "/run/user/" + std::to_string(uid);
    const std::string socket = folder + "/bus";
    const BusPointer bus = hasSession(uid, folder, socket) ? connect(socket) : nullptr;
    if (!bus) {
        *error = "The dialog cannot be opened: the user has no desktop session on this computer.";
        return false;
    }
    const MessagePointer message = openDocument(bus.get(), handover);
    const auto microseconds =
        static_cast<uint64_t>(std::chrono::duration_cast<std::chrono::microseconds>(patience).count());
    const int answer =
        message ? sd_bus_call(bus.get(), message.get(), microseconds, nullptr, nullptr) : -ENOMEM;
    if (answer >= 0)
        return true;
    // What the service says stays out of the scheduler's messages, which other people read.
    *error = std::string("The dialog did not open (") + std::strerror(-answer) + ").";
    return false;
}

} // namespace backend
