// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/ipp_query.h"

#include <algorithm>
#include <array>
#include <utility>

namespace host {

namespace {

// Enums as numbers, as libcups lists them among a destination's options.
QString enumText(ipp_attribute_t *attribute)
{
    QStringList numbers;
    for (int i = 0; i < ippGetCount(attribute); ++i)
        numbers.append(QString::number(ippGetInteger(attribute, i)));
    return numbers.join(QLatin1Char(','));
}

// The administrator's defaults precede those that the server derives from the PPD under the same name. Only
// the former are added to jobs.
void readDefaults(ipp_t *answer, QueueFacts *facts)
{
    static const QLatin1String suffix("-default");
    for (ipp_attribute_t *a = ippFirstAttribute(answer); a; a = ippNextAttribute(answer)) {
        const QString name = QString::fromUtf8(ippGetName(a));
        if (!name.endsWith(suffix))
            continue;
        const QString option = name.chopped(suffix.size());
        (facts->defaults.contains(option) ? facts->overruledDefaults : facts->defaults)
            .insert(option, valueText(a));
    }
}

constexpr qsizetype mostSupplies = 100; // a list that a user can read

int integerAt(ipp_t *answer, const char *name, int index, int otherwise)
{
    ipp_attribute_t *attribute = ippFindAttribute(answer, name, IPP_TAG_INTEGER);
    return index < ippGetCount(attribute) ? ippGetInteger(attribute, index) : otherwise;
}

// Reads one attribute of a queue.
void readQueue(ipp_attribute_t *attribute, Destination *queue)
{
    if (ippGetGroupTag(attribute) != IPP_TAG_PRINTER)
        return;
    const QByteArray name = ippGetName(attribute);
    for (const auto &[of, text] : {std::pair("printer-name", &queue->queue),
                                   {"printer-info", &queue->info},
                                   {"printer-location", &queue->location},
                                   {"printer-make-and-model", &queue->makeAndModel},
                                   {"device-uri", &queue->deviceUri},
                                   {"printer-uri-supported", &queue->printerUri}}) {
        if (name == of)
            *text = valueText(attribute);
    }
    if (name == "printer-is-accepting-jobs")
        queue->accepting = ippGetBoolean(attribute, 0) != 0;
    if (name == "printer-state") {
        queue->isStateKnown = true;
        queue->stopped = ippGetInteger(attribute, 0) == IPP_PSTATE_STOPPED;
    }
}

} // namespace

IppPointer printerRequest(ipp_op_t operation, const QByteArray &printerUri)
{
    IppPointer request(ippNewRequest(operation));
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
                 printerUri.constData());
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    return request;
}

QByteArray resourceOf(const QByteArray &printerUri)
{
    std::array<char, HTTP_MAX_URI> scheme{}, user{}, host{}, resource{};
    int port = 0;
    const auto size = [](const auto &buffer) { return static_cast<int>(buffer.size()); };
    const http_uri_status_t status =
        httpSeparateURI(HTTP_URI_CODING_ALL, printerUri.constData(), scheme.data(), size(scheme), user.data(),
                        size(user), host.data(), size(host), &port, resource.data(), size(resource));
    return status >= HTTP_URI_STATUS_OK ? QByteArray(resource.data()) : QByteArrayLiteral("/");
}

QString valueText(ipp_attribute_t *attribute)
{
    if (ippGetValueTag(attribute) == IPP_TAG_ENUM)
        return enumText(attribute);
    // The textual form of several values escapes blanks and quotes.
    const char *single = ippGetCount(attribute) == 1 ? ippGetString(attribute, 0, nullptr) : nullptr;
    if (single)
        return QString::fromUtf8(single);
    QByteArray buffer(2048, '\0');
    const size_t length = ippAttributeString(attribute, buffer.data(), static_cast<size_t>(buffer.size()));
    if (length >= static_cast<size_t>(buffer.size())) {
        buffer.resize(static_cast<qsizetype>(length) + 1);
        ippAttributeString(attribute, buffer.data(), static_cast<size_t>(buffer.size()));
    }
    return QString::fromUtf8(buffer.constData());
}

QString attributeText(ipp_t *answer, const char *name)
{
    ipp_attribute_t *attribute = answer ? ippFindAttribute(answer, name, IPP_TAG_ZERO) : nullptr;
    return attribute ? valueText(attribute) : QString();
}

QStringList attributeTexts(ipp_t *answer, const char *name)
{
    QStringList texts;
    ipp_attribute_t *attribute = answer ? ippFindAttribute(answer, name, IPP_TAG_ZERO) : nullptr;
    for (int i = 0; attribute && i < ippGetCount(attribute); ++i)
        texts.append(QString::fromUtf8(ippGetString(attribute, i, nullptr)));
    return texts;
}

int attributeInteger(ipp_t *answer, const char *name, int otherwise)
{
    ipp_attribute_t *attribute = answer ? ippFindAttribute(answer, name, IPP_TAG_ZERO) : nullptr;
    if (!attribute)
        return otherwise;
    if (ippGetValueTag(attribute) == IPP_TAG_BOOLEAN)
        return ippGetBoolean(attribute, 0);
    return ippGetInteger(attribute, 0);
}

