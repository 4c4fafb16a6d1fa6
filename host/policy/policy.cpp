// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/policy/policy.h"

#include "host/printing/destination.h"
#include "host/printing/ppd_document.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>

namespace host {

namespace {

struct PolicyText
{
    Q_DECLARE_TR_FUNCTIONS(PolicyText)
};

constexpr qint64 largestFile = 1024 * 1024; // bytes
Policy currentPolicy;

// An empty list of wildcards matches every queue.
bool matches(const QStringList &wildcards, const QString &queue)
{
    return wildcards.isEmpty() ||
           std::any_of(wildcards.begin(), wildcards.end(), [&](const QString &wildcard) {
               return QRegularExpression::fromWildcard(wildcard).match(queue).hasMatch();
           });
}

bool names(const QStringList &panels, const QString &kind)
{
    return panels.contains(kind) || panels.contains(kind.section(QLatin1Char('.'), -1));
}

} // namespace

// Reads the existing values, and records the first problem with the rule that contains it.
class PolicyReader
{
public:
    PolicyReader(const QByteArray &source, const QString &fileName) : m_source(source), m_fileName(fileName)
    {
        m_policy.m_fileName = fileName;
    }

    std::optional<Policy> read(QString *error)
    {
        QJsonParseError problem;
        const QJsonDocument document = QJsonDocument::fromJson(m_source, &problem);
        if (problem.error != QJsonParseError::NoError)
            failAt(qMax(0, problem.offset - 1), problem.errorString()); // the offset is one past the error
        else if (!document.isObject())
            fail(PolicyText::tr("it is not a JSON object"));
        else
            readPolicy(document.object());
        *error = m_problem;
        return m_problem.isNull() ? std::optional(m_policy) : std::nullopt;
    }

private:
    void failAt(qsizetype offset, const QString &what)
    {
        const qsizetype begin = offset > 0 ? m_source.lastIndexOf('\n', offset - 1) + 1 : 0;
        m_problem = PolicyText::tr("%1, line %2, column %3: %4")
                        .arg(m_fileName)
                        .arg(m_source.left(offset).count('\n') + 1)
                        .arg(QString::fromUtf8(m_source.mid(begin, offset - begin)).size() + 1)
                        .arg(what);
    }

    void fail(const QString &what)
    {
        if (m_problem.isNull())
            m_problem = m_rule == 0 ? PolicyText::tr("%1: %2", "file, problem").arg(m_fileName, what)
                                    : PolicyText::tr("%1, rule %2: %3", "file, number, problem")
                                          .arg(m_fileName)
                                          .arg(m_rule)
                                          .arg(what);
    }

    void unknownKeys(const QJsonObject &object, const QStringList &known)
    {
        for (const QString &key : object.keys()) {
            if (!known.contains(key))
                fail(PolicyText::tr("“%1” is not known here; known are %2")
                         .arg(key, known.join(QStringLiteral(", "))));
        }
    }

    QStringList names(const QJsonObject &object, const QString &key)
    {
        QStringList result;
        const QJsonValue value = object.value(key);
        bool isList = value.isArray() || value.isUndefined();
        for (const QJsonValue &name : value.toArray()) {
            isList = isList && name.isString();
            result.append(name.toString());
        }
        if (!isList)
            fail(PolicyText::tr("“%1” takes a list of names").arg(key));
        return result;
    }

    QMap<QString, QString> choices(const QJsonObject &object, const QString &key)
    {
        QMap<QString, QString> result;
        const QJsonValue value = object.value(key);
        if (!value.isUndefined() && !value.isObject())
            fail(PolicyText::tr("“%1” takes an object of options and choices").arg(key));
        const QJsonObject given = value.toObject();
        for (auto it = given.begin(); it != given.end(); ++it) {
            if (!it.value().isString())
                fail(PolicyText::tr("“%1” takes a choice in quotes").arg(it.key()));
            result.insert(it.key(), it.value().toString());
        }
        return result;
    }

    void readPolicy(const QJsonObject &object)
    {
        unknownKeys(object, {QStringLiteral("contact"), QStringLiteral("queues"), QStringLiteral("rules")});
        const QJsonValue contact = object.value(QStringLiteral("contact"));
        if (!contact.isUndefined() && !contact.isString())
            fail(PolicyText::tr("“contact” takes a text"));
        m_policy.m_contact = contact.toString();
        m_policy.m_offered = names(object, QStringLiteral("queues"));
        const QJsonValue rules = object.value(QStringLiteral("rules"));
        if (!rules.isUndefined() && !rules.isArray())
            fail(PolicyText::tr("“rules” takes a list"));
        for (const QJsonValue &rule : rules.toArray()) {
            ++m_rule;
            if (!rule.isObject())
                fail(PolicyText::tr("“rules” takes JSON objects"));
            readRule(rule.toObject());
        }
    }

