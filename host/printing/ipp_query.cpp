// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/ipp_query.h"

#include <array>

namespace host {

namespace {

// Enums as numbers, which is how libcups lists them among a destination's options.
QString enumText(ipp_attribute_t *attribute)
{
    QStringList numbers;
    for (int i = 0; i < ippGetCount(attribute); ++i)
        numbers.append(QString::number(ippGetInteger(attribute, i)));
    return numbers.join(QLatin1Char(','));
}

QString valueText(ipp_attribute_t *attribute)
{
    if (ippGetValueTag(attribute) == IPP_TAG_ENUM)
        return enumText(attribute);
    QByteArray buffer(2048, '\0');
    const size_t length = ippAttributeString(attribute, buffer.data(), static_cast<size_t>(buffer.size()));
    if (length >= static_cast<size_t>(buffer.size())) {
        buffer.resize(static_cast<qsizetype>(length) + 1);
        ippAttributeString(attribute, buffer.data(), static_cast<size_t>(buffer.size()));
    }
    return QString::fromUtf8(buffer.constData());
}

QMap<QString, QString> defaultsOf(ipp_t *answer)
{
    static const QLatin1String suffix("-default");
    QMap<QString, QString> defaults;
    for (ipp_attribute_t *a = ippFirstAttribute(answer); a; a = ippNextAttribute(answer)) {
        const QString name = QString::fromUtf8(ippGetName(a));
        if (name.endsWith(suffix))
            defaults.insert(name.chopped(suffix.size()), valueText(a));
    }
    return defaults;
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

IppPointer ask(IppPointer request)
{
    return IppPointer(cupsDoRequest(CUPS_HTTP_DEFAULT, request.release(), "/"));
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

std::optional<QueueFacts> queryQueue(const QByteArray &printerUri)
{
    static const std::array<const char *, 6> wanted = {"printer-is-accepting-jobs", "printer-state",
                                                       "printer-state-message",     "printer-state-reasons",
                                                       "document-format-supported", "printer-defaults"};
    IppPointer request = printerRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, printerUri);
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(wanted.size()), nullptr, wanted.data());
    const IppPointer answer = ask(std::move(request));
    if (!answer || cupsLastError() > IPP_STATUS_OK_CONFLICTING)
        return std::nullopt;
    QueueFacts facts;
    facts.accepting = attributeInteger(answer.get(), "printer-is-accepting-jobs", 1) != 0;
    facts.stopped = attributeInteger(answer.get(), "printer-state", IPP_PSTATE_IDLE) == IPP_PSTATE_STOPPED;
    facts.stateMessage = attributeText(answer.get(), "printer-state-message");
    facts.stateReasons = attributeTexts(answer.get(), "printer-state-reasons");
    facts.formats = attributeTexts(answer.get(), "document-format-supported");
    facts.defaults = defaultsOf(answer.get());
    return facts;
}

QByteArray printerUriOfQueue(const QString &queue)
{
    std::array<char, HTTP_MAX_URI> uri{};
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), static_cast<int>(uri.size()), "ipp", nullptr,
                     "localhost", 0, "/printers/%s", queue.toUtf8().constData());
    return uri.data();
}

} // namespace host
