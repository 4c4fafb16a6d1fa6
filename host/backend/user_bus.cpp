// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/backend/user_bus.h"

#include <array>
#include <memory>
#include <sys/stat.h>
#include <systemd/sd-bus.h>
#include <unistd.h>

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

// Whether the socket is the session's own, and not a link to another.
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

// Reasons for D-Bus errors. The service's own texts are not included in the scheduler's messages, which other
// users can read.
struct Reason
{
    const char *name; // name of a D-Bus error
    const char *text;
};
constexpr std::array<Reason, 5> reasons = {{
    {"org.kelmar.Print1.Error.TooManyDialogs",
     "Too many print dialogs of this user are open. Close one of them, then release the job."},
    {"org.kelmar.Print1.Error.NoDisplay",
     "The dialog cannot be opened: the user's desktop session has no display."},
    {"org.kelmar.Print1.Error.BadDocument", "The dialog did not open: the document cannot be read."},
    {SD_BUS_ERROR_SERVICE_UNKNOWN,
     "The dialog did not open: the print service is not installed in the user's session."},
    {SD_BUS_ERROR_NAME_HAS_NO_OWNER,
     "The dialog did not open: the print service is not running in the user's session."},
}};

std::string textOf(const sd_bus_error &error)
{
    for (const Reason &reason : reasons) {
        if (sd_bus_error_has_name(&error, reason.name) > 0)
            return reason.text;
    }
    return "The dialog did not open.";
}

} // namespace

Delivery handOver(uid_t uid, const Handover &handover, std::chrono::seconds connecting,
                  std::chrono::seconds answering, std::string *error)
{
    const std::string folder = "/run/user/" + std::to_string(uid);
    const std::string socket = folder + "/bus";
    constexpr std::chrono::seconds grace(1); // the bus library measures the time itself
    ::alarm(static_cast<unsigned>(connecting.count()));
    const BusPointer bus = hasSession(uid, folder, socket) ? connect(socket) : nullptr;
    const char *name = nullptr; // set when the bus has answered
    if (!bus || sd_bus_get_unique_name(bus.get(), &name) < 0) {
        *error = "The dialog cannot be opened: the user has no desktop session on this computer.";
        return Delivery::Refused;
    }
    ::alarm(static_cast<unsigned>((answering + grace).count()));
    const MessagePointer message = openDocument(bus.get(), handover);
    const auto microseconds =
        static_cast<uint64_t>(std::chrono::duration_cast<std::chrono::microseconds>(answering).count());
    sd_bus_error problem = SD_BUS_ERROR_NULL;
    const int answer =
        message ? sd_bus_call(bus.get(), message.get(), microseconds, &problem, nullptr) : -ENOMEM;
    const bool isSilent = answer == -ETIMEDOUT ||
                          sd_bus_error_has_name(&problem, SD_BUS_ERROR_NO_REPLY) > 0 ||
                          sd_bus_error_has_name(&problem, SD_BUS_ERROR_TIMEOUT) > 0;
    *error = textOf(problem);
    sd_bus_error_free(&problem);
    if (answer >= 0)
        return Delivery::Taken;
    return isSilent ? Delivery::Silent : Delivery::Refused;
}

} // namespace backend