    void readRule(const QJsonObject &object)
    {
        unknownKeys(object, {QStringLiteral("queues"), QStringLiteral("defaults"), QStringLiteral("locked"),
                             QStringLiteral("hiddenOptions"), QStringLiteral("hiddenPanels"),
                             QStringLiteral("lockedPanels")});
        m_policy.m_entries.append(
            {names(object, QStringLiteral("queues")),
             {choices(object, QStringLiteral("defaults")), choices(object, QStringLiteral("locked")),
              names(object, QStringLiteral("hiddenOptions")), names(object, QStringLiteral("hiddenPanels")),
              names(object, QStringLiteral("lockedPanels"))}});
    }

    const QByteArray m_source;
    const QString m_fileName;
    Policy m_policy;
    QString m_problem;
    int m_rule = 0; // number of the current rule, from 1; 0 outside of rules
};

std::optional<Policy> Policy::parse(const QByteArray &json, const QString &fileName, QString *error)
{
    return PolicyReader(json, fileName).read(error);
}

Policy Policy::installed()
{
    const QString named = qEnvironmentVariable("KELMAR_PRINT_POLICY");
    QFile file(named.isEmpty() ? QStringLiteral("/etc/kelmar-print/policy.json") : named);
    if (!QFileInfo(file).isSymbolicLink() && !file.exists() && named.isEmpty())
        return {};
    QString problem;
    std::optional<Policy> policy;
    if (!file.open(QIODevice::ReadOnly))
        problem = PolicyText::tr("%1 cannot be read: %2").arg(file.fileName(), file.errorString());
    else if (file.size() > largestFile)
        problem = PolicyText::tr("%1 is larger than 1 MB.").arg(file.fileName());
    else
        policy = parse(file.read(largestFile), file.fileName(), &problem);
    if (policy)
        return *policy;
    Policy none;
    none.m_problem = PolicyText::tr("The administrator's rules for printing are not in force, since they "
                                    "cannot be read. Please tell your administrator: %1")
                         .arg(problem);
    return none;
}

const Policy &Policy::current()
{
    return currentPolicy;
}

void Policy::setCurrent(const Policy &policy)
{
    currentPolicy = policy;
}

Policy::Rule Policy::ruleFor(const QString &queue) const
{
    Rule all;
    for (const Entry &entry : m_entries) {
        if (!matches(entry.queues, queue))
            continue;
        all.defaults.insert(entry.rule.defaults);
        all.locked.insert(entry.rule.locked);
        all.hiddenOptions += entry.rule.hiddenOptions;
        all.hiddenPanels += entry.rule.hiddenPanels;
        all.lockedPanels += entry.rule.lockedPanels;
    }
    return all;
}

bool Policy::offers(const QString &queue) const
{
    return matches(m_offered, queue);
}

QString Policy::attribution() const
{
    return m_contact.isEmpty() ? PolicyText::tr("Set by the administrator.")
                               : PolicyText::tr("Set by the administrator (%1).").arg(m_contact);
}

bool Policy::Rule::hidesPanel(const QString &kind) const
{
    return names(hiddenPanels, kind);
}

bool Policy::Rule::locksPanel(const QString &kind) const
{
    return names(lockedPanels, kind);
}

QString Policy::Rule::lockedChoice(const PpdDocument *ppd, const QString &keyword) const
{
    return lockedChoices(ppd).value(keyword);
}

// In the PPD's spelling.
QMap<QString, QString> Policy::Rule::lockedChoices(const PpdDocument *ppd) const
{
    QMap<QString, QString> choices;
    for (auto it = locked.begin(); ppd && it != locked.end(); ++it) {
        const auto option = ppd->option(it.key());
        if (option && option->hasChoice(option->spelled(it.value())))
            choices.insert(option->keyword, option->spelled(it.value()));
    }
    return choices;
}

void Policy::Rule::applyTo(Destination *destination, const PpdDocument *ppd) const
{
    for (auto it = defaults.begin(); it != defaults.end(); ++it) {
        const auto option = ppd ? ppd->option(it.key()) : std::nullopt;
        const bool isLacking = option && !option->hasChoice(it.value()) && !isCustomChoice(it.value());
        if (!isLacking && !destination->options.contains(it.key()))
            destination->options.insert(it.key(), it.value());
    }
    destination->options.insert(lockedChoices(ppd));
}

} // namespace host
