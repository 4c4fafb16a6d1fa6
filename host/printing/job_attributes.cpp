// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/job_attributes.h"

#include "host/printing/ipp_query.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>
#include <array>

namespace host {

namespace {

struct AttributesText
{
    Q_DECLARE_TR_FUNCTIONS(AttributesText)
};

// There are two banners, before and after the job; the server also stores the second one if there is none.
QString meaning(const QByteArray &name, ipp_attribute_t *attribute)
{
    QString text = valueText(attribute);
    if (name == "job-sheets" && text.endsWith(QLatin1String(",none")))
        text.chop(5);
    return text;
}

constexpr char hashMethod[] = "sha2-256";

QByteArray valueOf(const QList<JobOption> &options, const QString &name)
{
    const auto option = std::find_if(options.begin(), options.end(),
                                     [&](const JobOption &known) { return known.name == name; });
    return option == options.end() ? QByteArray() : option->value.toUtf8();
}

bool isPasswordOption(const QString &name)
{
    return name == passwordName || name == passwordEncryptionName;
}

} // namespace

void addPassword(ipp_t *request, const QList<JobOption> &options, const QStringList &offered)
{
    QByteArray password = valueOf(options, passwordName);
    if (password.isEmpty())
        return;
    QByteArray method = valueOf(options, passwordEncryptionName);
    if (method.isEmpty())
        method = offered.contains(QLatin1String(hashMethod)) ? hashMethod : "none";
    if (method == hashMethod) {
        std::array<unsigned char, 32> hash{};
        cupsHashData(hashMethod, password.constData(), static_cast<size_t>(password.size()), hash.data(),
                     hash.size());
        password = QByteArray(reinterpret_cast<const char *>(hash.data()), hash.size());
    }
    ippAddOctetString(request, IPP_TAG_OPERATION, "job-password", password.constData(),
                      static_cast<int>(password.size()));
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "job-password-encryption", nullptr,
                 method.constData());
}

QList<JobOption> lastOfEach(const QList<JobOption> &options)
{
    QList<JobOption> kept;
    QSet<QString> seen;
    for (auto it = options.crbegin(); it != options.crend(); ++it) {
        if (!seen.contains(it->name))
            kept.append(*it);
        seen.insert(it->name);
    }
    std::reverse(kept.begin(), kept.end());
    return kept;
}

void addJobOption(ipp_t *request, const JobOption &option)
{
    if (isPasswordOption(option.name))
        return;
    const QByteArray name = option.name.toUtf8();
    const QByteArray value = option.value.toUtf8();
    if (option.kind != JobOption::Kind::Choice) {
        CupsOptionList list;
        list.add(name.constData(), value.constData());
        cupsEncodeOptions2(request, list.count(), list.options(), IPP_TAG_JOB);
        return;
    }
    // libcups would convert "True" to a boolean, which reaches filters without its value, and text in braces
    // to a collection.
    const ipp_tag_t type = value.size() > maxIppName ? IPP_TAG_TEXT : IPP_TAG_NAME;
    ippAddString(request, IPP_TAG_JOB, type, name.constData(), nullptr, value.constData());
}

QStringList differencesOf(const QList<JobOption> &options, ipp_t *kept)
{
    QStringList differences;
    for (const JobOption &option : options) {
        if (isPasswordOption(option.name)) // the server never returns it
            continue;
        const QByteArray name = option.name.toUtf8();
        const IppPointer asSent(ippNew());
        addJobOption(asSent.get(), option);
        ipp_attribute_t *sent = ippFindAttribute(asSent.get(), name.constData(), IPP_TAG_ZERO);
        ipp_attribute_t *found = ippFindAttribute(kept, name.constData(), IPP_TAG_ZERO);
        if (!found && option.kind == JobOption::Kind::Shown)
            continue;
        if (!sent || !found)
            differences.append(AttributesText::tr("The print server did not accept “%1”.").arg(option.name));
        else if (meaning(name, sent)
                     .compare(meaning(name, found), option.kind == JobOption::Kind::Shown
                                                        ? Qt::CaseInsensitive
                                                        : Qt::CaseSensitive) != 0)
            differences.append(
                AttributesText::tr(
                    "The print server uses a different value for “%1” than the one that was sent.")
                    .arg(option.name));
    }
    return differences;
}

} // namespace host
