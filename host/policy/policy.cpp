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

// No wildcards stand for every queue.
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

// Reads the values that are there, and keeps the first problem with its line.
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
            fail(qMax(0, problem.offset - 1), problem.errorString()); // it is behind what it means
        else if (!document.isObject())
            fail(0, PolicyText::tr("it is not one object in braces"));
        else
            readPolicy(document.object());
        *error = m_problem;
        return m_problem.isNull() ? std::optional(m_policy) : std::nullopt;
    }

private:
    void fail(qsizetype offset, const QString &what)
    {
        if (m_problem.isNull())
            m_problem = PolicyText::tr("%1, line %2, column %3: %4")
                            .arg(m_fileName)
                            .arg(m_source.left(offset).count('\n') + 1)
                            .arg(columnOf(offset))
                            .arg(what);
    }

    // In characters, from 1.
    qsizetype columnOf(qsizetype offset) const
    {
        const qsizetype begin = offset > 0 ? m_source.lastIndexOf('\n', offset - 1) + 1 : 0;
        return QString::fromUtf8(m_source.mid(begin, offset - begin)).size() + 1;
    }

    // Where a key stands, looked for from the beginning of what it is part of.
    qsizetype placeOf(const QString &key, qsizetype from) const
    {
        const QByteArray name = '"' + key.toUtf8() + '"';
        for (qsizetype place = m_source.indexOf(name, from); place >= 0;
             place = m_source.indexOf(name, place + 1)) {
            if (m_source.mid(place + name.size()).trimmed().startsWith(':')) // else it is a value
                return place;
        }
        return from;
    }

    void unknownKeys(const QJsonObject &object, const QStringList &known, qsizetype from)
    {
        for (const QString &key : object.keys()) {
            if (!known.contains(key))
                fail(placeOf(key, from), PolicyText::tr("“%1” is not known here; known are %2")
                                             .arg(key, known.join(QStringLiteral(", "))));
        }
    }

    QStringList names(const QJsonObject &object, const QString &key, qsizetype from)
    {
        QStringList result;
        const QJsonValue value = object.value(key);
        bool isList = value.isArray() || value.isUndefined();
        for (const QJsonValue &name : value.toArray()) {
            isList = isList && name.isString();
            result.append(name.toString());
        }
        if (!isList)
            fail(placeOf(key, from), PolicyText::tr("“%1” takes a list of names").arg(key));
        return result;
    }

    QMap<QString, QString> choices(const QJsonObject &object, const QString &key, qsizetype from)
    {
        QMap<QString, QString> result;
        const QJsonValue value = object.value(key);
        const qsizetype here = placeOf(key, from);
        if (!value.isUndefined() && !value.isObject())
            fail(here, PolicyText::tr("“%1” takes an object of options and choices").arg(key));
        const QJsonObject given = value.toObject();
        for (auto it = given.begin(); it != given.end(); ++it) {
            if (!it.value().isString())
                fail(placeOf(it.key(), here), PolicyText::tr("“%1” takes a choice in quotes").arg(it.key()));
            result.insert(it.key(), it.value().toString());
        }
        return result;
    }

    // Where the objects in the list of rules begin.
    QList<qsizetype> ruleBeginnings() const
    {
        QList<qsizetype> beginnings;
        int depth = 0;
        bool isText = false;
        for (qsizetype i = placeOf(QStringLiteral("rules"), 0); i < m_source.size(); ++i) {
            const char c = m_source.at(i);
            if (isText && c == '\\')
                ++i;
            else if (c == '"')
                isText = !isText;
            else if (!isText && (c == '{' || c == '[')) {
                if (c == '{' && depth == 1)
                    beginnings.append(i);
                ++depth;
            } else if (!isText && (c == '}' || c == ']')) {
                if (--depth == 0)
                    break;
            }
        }
        return beginnings;
    }

    void readPolicy(const QJsonObject &object)
    {
        unknownKeys(object, {QStringLiteral("contact"), QStringLiteral("queues"), QStringLiteral("rules")},
                    0);
        const QJsonValue contact = object.value(QStringLiteral("contact"));
        if (!contact.isUndefined() && !contact.isString())
            fail(placeOf(QStringLiteral("contact"), 0), PolicyText::tr("“contact” takes a text"));
        m_policy.m_contact = contact.toString();
        m_policy.m_offered = names(object, QStringLiteral("queues"), 0);
        const QJsonValue rules = object.value(QStringLiteral("rules"));
        if (!rules.isUndefined() && !rules.isArray())
            fail(placeOf(QStringLiteral("rules"), 0), PolicyText::tr("“rules” takes a list"));
        const QList<qsizetype> beginnings = ruleBeginnings();
        qsizetype at = 0;
        for (const QJsonValue &rule : rules.toArray()) {
            if (!rule.isObject()) {
                fail(placeOf(QStringLiteral("rules"), 0), PolicyText::tr("“rules” takes objects in braces"));
                return;
            }
            readRule(rule.toObject(), beginnings.value(at++));
        }
    }

    void readRule(const QJsonObject &object, qsizetype from)
    {
        unknownKeys(object,
                    {QStringLiteral("queues"), QStringLiteral("defaults"), QStringLiteral("locked"),
                     QStringLiteral("hiddenOptions"), QStringLiteral("hiddenPanels"),
                     QStringLiteral("lockedPanels")},
                    from);
        m_policy.m_entries.append({names(object, QStringLiteral("queues"), from),
                                   {choices(object, QStringLiteral("defaults"), from),
                                    choices(object, QStringLiteral("locked"), from),
                                    names(object, QStringLiteral("hiddenOptions"), from),
                                    names(object, QStringLiteral("hiddenPanels"), from),
                                    names(object, QStringLiteral("lockedPanels"), from)}});
    }

    const QByteArray m_source;
    const QString m_fileName;
    Policy m_policy;
    QString m_problem;
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
    const QString choice = locked.value(keyword);
    const auto option = ppd && !choice.isNull() ? ppd->option(keyword) : std::nullopt;
    return option && option->hasChoice(choice) ? choice : QString();
}

QMap<QString, QString> Policy::Rule::lockedChoices(const PpdDocument *ppd) const
{
    QMap<QString, QString> choices;
    for (const QString &keyword : locked.keys()) {
        if (const QString choice = lockedChoice(ppd, keyword); !choice.isNull())
            choices.insert(keyword, choice);
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
