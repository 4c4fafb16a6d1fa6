// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/batch/results.h"

#include "host/printing/file_name.h"

#include <QCoreApplication>
#include <QFileDevice>
#include <QJsonArray>
#include <QJsonDocument>

namespace host {

namespace {

struct ResultText
{
    Q_DECLARE_TR_FUNCTIONS(ResultText)
};

template <typename T>
QJsonArray toJson(const QList<T> &list);

QJsonObject toJson(const OptionChoice &choice)
{
    return {{QStringLiteral("option"), choice.option},
            {QStringLiteral("choice"), choice.choice},
            {QStringLiteral("optionText"), choice.optionText},
            {QStringLiteral("choiceText"), choice.choiceText}};
}

QJsonObject toJson(const CustomChoice &custom)
{
    QJsonArray parameters;
    for (const CustomParameter &parameter : custom.parameters)
        parameters.append(QJsonObject{{QStringLiteral("name"), parameter.keyword},
                                      {QStringLiteral("text"), parameter.text},
                                      {QStringLiteral("type"), parameter.typeName()},
                                      {QStringLiteral("minimum"), parameter.minimum},
                                      {QStringLiteral("maximum"), parameter.maximum}});
    return {{QStringLiteral("text"), custom.text}, {QStringLiteral("parameters"), parameters}};
}

QJsonObject toJson(const PpdOption &option)
{
    QJsonArray choices;
    for (const PpdOption::Choice &choice : option.choices)
        choices.append(
            QJsonObject{{QStringLiteral("choice"), choice.keyword}, {QStringLiteral("text"), choice.text}});
    QJsonObject object{
        {QStringLiteral("option"), option.keyword},       {QStringLiteral("text"), option.text},
        {QStringLiteral("group"), option.groupText},      {QStringLiteral("default"), option.defaultChoice},
        {QStringLiteral("current"), option.markedChoice}, {QStringLiteral("choices"), choices}};
    if (option.custom)
        object[QStringLiteral("custom")] = toJson(*option.custom);
    return object;
}

QJsonObject toJson(const SubmittedJob &job, const QString &queue, const QStringList &documents)
{
    return {{QStringLiteral("id"), job.id},
            {QStringLiteral("queue"), queue},
            {QStringLiteral("documents"), QJsonArray::fromStringList(documents)},
            {QStringLiteral("state"), job.status.code()},
            {QStringLiteral("stateText"), job.status.text()},
            {QStringLiteral("printerStopped"), job.status.printerStopped},
            {QStringLiteral("differences"), QJsonArray::fromStringList(job.differences)}};
}

QJsonObject toJson(const SummarySection &section)
{
    QJsonArray entries;
    for (const auto &[name, value] : section.entries)
        entries.append(QJsonObject{{QStringLiteral("name"), name}, {QStringLiteral("value"), value}});
    return {{QStringLiteral("title"), section.title}, {QStringLiteral("entries"), entries}};
}

QJsonArray toJson(const Conflict &conflict)
{
    return toJson(conflict.sides);
}

QJsonObject toJson(const Preset &preset)
{
    QJsonObject options;
    for (auto it = preset.options.begin(); it != preset.options.end(); ++it)
        options[it.key()] = it.value();
    return {{QStringLiteral("name"), preset.name}, {QStringLiteral("options"), options}};
}

template <typename T>
QJsonArray toJson(const QList<T> &list)
{
    QJsonArray array;
    for (const T &each : list)
        array.append(toJson(each));
    return array;
}

QString sidesText(const QList<OptionChoice> &sides)
{
    QStringList texts;
    for (const OptionChoice &side : sides)
        texts.append(side.text());
    return texts.join(QStringLiteral(" – "));
}

} // namespace

QJsonObject toJson(const BatchResult &result)
{
    QJsonObject object;
    if (!result.printer.isEmpty())
        object[QStringLiteral("printer")] = result.printer;
    if (!result.output.isEmpty())
        object[QStringLiteral("output")] = readableFileName(result.output);
    if (result.hasSummary)
        object[QStringLiteral("summary")] = toJson(result.summary);
    if (result.hasOptions) {
        object[QStringLiteral("options")] = toJson(result.options);
        QJsonArray keys;
        for (const auto &[panel, key] : result.panelKeys)
            keys.append(QJsonObject{{QStringLiteral("panel"), panel}, {QStringLiteral("key"), key}});
        object[QStringLiteral("panelKeys")] = keys;
    }
    if (result.presets)
        object[QStringLiteral("presets")] = toJson(*result.presets);
    if (!result.savedPreset.isEmpty())
        object[QStringLiteral("savedPreset")] = result.savedPreset;
    if (!result.deletedPreset.isEmpty())
        object[QStringLiteral("deletedPreset")] = result.deletedPreset;
    if (result.submission)
        object[QStringLiteral("outcome")] = result.submission->code();
    if (result.submission && result.submission->job.id > 0)
        object[QStringLiteral("job")] = toJson(result.submission->job, result.queue, result.documents);
    if (!result.resolved.isEmpty())
        object[QStringLiteral("resolved")] = toJson(result.resolved);
    if (!result.notices.isEmpty())
        object[QStringLiteral("notices")] = QJsonArray::fromStringList(result.notices);
    if (result.error) {
        object[QStringLiteral("error")] = QJsonObject{{QStringLiteral("code"), result.error.code()},
                                                      {QStringLiteral("message"), result.error.message}};
    }
    if (!result.conflicts.isEmpty()) {
        object[QStringLiteral("error")] = QJsonObject{
            {QStringLiteral("code"), QStringLiteral("conflict")},
            {QStringLiteral("message"), ResultText::tr("These settings cannot be used together.")},
            {QStringLiteral("conflicts"), toJson(result.conflicts)},
            {QStringLiteral("proposal"), toJson(result.proposal.value_or(Resolution()))}};
    }
    return object;
}

bool ResultWriter::begin()
{
    m_hasBegun = true;
    put("{");
    return finish();
}

bool ResultWriter::writeSettings(const BatchResult &result)
{
    m_hasBegun = true;
    if (result.hasOptions)
        writeOptions(result);
    for (const SummarySection &section : result.summary) {
        print(section.title);
        for (const auto &[name, value] : section.entries)
            print(QStringLiteral("    ") +
                  ResultText::tr("%1: %2", "a setting and its value").arg(name, value));
    }
    writePresets(result);
    return finish();
}

bool ResultWriter::write(const BatchResult &result, bool asJson)
{
    if (asJson)
        put(terminalJson(QJsonDocument(toJson(result)).toJson()).mid(m_hasBegun ? 1 : 0));
    else
        writeText(result);
    return finish();
}

// Flushes both devices and returns whether the result was written completely, which is only known after the
// flush. A signal may end the program right afterwards.
bool ResultWriter::finish()
{
    const auto flush = [](QIODevice *device) {
        auto *file = qobject_cast<QFileDevice *>(device);
        return !file || file->flush();
    };
    m_isWritten = flush(m_out) && m_isWritten;
    if (!m_isWritten)
        printError(ResultText::tr("The result cannot be written: %1.").arg(m_out->errorString()));
    flush(m_err);
    return m_isWritten;
}

void ResultWriter::writeText(const BatchResult &result)
{
    for (const QString &notice : result.notices)
        printError(notice);
    for (const OptionChoice &change : result.resolved)
        printError(ResultText::tr("Changed to resolve a conflict: %1").arg(change.text()));
    if (!m_hasBegun)
        writeSettings(result);
    if (result.submission && result.submission->isAccepted())
        writeJob(result);
    if (!result.output.isEmpty())
        print(ResultText::tr("“%1” has been written.").arg(readableFileName(result.output)));
    writeConflicts(result);
    if (result.error)
        printError(result.error.message);
}

void ResultWriter::writeOptions(const BatchResult &result)
{
    QString group;
    for (const PpdOption &option : result.options) {
        if (option.groupText != group)
            print(group = option.groupText);
        QStringList choices;
        for (const PpdOption::Choice &choice : option.choices)
            choices.append((choice.keyword == option.markedChoice ? QStringLiteral("*") : QString()) +
                           choice.keyword);
        if (isCustomChoice(option.markedChoice))
            choices.append(QLatin1Char('*') + option.markedChoice);
        print(
            QStringLiteral("    %1/%2: %3").arg(option.keyword, option.text, choices.join(QLatin1Char(' '))));
        if (option.custom)
            print(QStringLiteral("        ") + ResultText::tr("and %1").arg(option.custom->inWords()));
    }
    if (!result.panelKeys.isEmpty())
        print(ResultText::tr("Keys of the panels"));
    for (const auto &[panel, key] : result.panelKeys)
        print(QStringLiteral("    %1 (%2)").arg(key, panel));
    if (result.hasSecretKeys)
        print(ResultText::tr("Give passwords and codes with --ask or --set-file: other users can read the "
                             "command line."));
}

void ResultWriter::writePresets(const BatchResult &result)
{
    if (!result.deletedPreset.isEmpty())
        print(ResultText::tr("The preset “%1” has been deleted.").arg(result.deletedPreset));
    if (!result.savedPreset.isEmpty())
        print(ResultText::tr("The settings have been saved as the preset “%1”.").arg(result.savedPreset));
    const QString queue = result.printer.section(QLatin1Char('/'), 0, 0);
    for (const Preset &preset : result.presets.value_or(QList<Preset>())) {
        print(preset.name.isEmpty() ? queue : queue + QLatin1Char('/') + preset.name);
        for (auto it = preset.options.begin(); it != preset.options.end(); ++it)
            print(QStringLiteral("    %1=%2").arg(it.key(), it.value()));
    }
}

void ResultWriter::writeJob(const BatchResult &result)
{
    const SubmittedJob &job = result.submission->job;
    print(ResultText::tr("request id is %1-%2 (%3 file(s))")
              .arg(result.queue)
              .arg(job.id)
              .arg(result.documents.size()));
    // The names of several documents; a single document is usually named in the title of the job.
    for (const QString &document : result.documents.size() > 1 ? result.documents : QStringList())
        print(QStringLiteral("    ") + document);
    print(ResultText::tr("Job %1: %2.").arg(job.id).arg(job.status.text()));
    for (const QString &difference : job.differences)
        printError(difference);
}

void ResultWriter::writeConflicts(const BatchResult &result)
{
    if (result.conflicts.isEmpty())
        return;
    printError(ResultText::tr("These settings cannot be used together:"));
    for (const Conflict &conflict : result.conflicts)
        printError(QStringLiteral("  ") + sidesText(conflict.sides));
    if (result.proposal) {
        printError(ResultText::tr("Proposal (accepted with --resolve):"));
        for (const OptionChoice &change : *result.proposal)
            printError(QStringLiteral("  ") + change.text());
    }
}

} // namespace host