// A negative level is unknown to the printer.
QList<Supply> suppliesOf(ipp_t *answer)
{
    const QStringList names = attributeTexts(answer, "marker-names");
    const QStringList types = attributeTexts(answer, "marker-types");
    QList<Supply> supplies;
    for (int i = 0; i < static_cast<int>(std::min(names.size(), mostSupplies)); ++i) {
        if (types.value(i).startsWith(QLatin1String("waste"), Qt::CaseInsensitive))
            continue;
        const int level = integerAt(answer, "marker-levels", i, -1);
        const int low = integerAt(answer, "marker-low-levels", i, -1);
        const int percent = level < 0 || level > 100 ? -1 : level;
        supplies.append({names.at(i), percent, percent >= 0 && percent <= low});
    }
    return supplies;
}

std::optional<QueueFacts> queryQueue(ServerConnection *server, const QByteArray &printerUri,
                                     const QString &name, PrintError *error, QueueQuestion question)
{
    static const std::array<const char *, 15> wanted = {"printer-state",
                                                        "printer-state-message",
                                                        "printer-state-reasons",
                                                        "printer-is-accepting-jobs",
                                                        "marker-names",
                                                        "marker-types",
                                                        "marker-levels",
                                                        "marker-low-levels",
                                                        "document-format-supported",
                                                        "printer-defaults",
                                                        "job-sheets-supported",
                                                        "job-password-supported",
                                                        "job-password-encryption-supported",
                                                        "job-account-id-supported",
                                                        "job-accounting-user-id-supported"};
    constexpr int ofState = 8; // the first ones
    IppPointer request = printerRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, printerUri);
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  question == QueueQuestion::State ? ofState : static_cast<int>(wanted.size()), nullptr,
                  wanted.data());
    const Reply reply = server->ask(std::move(request), "/"); // listing needs no login
    if (!reply.succeeded()) {
        *error = reply.error(name);
        return std::nullopt;
    }
    const IppPointer &answer = reply.message;
    QueueFacts facts;
    facts.accepting = attributeInteger(answer.get(), "printer-is-accepting-jobs", 1) != 0;
    facts.stopped = attributeInteger(answer.get(), "printer-state", IPP_PSTATE_IDLE) == IPP_PSTATE_STOPPED;
    facts.stateMessage = attributeText(answer.get(), "printer-state-message");
    facts.stateReasons = attributeTexts(answer.get(), "printer-state-reasons");
    facts.supplies = suppliesOf(answer.get());
    facts.coverSheets = attributeTexts(answer.get(), "job-sheets-supported");
    facts.formats = attributeTexts(answer.get(), "document-format-supported");
    facts.passwordLength = std::max(0, attributeInteger(answer.get(), "job-password-supported", 0));
    facts.passwordEncryptions = attributeTexts(answer.get(), "job-password-encryption-supported");
    facts.takesAccountId = attributeInteger(answer.get(), "job-account-id-supported", 0) != 0;
    facts.takesAccountUser = attributeInteger(answer.get(), "job-accounting-user-id-supported", 0) != 0;
    readDefaults(answer.get(), &facts);
    return facts;
}

std::optional<QList<Destination>> queryQueues(ServerConnection *server, PrintError *error)
{
    static const std::array<const char *, 8> wanted = {
        "printer-name", "printer-info",          "printer-location",          "printer-make-and-model",
        "device-uri",   "printer-uri-supported", "printer-is-accepting-jobs", "printer-state"};
    IppPointer request(ippNewRequest(IPP_OP_CUPS_GET_PRINTERS));
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(wanted.size()), nullptr, wanted.data());
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_ENUM, "printer-type", 0);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_ENUM, "printer-type-mask",
                  CUPS_PRINTER_DISCOVERED);
    const Reply reply = server->ask(std::move(request), "/");
    const bool hasNone =
        reply.outcome == Reply::Outcome::Answered && reply.status == IPP_STATUS_ERROR_NOT_FOUND;
    if (!reply.succeeded() && !hasNone) {
        *error = reply.error({});
        return std::nullopt;
    }
    QList<Destination> queues;
    Destination queue;
    const auto take = [&] {
        const Destination whole = std::exchange(queue, {});
        if (!whole.queue.isEmpty())
            queues.append(whole);
    };
    ipp_t *answer = reply.message.get();
    for (ipp_attribute_t *a = ippFirstAttribute(answer); a; a = ippNextAttribute(answer)) {
        if (ippGetName(a))
            readQueue(a, &queue);
        else
            take(); // next printer
    }
    take();
    return queues;
}

QByteArray printerUriOfQueue(const QString &queue)
{
    std::array<char, HTTP_MAX_URI> uri{};
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), static_cast<int>(uri.size()), "ipp", nullptr,
                     "localhost", 0, "/printers/%s", queue.toUtf8().constData());
    return uri.data();
}

} // namespace host
